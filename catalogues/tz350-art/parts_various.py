"""Filters, labels, tools and the rest."""
import math
from isometric import ring, rounded
from parts_turned import bore
from parts_drive import gear


def decal(pen, text, w=74.0, h=40.0):
    """A label as it lies on the page, a corner curling."""
    k, (x, y) = pen.scale, pen.origin
    w, h = w * k, h * k
    c = 9 * k
    pen.sheet.marks.append(f'<path d="M{x - w / 2:.1f} {y - h / 2:.1f}h{w:.1f}v{h - c:.1f}l{-c:.1f} {c:.1f}h{c - w:.1f}z"/>')
    pen.sheet.marks.append(f'<path class="m" d="M{x + w / 2:.1f} {y + h / 2 - c:.1f}q{-c:.1f} {-c * .3:.1f} {-c:.1f} {c:.1f}z"/>')
    size = min(h * .42, w / (max(len(text), 3) * .68))
    pen.sheet.marks.append(f'<text class="l" x="{x:.1f}" y="{y + size * .36:.1f}" font-size="{size:.1f}">{text}</text>')
    pen.sheet.points += [(x - w / 2, y - h / 2), (x + w / 2, y - h / 2), (x + w / 2, y + h / 2), (x - w / 2, y + h / 2)]


def warning(pen, w=46.0):
    k, (x, y) = pen.scale, pen.origin
    w *= k
    decal(pen, '', 70, 62)
    pen.sheet.marks.append(f'<path d="M{x:.1f} {y - w * .46:.1f}L{x + w * .5:.1f} {y + w * .42:.1f}H{x - w * .5:.1f}Z"/>')
    pen.sheet.marks.append(f'<path class="k" d="M{x - w * .04:.1f} {y - w * .18:.1f}h{w * .08:.1f}l{-w * .015:.1f} {w * .32:.1f}h{-w * .05:.1f}z'
                           f'm0 {w * .4:.1f}h{w * .08:.1f}v{w * .08:.1f}h{-w * .08:.1f}z"/>')


def bottle(pen):
    pen.prism(rounded(-26, 26, -17, 17, 8), 0, 66)
    pen.prism(rounded(-16, 16, -11, 11, 6), 66, 76)
    pen.turned([(76, 9), (80, 9), (80, 11), (92, 11)], shade=False)
    pen.line([(12, 26, -11), (12, 26, 11), (52, 26, 11), (52, 26, -11)], 'm', True)


def tin(pen):
    pen.turned([(0, 24), (40, 24), (40, 26), (48, 26)])
    pen.disc(48, 21, style='m')


def carton(pen):
    pen.box(0, 44, -38, 38, -28, 28)
    pen.line([(44, -38, 0), (44, 38, 0)], 'm')
    pen.line([(44, -6, -28), (44, -6, 28)], 't')
    pen.line([(44, 6, -28), (44, 6, 28)], 't')


def filter_element(pen, r=42.0, h=56.0):
    pen.drum(0, r, 5, r, shade=False)
    pen.drum(5, r * .94, h - 5, r * .94, shade=False)
    t0, t1 = pen.front()
    for k in range(22):
        t = t0 + (t1 - t0) * (k + .5) / 22
        pen.line([(5, r * .94 * math.cos(t), r * .94 * math.sin(t)), (h - 5, r * .94 * math.cos(t), r * .94 * math.sin(t))], 't')
    pen.drum(h - 5, r, h, r, shade=False)
    pen.hole(h, r * .6, h)


def foam(pen, r=48.0, h=44.0):
    pen.drum(0, r, h, r, shade=False)
    t0, t1 = pen.front()
    for k in range(34):
        t = t0 + (t1 - t0) * ((k * 13) % 34 + .5) / 34
        s = 4 + (k * 7) % int(h - 8)
        pen.disc(s, 1.4, r * math.cos(t), r * math.sin(t), style='x')
        xy = pen.rim(s, r, t)
        pen.sheet.marks.append(f'<circle class="t" cx="{xy[0]:.1f}" cy="{xy[1]:.1f}" r="1.5"/>')
    pen.hole(h, r * .82, h)


def inline_filter(pen):
    pen.turned([(0, 5), (16, 5), (16, 15), (20, 17), (46, 17), (50, 15), (50, 5), (66, 5)])


def breather(pen):
    pen.turned([(-16, 7), (0, 7), (0, 15), (6, 17), (22, 17), (28, 10)])
    pen.thread(-16, -1, 7, 2.6)


