"""Shafts, gears, pulleys, clutch and engine parts: what turns or goes up and down."""
import math
from isometric import ring, rounded
from parts_turned import bore, coil


def teeth(r, count, depth):
    out = []
    for k in range(count):
        t, step = 2 * math.pi * k / count, 2 * math.pi / count
        for part, radius in ((0, r - depth), (.22, r), (.5, r), (.72, r - depth)):
            out.append((radius * math.cos(t + part * step), radius * math.sin(t + part * step)))
    return out


def gear(pen, r=40.0, width=16.0, count=24, inner=12.0, hub=True, holes=0):
    pen.prism(teeth(r, count, 6 if r > 30 else 4.5), 0, width, lines=False)
    pen.disc(width, r * .8, style='m')
    for k in range(holes):
        t = 2 * math.pi * k / holes + .4
        pen.hole(width, r * .13, width, r * .58 * math.cos(t), r * .58 * math.sin(t))
    if hub:
        pen.drum(width, inner * 1.6, width + 6, inner * 1.6, shade=False)
        bore(pen, width + 6, inner, width)
    else:
        bore(pen, width, inner, width)


def bevel(pen, r=28.0, height=22.0, count=16, inner=10.0, shank=0.0):
    """A bevel gear, its small end near; a shank behind it makes a pinion."""
    if shank:
        pen.turned([(-shank, inner * .8), (-shank + 3, inner), (0, inner)])
    small = r * .55
    pen.drum(0, r * .9, 4, r, shade=False)
    pen.drum(4, r, height, small, shade=False)
    for k in range(count):
        t = 2 * math.pi * k / count
        n = (math.cos(t), math.sin(t))
        facing = (height - 4) * (n[0] * pen.along[0] + n[1] * pen.along[1]) < r - small
        if facing:
            pen.line([(4, r * n[0], r * n[1]), (height, small * n[0], small * n[1])], 'm')
    pen.disc(height, small * .8, style='m')
    if not shank:
        bore(pen, height, min(inner, small * .6), height)


def splines(pen, s0, s1, r):
    t0, t1 = pen.front()
    for k in range(9):
        t = t0 + (t1 - t0) * (k + .5) / 9
        pen.line([(s0, r * math.cos(t), r * math.sin(t)), (s1, r * math.cos(t), r * math.sin(t))], 'm')


def shaft(pen, length=170.0, r=11.0, style=0):
    if style == 1:      # collar in the middle, thread at the near end
        pen.turned([(0, r * .7), (length * .18, r * .7), (length * .18, r), (length * .45, r), (length * .45, r * 1.5),
                    (length * .52, r * 1.5), (length * .52, r), (length * .85, r), (length * .85, r * .65),
                    (length, r * .65)])
        splines(pen, length * .58, length * .82, r)
        pen.thread(length * .88, length, r * .65, 2.6)
    elif style == 2:    # plain with two grooves
        pen.turned([(0, r * .85), (1.5, r), (length - 1.5, r), (length, r * .85)])
        for s in (length * .08, length * .92):
            pen.arc(s - 3, r, *pen.front(), style='m')
            pen.arc(s, r, *pen.front(), style='m')
    else:
        pen.turned([(0, r * .75), (length * .2, r * .75), (length * .2, r * 1.15), (length * .3, r * 1.15),
                    (length * .3, r), (length * .8, r), (length * .8, r * .75), (length, r * .7)])
        splines(pen, length * .34, length * .6, r)
        splines(pen, length * .85, length, r * .74)


def crankshaft(pen, k=1.0):
    pen.turned([(-80 * k, 9 * k), (-52 * k, 10 * k), (-52 * k, 14 * k), (-24 * k, 14 * k)])
    web = [(20 * k * math.cos(t), 30 * k + 20 * k * math.sin(t)) for t in [math.pi * j / 8 for j in range(9)]]
    low = [(46 * k * math.cos(t), -6 * k + 46 * k * math.sin(t)) for t in [math.pi * (1.12 + .76 * j / 10) for j in range(11)]]
    pen.prism(web + low, -24 * k, -10 * k)
    pen.drum(-10 * k, 13 * k, 18 * k, 13 * k, 0, 26 * k)
    pen.prism(web + low, 18 * k, 32 * k)
    pen.turned([(32 * k, 18 * k), (38 * k, 14 * k), (62 * k, 14 * k), (62 * k, 11 * k), (100 * k, 9 * k), (122 * k, 7 * k)])
    pen.thread(104 * k, 122 * k, 7.6 * k, 2.8)


