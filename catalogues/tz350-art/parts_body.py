"""Castings, sheet metal and wheels: the big parts that the others are mounted to."""
import math
from isometric import ring, rounded
from parts_turned import bore


def corners(pen, s, u, v, r=4.0, depth=8.0):
    for su in (-1, 1):
        for sv in (-1, 1):
            pen.hole(s, r, depth, su * u, sv * v)


def plate(pen, w=120.0, h=96.0, t=8.0, round_=18.0, openings=1, holes=True, rise=0.0):
    """A cover: a flange with bolt holes and a raised middle, or an opening."""
    pen.prism(rounded(-w / 2, w / 2, -h / 2, h / 2, round_), 0, t)
    if holes:
        inset = 7 + round_ * .293
        corners(pen, t, w / 2 - inset, h / 2 - inset, 3.6, t)
    if rise:
        pen.prism(rounded(-w / 2 + 19, w / 2 - 19, -h / 2 + 17, h / 2 - 17, round_), t, t + rise)
        pen.disc(t + rise, min(w, h) * .17, style='m')
    elif openings:
        r = min(w, h) * .24
        bore(pen, t, r, t)


def gasket(pen, w=120.0, h=96.0, round_=18.0):
    """A thin frame: outline and opening follow the cover."""
    pen.prism(rounded(-w / 2, w / 2, -h / 2, h / 2, round_), 0, 1.6)
    inner = rounded(-w / 2 + 15, w / 2 - 15, -h / 2 + 13, h / 2 - 13, round_)
    pen.line([(1.6, *q) for q in inner], 'h', True)
    inset = 5 + round_ * .293
    corners(pen, 1.6, w / 2 - inset, h / 2 - inset, 3.4, 1)


def round_gasket(pen, r=22.0, inner=.72, ears=True):
    if ears:
        out = []
        for k in range(36):
            t = 2 * math.pi * k / 36
            out.append((r * (1.0 + .62 * max(0, abs(math.cos(t)) - .72) / .28) * math.cos(t), r * math.sin(t)))
        pen.prism(out, 0, 1.8)
        for u in (-r * 1.32, r * 1.32):
            pen.hole(1.8, r * .15, 1, u, 0)
    else:
        pen.drum(0, r, 1.8, r, shade=False)
    pen.hole(1.8, r * inner, 1.5)


def crankcase(pen, k=1.0):
    w, h, d = 78 * k, 66 * k, 104 * k
    outline = rounded(-w, w, -h, h * .55, 26 * k)
    pen.prism(rounded(-w * 1.08, w * 1.08, -h * 1.12, -h * .82, 6 * k), -d * .1, d * .9)
    pen.prism(outline, 0, d * .88)
    top = pen.at(d * .42, 0, h * .55, 'v')
    top.drum(0, 46 * k, 22 * k, 46 * k)
    top.prism(rounded(-50 * k, 50 * k, -50 * k, 50 * k, 16 * k), 22 * k, 30 * k)
    corners(top, 30 * k, 38 * k, 38 * k, 4 * k)
    top.hole(30 * k, 30 * k, 30 * k)
    pen.prism(rounded(-w * 1.03, w * 1.03, -h * 1.03, h * .6, 28 * k), d * .88, d)
    pen.line([(d, *q) for q in rounded(-w + 13 * k, w - 13 * k, -h + 12 * k, h * .55 - 12 * k, 22 * k)], 'h', True)
    # As deep as it is shifted, so that it is seen through the middle of the opening.
    inside = d * .5
    pen.drum(inside, 24 * k, inside + 4, 24 * k, inside, inside - 14 * k, shade=False)
    pen.hole(inside + 4, 17 * k, 14, inside, inside - 14 * k)
    for u, v in ((-w + 7 * k, -h + 20 * k), (w - 7 * k, -h + 20 * k), (-w + 7 * k, h * .3), (w - 7 * k, h * .3)):
        pen.hole(d, 3.6 * k, 8, u, v)
    side = pen.at(d * .45, w, -h * .35, 'u')
    side.drum(0, 15 * k, 8 * k, 15 * k, shade=False)
    side.hole(8 * k, 9 * k, 10)


def housing(pen, w=150.0, h=120.0, d=70.0, bores=2):
    """A casting with a bolted face, bearing seats and ribs."""
    pen.prism(rounded(-w / 2 + 8, w / 2 - 8, -h / 2 + 8, h / 2 - 8, 22), 0, d - 12)
    for u in (-.25, .05, .3):
        pen.line([(6, u * w, h / 2 - 8), (d - 12, u * w, h / 2 - 8)], 'm')
    pen.prism(rounded(-w / 2, w / 2, -h / 2, h / 2, 26), d - 12, d)
    pen.line([(d, *q) for q in rounded(-w / 2 + 13, w / 2 - 13, -h / 2 + 13, h / 2 - 13, 20)], 'h', True)
    corners(pen, d, w / 2 - 11, h / 2 - 11, 3.4)
    for k in range(bores):
        u = (k - (bores - 1) / 2) * w * .36
        r = h * (.2 if k % 2 == 0 else .15)
        pen.drum(d * .7, r * 1.15, d * .8, r * 1.15, u + d * .2, d * .2, shade=False)
        pen.hole(d * .8, r * .85, 12, u + d * .2, d * .2)