def dipstick(pen):
    pen.box(-74, -14, -2, 2, -.8, .8)
    pen.drum(-16, 8, 0, 8, shade=False)
    pen.thread(-16, 0, 8, 2.6)
    pen.turned([(0, 15), (9, 15)])
    pen.box(9, 22, -12, 12, -3, 3)


def oil_pump(pen):
    pen.prism(ring(34, 10, .2), 0, 22)
    for k in range(3):
        t = 2 * math.pi * k / 3 + .6
        pen.hole(22, 3.4, 6, 28 * math.cos(t), 28 * math.sin(t))
    pen.drum(22, 19, 28, 19, shade=False)
    gear(pen.at(28), 15, 8, 9, 4, hub=False)
    pen._extent(0, 36)


def cap(pen, r=26.0):
    t0, t1 = pen.front()
    pen.turned([(-8, r * .8), (0, r * .8), (0, r), (16, r)], shade=False)
    for k in range(14):
        t = t0 + (t1 - t0) * (k + .5) / 14
        pen.line([(1, r * math.cos(t), r * math.sin(t)), (15, r * math.cos(t), r * math.sin(t))], 'm')
    pen.disc(16, r * .7, style='m')


def tap(pen):
    pen.turned([(-20, 8), (0, 8), (0, 14), (22, 14)])
    pen.thread(-20, -1, 8, 2.6)
    side = pen.at(11, 14, 0, 'u')
    side.turned([(0, 5), (22, 5)], shade=False)
    up = pen.at(11, 0, 14, 'v')
    up.turned([(0, 6), (8, 6)], shade=False)
    up.box(8, 14, -5, 20, -4, 4)


def fitting(pen):
    pen.drum(-18, 8, 0, 8, shade=False)
    pen.thread(-18, 0, 8, 2.6)
    pen.prism(ring(13, 6, .3), 0, 10)
    pen.turned([(10, 7), (16, 8.5), (16, 6.5), (22, 8), (22, 6), (28, 7.5), (30, 6)], shade=False)
    bore(pen, 30, 3.4)


def jet(pen, r=6.0, length=26.0):
    pen.drum(0, r * .6, length * .5, r * .6, shade=False)
    pen.thread(length * .1, length * .5, r * .6, 2.2)
    pen.prism(ring(r * 1.2, 6, .3), length * .5, length)
    pen.line([(length, -r * .7, 0), (length, r * .7, 0)], 'm')


def needle(pen):
    pen.turned([(0, 1), (10, 4.5), (34, 4.5), (34, 2.5), (38, 2.5), (38, 5), (41, 5)], shade=False)


def butterfly(pen):
    pen.drum(0, 25, 2.4, 25, shade=False)
    pen.line([(2.4, -25, -3), (2.4, 25, -3)], 'm')
    pen.line([(2.4, -25, 3), (2.4, 25, 3)], 'm')
    pen.disc(2.4, 2, -8, 0, 'h')
    pen.disc(2.4, 2, 8, 0, 'h')


def tappet(pen):
    pen.turned([(0, 15), (6, 15), (6, 9), (44, 9)])
    bore(pen, 44, 5)


def rod(pen, r=3.6, length=150.0):
    pen.turned([(0, r * .6), (4, r), (length - 4, r), (length, r * .6)], shade=False)
    pen.drum(length * .5, r, length * .5 + 1, r, shade=False)


def retainer(pen):
    pen.turned([(0, 8), (6, 8), (6, 14), (11, 14)], shade=False)
    bore(pen, 11, 5)


def collet(pen):
    for sign in (-1, 1):
        out = [(7 * math.cos(t), sign * 3 + 7 * sign * math.sin(t)) for t in [math.pi * j / 8 for j in range(9)]]
        out += [(3.4 * math.cos(t), sign * 3 + 3.4 * sign * math.sin(t)) for t in [math.pi * (1 - j / 8) for j in range(9)]]
        pen.prism(out, 0, 13, lines=False)


def mount(pen):
    pen.drum(-18, 4, 0, 4, shade=False)
    pen.thread(-18, 0, 4, 2.6)
    pen.turned([(0, 18), (3, 18), (3, 15), (14, 13), (25, 15), (25, 18), (28, 18)])
    pen.drum(28, 4, 44, 4, shade=False)
    pen.thread(29, 44, 4, 2.6)


def pad(pen):
    pen.turned([(0, 15), (8, 15), (8, 10), (13, 10), (13, 15), (20, 15)], shade=False)
    bore(pen, 20, 5)