def camshaft(pen, k=1.0):
    s = 0.0
    for kind, width in (('j', 22), ('c', 13), ('j', 18), ('d', 13), ('j', 46), ('f', 7), ('j', 18)):
        width *= k
        if kind in 'cd':
            lift = 1 if kind == 'c' else -1
            out = [(13 * k * math.cos(t), 13 * k * math.sin(t)) for t in [math.pi * (1.1 + .8 * j / 8) for j in range(9)]]
            tip = [(lift * 6 * k + 6 * k * math.cos(t), 17 * k + 6 * k * math.sin(t)) for t in [math.pi * (.05 + .9 * j / 6) for j in range(7)]]
            pen.prism(out + tip, s, s + width)
        else:
            r = {'j': 9, 'f': 22}[kind] * k
            pen.drum(s, r, s + width, r)
        s += width


def flywheel(pen, r=78.0, width=26.0, count=52):
    pen.prism(teeth(r, count, 3.5), 0, 10, lines=False)
    pen.turned([(10, r * .9), (width, r * .9)])
    pen.disc(width, r * .76, style='m')
    for k in range(14):
        t = 2 * math.pi * k / 14
        a, b = (r * .74 * math.cos(t), r * .74 * math.sin(t)), (r * .48 * math.cos(t + .22), r * .48 * math.sin(t + .22))
        pen.line([(width, *a), (width, *b)], 'm')
    pen.turned([(width, r * .36), (width + 9, r * .32)], shade=False)
    bore(pen, width + 9, r * .15, 20)


def pulley(pen, r=42.0, width=20.0, inner=11.0):
    pen.turned([(0, r), (3, r), (width * .5, r * .74), (width - 3, r), (width, r)], shade=False)
    pen.disc(width, r * .86, style='m')
    for k in range(5):
        t = 2 * math.pi * k / 5
        pen.hole(width, r * .14, 6, r * .58 * math.cos(t), r * .58 * math.sin(t))
    pen.drum(width, inner * 1.5, width + 7, inner * 1.5, shade=False)
    bore(pen, width + 7, inner, 14)


def disc_plate(pen, r=62.0, lining=True, width=6.0):
    """A clutch disc or pressure plate."""
    pen.drum(0, r, width, r, shade=False)
    pen.disc(width, r * .64, style='m')
    n = 12 if lining else 6
    for k in range(n):
        t = 2 * math.pi * k / n
        if lining:
            pen.line([(width, r * .66 * math.cos(t), r * .66 * math.sin(t)), (width, r * .98 * math.cos(t), r * .98 * math.sin(t))], 'm')
        else:
            pen.hole(width, r * .09, 5, r * .8 * math.cos(t), r * .8 * math.sin(t))
    pen.drum(width, r * .32, width + 8, r * .32, shade=False)
    bore(pen, width + 8, r * .2, 12)
    if lining:
        splines(pen, width + 2, width + 8, r * .32)


def bell(pen, r=66.0, depth=40.0, lugs=0):
    """A drum open towards the viewer: clutch bell, brake drum."""
    pen.drum(0, r * .9, 8, r)
    pen.drum(8, r, depth, r)
    pen.disc(depth, r * .9)
    pen.hole(depth, r * .86, depth * .7, style='n')
    pen.disc(depth * .3, r * .3, style='m')
    pen.disc(depth * .3, r * .17, style='h')
    for k in range(5):
        t = 2 * math.pi * k / 5 + .5
        pen.disc(depth * .3, r * .06, r * .45 * math.cos(t), r * .45 * math.sin(t), 'h')


def hub(pen, r=36.0, length=52.0, bolts=5):
    pen.turned([(0, r * .5), (length * .55, r * .5), (length * .55, r), (length * .55 + 9, r)])
    for k in range(bolts):
        t = 2 * math.pi * k / bolts + .3
        pen.hole(length * .55 + 9, r * .1, 8, r * .76 * math.cos(t), r * .76 * math.sin(t))
    pen.turned([(length * .55 + 9, r * .55), (length, r * .5)], shade=False)
    bore(pen, length, r * .3, 26)
    splines(pen, 4, length * .5, r * .5)


def flange(pen, r=36.0, bolts=4, width=9.0):
    pen.drum(0, r, width, r, shade=False)
    for k in range(bolts):
        t = 2 * math.pi * k / bolts + .78
        pen.hole(width, r * .11, 6, r * .76 * math.cos(t), r * .76 * math.sin(t))
    pen.drum(width, r * .55, width + 10, r * .55)
    bore(pen, width + 10, r * .38, 20)


def sleeve(pen, r=24.0, length=26.0):
    pen.turned([(0, r), (length * .35, r), (length * .35, r * .8), (length * .65, r * .8), (length * .65, r), (length, r)])
    splines(pen, length * .68, length - 1, r)
    bore(pen, length, r * .55, 16)


def piston(pen, r=34.0, length=62.0):
    pen.drum(0, r, length, r)
    pen.disc(length, r * .86, style='t')
    t0, t1 = pen.front()
    for s in (length - 7, length - 10, length - 16, length - 19, length - 26, length - 29):
        pen.arc(s, r, t0, t1, style='m')
    side = pen.at(length * .38, r * .97, 0, 'u')
    side.disc(0, r * .27, style='m')
    side.disc(0, r * .2, style='h')