def cylinder(pen, k=1.0):
    """A finned barrel standing on its flange."""
    pen.prism(rounded(-48 * k, 48 * k, -48 * k, 48 * k, 14 * k), 0, 8 * k)
    s = 8 * k
    for n in range(8):
        pen.drum(s, 37 * k, s + 6 * k, 37 * k, shade=False)
        s += 6 * k
        pen.prism(rounded(-52 * k, 52 * k, -50 * k, 50 * k, 22 * k, 3), s, s + 3.6 * k, lines=False)
        s += 3.6 * k
    pen.drum(s, 40 * k, s + 5 * k, 40 * k, shade=False)
    pen.hole(s + 5 * k, 33 * k, 60 * k)
    for u in (-1, 1):
        for v in (-1, 1):
            pen.hole(s, 4 * k, 8, u * 40 * k, v * 38 * k)


def cylinder_head(pen, k=1.0):
    s = 0
    for n in range(5):
        pen.prism(rounded(-54 * k, 54 * k, -52 * k, 52 * k, 20 * k, 3), s, s + 4 * k, lines=False)
        pen.prism(rounded(-44 * k, 44 * k, -42 * k, 42 * k, 18 * k, 3), s + 4 * k, s + 11 * k, lines=False)
        s += 11 * k
    pen.prism(rounded(-50 * k, 50 * k, -38 * k, 38 * k, 14 * k), s, s + 7 * k)
    corners(pen, s + 7 * k, 42 * k, 30 * k, 3.6 * k)
    pen.prism(rounded(-34 * k, 34 * k, -24 * k, 24 * k, 12 * k), s + 7 * k, s + 7 * k + .01, 'h')
    port = pen.at(20 * k, 54 * k, 0, 'u')
    port.drum(-6 * k, 19 * k, 8 * k, 19 * k, shade=False)
    port.hole(8 * k, 13 * k, 12)


def shroud(pen, w=120.0, h=110.0, d=44.0):
    """A sheet hood, open below: fan shroud, protective hood."""
    out = [(-w / 2, -h / 2), (w / 2, -h / 2), (w / 2, h * .1)]
    out += [(w / 2 * math.cos(t), h * .1 + h * .4 * math.sin(t)) for t in [math.pi * j / 14 for j in range(15)]]
    pen.prism(out, 0, d)
    inner = [(q[0] * .9, (q[1] + h * .05) * .9) for q in out]
    pen.line([(d, *q) for q in inner], 'm', True)
    for k in range(5):
        v = -h * .28 + k * h * .11
        pen.line([(d, -w * .26, v), (d, w * .26, v)], 's')


def tank(pen, w=190.0, h=92.0, d=124.0):
    pen.prism(rounded(-w / 2, w / 2, -d / 2, d / 2, 34), 0, 6)
    pen.prism(rounded(-w / 2 + 6, w / 2 - 6, -d / 2 + 6, d / 2 - 6, 34), 6, h)
    pen.line([(h * .55, w / 2 - 6, -d * .2), (h * .55, w / 2 - 6, d * .2)], 'm')
    pen.prism(rounded(-w / 2 + 22, w / 2 - 22, -d / 2 + 22, d / 2 - 22, 24), h, h + 8)
    pen.drum(h + 8, 22, h + 18, 22, -w * .16, 0)
    pen.hole(h + 18, 18, 14, -w * .16, 0)


def carburettor(pen):
    pen.prism(rounded(-34, 34, -24, 24, 12), -46, -38)
    pen.turned([(-38, 22), (0, 22), (0, 30), (34, 30)])
    top = pen.at(-6, 0, 20, 'v')
    top.turned([(0, 18), (14, 18), (14, 11), (24, 11)])
    pen.box(-22, 18, 14, 30, -30, -4)
    pen.turned([(34, 32), (40, 32)], shade=False)
    pen.hole(40, 25, 30)
    pen.line([(28, 0, -25), (28, 0, 25)], 'm')


def bowl(pen, r=30.0, depth=32.0):
    pen.turned([(0, r * .5), (4, r * .84), (depth - 6, r * .9), (depth - 6, r * 1.08), (depth, r * 1.08)])
    pen.hole(depth, r * .84, depth * .7)


def float_(pen):
    pen.drum(0, 23, 16, 23)
    pen.hole(16, 11, 14)
    pen.box(16, 19, -5, 5, -44, -12)


def muffler(pen, w=150.0, r=44.0):
    out = [(r * 1.25 * math.cos(2 * math.pi * j / 32), r * math.sin(2 * math.pi * j / 32)) for j in range(32)]
    pen.prism(out, 0, w)
    pen.prism([(a * 1.04, b * 1.04) for a, b in out], w * .06, w * .1)
    pen.prism([(a * .99, b * .99) for a, b in out], w * .1, w * .9)
    pen.prism([(a * 1.04, b * 1.04) for a, b in out], w * .9, w * .95)
    pen.line([(w * .95, a * .8, b * .8) for a, b in out], 't', True)
    side = pen.at(w * .3, 0, r * .98, 'v')
    side.turned([(-8, 13), (18, 13)])
    side.hole(18, 9, 12)