def pawl(pen):
    pen.prism([(-8, -8), (4, -9), (22, 2), (26, 10), (18, 8), (4, 9), (-8, 8)], 0, 7)
    pen.hole(7, 3.6, 6, -1, 0)


def spiral(pen):
    pts = [pen.p(0, (8 + 2.1 * k * .5) * math.cos(k * .5), (8 + 2.1 * k * .5) * math.sin(k * .5)) for k in range(58)]
    last = pen.p(0, 8 + 2.1 * 29 + 8, -10)
    pen.tube(pts, 2.2)


def rope(pen):
    x, y = pen.origin
    k = pen.scale
    pts = [(x + (24 + j * .5) * math.cos(j * .7) * k, y + (11 + j * .28) * math.sin(j * .7) * k) for j in range(30)]
    pen.tube(pts + [(x + 70 * k, y + 26 * k), (x + 96 * k, y + 18 * k)], 3.4)


def handle(pen):
    pen.prism(rounded(-34, 34, -9, 9, 8), 0, 16)
    pen.hole(16, 4, 8, 0, 0)


def recoil_housing(pen, r=86.0):
    pen.turned([(0, r * .7), (12, r * .94), (46, r), (54, r)])
    for k in range(4):
        t = math.pi / 2 * k + .75
        pen.drum(46, 12, 54, 12, r * 1.06 * math.cos(t), r * 1.06 * math.sin(t), shade=False)
        pen.hole(54, 4.5, 6, r * 1.06 * math.cos(t), r * 1.06 * math.sin(t))
    pen.disc(54, r)
    pen.hole(54, r * .9, 36, style='n')
    for k in range(10):
        t = 2 * math.pi * k / 10
        pen.line([(54, r * .34 * math.cos(t), r * .34 * math.sin(t)), (54, r * .74 * math.cos(t + .16), r * .74 * math.sin(t + .16))], 's')
    pen.turned([(30, r * .16), (58, r * .16)], shade=False)
    pen.hole(58, r * .07)


def brake_shoe(pen, r=56.0):
    for sign in (-1, 1):
        ang = [math.pi * (.1 + .8 * j / 14) * sign for j in range(15)]
        out = [(r * math.cos(t), sign * 5 + r * math.sin(t)) for t in ang] + \
              [(r * .84 * math.cos(t), sign * 5 + r * .84 * math.sin(t)) for t in ang[::-1]]
        pen.prism(out, 0, 22, lines=False)
        web = [(r * .84 * math.cos(t), sign * 5 + r * .84 * math.sin(t)) for t in ang]
        pen.line([(22, r * .93 * math.cos(t), sign * 5 + r * .93 * math.sin(t)) for t in ang], 'm')


def backing_plate(pen, r=66.0):
    pen.turned([(0, r * .5), (0, r), (7, r)], shade=False)
    pen.disc(7, r * .86, style='m')
    pen.hole(7, r * .3, 8)
    for k in range(4):
        t = math.pi / 2 * k + .4
        pen.hole(7, 4, 5, r * .44 * math.cos(t), r * .44 * math.sin(t))
    pen.drum(7, 7, 26, 7, 0, -r * .68)
    pen.hole(7, 8, 8, 0, r * .68)


def cam(pen):
    pen.drum(-34, 7, 0, 7)
    pen.prism(rounded(-20, 20, -8, 8, 7), 0, 18)


def chute(pen):
    pen.turned([(0, 36), (8, 36), (8, 30)], shade=False)
    pen.drum(8, 30, 80, 27)
    pen.face([(80, -27, -10), (80, 27, -10), (122, 44, 26), (126, -14, 44)])
    pen.disc(80, 24, style='h')
    pen.face([(80, 27, -12), (80, 20, 22), (124, 30, 48), (126, 44, 26)])
    pen.face([(80, -27, 8), (80, 20, 22), (124, 30, 48), (126, -14, 44)])


def coupling(pen):
    pen.turned([(0, 26), (30, 26), (30, 38), (40, 38)])
    pen.hole(40, 20, 30)
    for k in range(3):
        t = 2 * math.pi * k / 3 + .5
        pen.hole(40, 4, 8, 30 * math.cos(t), 30 * math.sin(t))


def weight(pen, r=50.0):
    pen.turned([(0, r), (26, r)])
    pen.disc(26, r * .8, style='m')
    pen.hole(26, r * .3, 20)