def ring_set(pen, r=34.0):
    for k in range(3):
        pen.drum(k * 11, r, k * 11 + 3.5, r, shade=False)
        pen.disc(k * 11 + 3.5, r * .9, style='m')
        t = .9
        pen.line([(k * 11 + 3.5, r * .9 * math.cos(t), r * .9 * math.sin(t)), (k * 11 + 3.5, r * math.cos(t), r * math.sin(t))])


def connecting_rod(pen, k=1.0):
    """Lies across the pen's axis: small end up, big end down."""
    big = [(26 * k * math.cos(t), 26 * k * math.sin(t)) for t in [math.pi * (.68 + 1.64 * j / 18) for j in range(19)]]
    top = [(15 * k * math.cos(t), 104 * k + 15 * k * math.sin(t)) for t in [math.pi * (-.18 + 1.36 * j / 14) for j in range(15)]]
    pen.prism(big + [(9 * k, 32 * k), (7 * k, 84 * k)] + top + [(-7 * k, 84 * k), (-9 * k, 32 * k)], 0, 15 * k)
    pen.line([(15 * k, -4 * k, 32 * k), (15 * k, -3 * k, 84 * k), (15 * k, 3 * k, 84 * k), (15 * k, 4 * k, 32 * k)], 'm', True)
    pen.hole(15 * k, 18 * k, 15 * k)
    pen.hole(15 * k, 9 * k, 15 * k, 0, 104 * k)
    pen.line([(15 * k, -27 * k, -2 * k), (15 * k, -18 * k, -2 * k)], 'm')
    pen.line([(15 * k, 18 * k, -2 * k), (15 * k, 27 * k, -2 * k)], 'm')


def shells(pen, r=18.0):
    for lift in (-7, 7):
        sign = 1 if lift > 0 else -1
        ang = [math.pi * j / 12 * sign for j in range(13)]
        out = [(r * math.cos(t), lift + r * math.sin(t)) for t in ang] + \
              [((r - 3) * math.cos(t), lift + (r - 3) * math.sin(t)) for t in ang[::-1]]
        pen.prism(out, 0, 14, lines=False)


def valve(pen, k=1.0):
    pen.turned([(0, 18 * k), (4 * k, 18 * k), (10 * k, 5 * k), (14 * k, 3 * k), (92 * k, 3 * k)], shade=False)
    pen.arc(84 * k, 3 * k, *pen.front(), style='m')
    pen.arc(87 * k, 3 * k, *pen.front(), style='m')


def rocker(pen, k=1.0):
    arm = [(-34, -4), (-26, -8), (-8, -11), (8, -11), (26, -8), (36, -9), (38, -1), (30, 4), (10, 12), (-8, 12), (-30, 5)]
    pen.prism([(a * k, b * k) for a, b in arm], 0, 14 * k)
    pen.drum(14 * k, 11 * k, 19 * k, 11 * k, shade=False)
    pen.hole(19 * k, 7 * k, 16 * k)
    pen.disc(14 * k, 3 * k, -29 * k, -1 * k, 'h')


def governor(pen):
    gear(pen, 28, 10, 20, 8)
    for sign in (-1, 1):
        side = pen.at(22, sign * 15, 0)
        side.box(-6, 16, -7, 7, -8, 8)
    pen.turned([(16, 7), (46, 7), (46, 13), (52, 13)])
    bore(pen, 52, 4)


def auger(pen, r=34.0, length=150.0, right=False):
    """A screw conveyor: a shaft with turns of blade."""
    pen.drum(0, 8, length, 8)
    turns = 3
    for k in range(turns):
        s = 10 + k * (length - 30) / turns + 12
        pen.drum(s, r, s + 4, r, shade=False)
        pen.disc(s + 4, 9, style='m')
        t = 2.4 if right else .8
        pen.line([(s + 4, 9 * math.cos(t), 9 * math.sin(t)), (s + 4, r * math.cos(t), r * math.sin(t))], 'm')
        near = 10 + (k + 1) * (length - 30) / turns + 12 if k + 1 < turns else length
        pen.drum(s + 4, 8, near, 8)


def impeller(pen, r=56.0):
    pen.drum(0, r, 5, r, shade=False)
    for k in range(4):
        t = math.pi / 2 * k + .5
        n = (math.cos(t), math.sin(t))
        pen.face([(5, 10 * n[0], 10 * n[1]), (5, r * .95 * n[0], r * .95 * n[1]), (30, r * .95 * n[0], r * .95 * n[1]), (24, 10 * n[0], 10 * n[1])])
    pen.drum(5, 13, 34, 13)
    bore(pen, 34, 7)