def manifold(pen):
    pen.prism(rounded(-28, 28, -17, 17, 12), 0, 7)
    pen.hole(7, 4, 6, -20, 0)
    pen.hole(7, 4, 6, 20, 0)
    a = [pen.p(7, 0, 0), pen.p(28, 0, 2), pen.p(46, 0, 16), pen.p(50, 0, 40)]
    pen.tube(a, 24)
    end = pen.at(50, 0, 38, 'v')
    end.drum(0, 15, 6, 15, shade=False)
    end.hole(6, 11, 12)


def tyre(pen, r=88.0, width=52.0, lugs=18):
    pen.turned([(0, r * .82), (width * .14, r), (width * .86, r), (width, r * .82)], shade=False)
    t0, t1 = pen.front()
    for k in range(lugs):
        t = t0 - .1 + (t1 - t0 + .2) * k / lugs
        mid = t + .1
        for a, b in ((width * .14, width * .5), (width * .86, width * .5)):
            if t0 <= t and mid + .06 <= t1:
                pen.line([(a, r * math.cos(t), r * math.sin(t)), (b, r * math.cos(mid), r * math.sin(mid)),
                          (b, r * math.cos(mid + .06), r * math.sin(mid + .06)),
                          (a, r * math.cos(t + .08), r * math.sin(t + .08))], 'm')
    pen.disc(width, r * .76, style='t')
    pen.disc(width, r * .6)
    pen.hole(width, r * .56, width)


def tube_ring(pen, r=70.0, thick=24.0):
    pen.turned([(0, r * .8), (thick * .3, r), (thick * .7, r), (thick, r * .8)], shade=False)
    pen.disc(thick, r * .9, style='t')
    pen.disc(thick, r * .56)
    pen.hole(thick, r * .54, thick)


def rim(pen, r=54.0, width=44.0):
    pen.turned([(0, r), (5, r), (9, r * .88), (width - 9, r * .88), (width - 5, r), (width, r)], shade=False)
    pen.disc(width, r * .92, style='m')
    pen.hole(width, r * .84, width * .8, style='n')
    pen.disc(width * .55, r * .62, style='m')
    for k in range(5):
        t = 2 * math.pi * k / 5 + .2
        pen.disc(width * .55, r * .08, r * .45 * math.cos(t), r * .45 * math.sin(t), 'h')
    pen.disc(width * .55, r * .26, style='h')


def bracket(pen, w=60.0, h=52.0, d=38.0, t=6.0):
    """An angle: a foot and a back, both drilled."""
    pen.box(0, t, -w / 2, w / 2, -h / 2, h / 2)
    pen.hole(t, 5, t, -w * .26, h * .12)
    pen.hole(t, 5, t, w * .26, h * .12)
    pen.box(t, d, -w / 2, w / 2, -h / 2, -h / 2 + t)
    foot = pen.at(0, 0, -h / 2 + t, 'v')
    for u in (-w * .25, w * .25):
        foot.hole(0, 5, 5, *((d * .6, u) if pen.axis == 'x' else (u, d * .6)))


def guard(pen, w=120.0, h=78.0, d=26.0, slots=5):
    """A bent sheet with slots."""
    pen.prism([(-w / 2, -h / 2), (w / 2, -h / 2), (w / 2, h * .3), (w * .36, h / 2), (-w * .36, h / 2), (-w / 2, h * .3)], 0, d)
    pen.line([(d, w * -.44, -h * .42), (d, w * .44, -h * .42), (d, w * .44, h * .27), (d, w * .33, h * .42), (d, -w * .33, h * .42), (d, -w * .44, h * .27)], 't', True)
    for k in range(slots):
        u = (k - (slots - 1) / 2) * w * .15
        pen.line([(d, u, -h * .24), (d, u, h * .2)], 's')


def panel(pen, w=240.0, h=70.0, t=7.0):
    pen.box(0, t, -w / 2, w / 2, -h / 2, h / 2)
    pen.line([(t, -w / 2 + 8, -h / 2 + 8), (t, w / 2 - 8, -h / 2 + 8), (t, w / 2 - 8, h / 2 - 8), (t, -w / 2 + 8, h / 2 - 8)], 'm', True)
    for k in (-1, 0, 1):
        pen.line([(t, k * w * .25 - 3, -h / 2 + 8), (t, k * w * .25 - 3, h / 2 - 8)], 't')


def skid(pen, k=1.0):
    out = [(-50, -6), (28, -6), (44, 4), (54, 18), (48, 22), (38, 9), (26, 0), (-50, 0)]
    pen.prism([(a * k, b * k) for a, b in out], 0, 34 * k)
    pen.box(12 * k, 17 * k, -30 * k, 10 * k, 0, 40 * k)
    pen.hole(17 * k, 4 * k, 4, -20 * k, 28 * k)
    pen.hole(17 * k, 4 * k, 4, 0, 28 * k)