def tyre_valve(pen):
    pen.turned([(0, 10), (4, 10), (7, 5), (26, 4), (26, 5), (36, 5)], shade=False)


def depth_spur(pen):
    pen.box(-70, 30, -8, 8, -4, 4)
    for k in range(5):
        pen.hole(30, 2.4, 4, 0, 0) if k == 0 else None
    side = pen.at(0, 8, 0, 'u')
    for k in range(4):
        xy = pen.p(-20 + k * 14, 8, 0)
        pen.sheet.marks.append(f'<circle class="h" cx="{xy[0]:.1f}" cy="{xy[1]:.1f}" r="2.4"/>')
    pen.prism([(-18, -6), (18, -6), (10, 10), (-10, 10)], -76, -70)


def differential(pen, r=50.0):
    pen.turned([(-30, 20), (0, 20), (0, r * 1.2), (8, r * 1.2), (8, r * .9), (54, r * .8), (54, 22), (84, 22)])
    for k in range(8):
        t = 2 * math.pi * k / 8
        if math.cos(t) + math.sin(t) > -.5:
            pen.disc(8, 4, r * 1.05 * math.cos(t), r * 1.05 * math.sin(t), 'h')
    side = pen.at(32, r * .84, 0, 'u')
    side.disc(0, 15, style='m')
    side.disc(0, 10, style='h')
    bore(pen, 84, 13)


def axle_tube(pen, length=150.0, mirror=1):
    big, small = (46, 24)
    if mirror > 0:
        pen.turned([(0, big), (9, big), (9, big * .74), (34, small), (length - 10, small), (length - 10, 36), (length, 36)])
        pen.hole(length, 17, 20)
    else:
        pen.turned([(0, 36), (10, 36), (10, small), (length - 34, small), (length - 9, big * .74), (length - 9, big), (length, big)])
        pen.hole(length, big * .62, 20)


def cross(pen):
    pen.drum(-40, 7, 40, 7)
    for s in (-26, 26):
        pen.drum(s, 7.2, s + 1.4, 7.2, shade=False)


def feeler(pen):
    for k, t in enumerate((-.5, -.2, .1, .4)):
        n = (math.sin(t), math.cos(t))
        out = [(-6 * n[1], 6 * n[0]), (6 * n[1], -6 * n[0]), (90 * n[0] + 6 * n[1], 90 * n[1] - 6 * n[0]), (90 * n[0] - 6 * n[1], 90 * n[1] + 6 * n[0])]
        pen.prism(out, k * 2, k * 2 + 1)
    pen.prism(rounded(-12, 12, -84, 10, 10), 8, 14)
    pen.drum(14, 5, 17, 5, shade=False)


def wrench(pen, r=26.0):
    jaw = [(r * math.cos(t), 70 + r * math.sin(t)) for t in [math.pi * (-.3 + .62 * j / 8) for j in range(9)]]
    jaw2 = [(r * math.cos(t), 70 + r * math.sin(t)) for t in [math.pi * (.68 + .62 * j / 8) for j in range(9)]]
    pen.prism([(-9, -90), (9, -90), (9, 40)] + jaw + [(12, 70), (-12, 70)] + jaw2 + [(-9, 40)], 0, 9)
    pen.hole(9, 4.5, 8, 0, -80)


def puller(pen, r=40.0):
    for sign in (-1, 1):
        pen.prism([(sign * r - 5, -6), (sign * r + 5, -6), (sign * r + 5, 6), (sign * r - 5, 6)], 0, 64)
    pen.box(64, 76, -r - 12, r + 12, -9, 9)
    pen.drum(20, 6, 64, 6, shade=False)
    pen.drum(76, 6, 106, 6, shade=False)
    pen.thread(76, 106, 6, 3)
    pen.prism(ring(11, 6, .3), 106, 116)


def seat(pen):
    pen.prism(rounded(-56, 56, -52, 52, 26), 0, 16)
    back = [(-50, 16), (50, 16), (44, 60), (30, 70), (-30, 70), (-44, 60)]
    pen.at(-52 if pen.axis == 'z' else 0)
    pen.line([(16, *q) for q in rounded(-46, 46, -42, 42, 22)], 'm', True)
    pen.box(16, 62, -48, 48, -52, -38)


def plate_small(pen, w=56.0, h=24.0):
    pen.box(0, 5, -w / 2, w / 2, -h / 2, h / 2)
    pen.hole(5, 4, 4, -w * .28, 0)
    pen.hole(5, 4, 4, w * .28, 0)
