"""Fasteners, seals, bearings and what else a lathe makes. Each draws one part with its axis along the pen's."""
import math
from isometric import ring, rounded


def bore(pen, s, r, depth=8.0):
    pen.hole(s, r, depth)


def ring_part(pen, outer, inner, width):
    """A plain ring: spacer, bush, washer."""
    pen.drum(0, outer, width, outer)
    if width > 6 and outer - inner > 3:
        pen.disc(width, outer - 1.5, style='t')
    bore(pen, width, inner, width)


def hex_screw(pen, d=6.0, length=24.0, flip=False, socket=False):
    r, head, high = d * .62, d * 1.25, d * .8
    if flip:
        if socket:
            pen.drum(0, head * .9, high * 1.5, head * .9)
            high *= 1.5
        else:
            pen.prism(ring(head, 6, .3), 0, high)
        pen.drum(high, r, high + length, r, shade=False)
        pen.thread(high + length * .35, high + length, r, 2.6)
        return
    pen.drum(-length, r, 0, r, shade=False)
    pen.thread(-length, -length * .35, r, 2.6)
    if socket:
        pen.drum(0, head * .9, high * 1.5, head * .9)
        pen.prism(ring(head * .45, 6), high * 1.5, high * 1.5 + .01, 'h')
    else:
        pen.drum(0, head * 1.05, 1, head * 1.05, shade=False)
        pen.prism(ring(head, 6, .3), 1, high + 1)
        pen.disc(high + 1, head * .8, style='n t')


def nut(pen, d=6.0, lock=False):
    head, high = d * 1.3, d * .85
    pen.prism(ring(head, 6, .3), 0, high)
    if lock:
        pen.drum(high, head * .78, high + d * .4, head * .78, shade=False)
        bore(pen, high + d * .4, d * .6, 6)
    else:
        pen.disc(high, head * .85, style='n t')
        bore(pen, high, d * .62, 6)


def washer(pen, d=6.0):
    pen.drum(0, d * 1.45, 2, d * 1.45, shade=False)
    bore(pen, 2, d * .7, 2)


def spring_washer(pen, d=6.0):
    pen.drum(0, d * 1.25, 3, d * 1.25, shade=False)
    bore(pen, 3, d * .72, 3)
    a = 1.2
    pen.line([(3, d * .72 * math.cos(a), d * .72 * math.sin(a)), (3, d * 1.25 * math.cos(a + .35), d * 1.25 * math.sin(a + .35))])
    a = 1.4
    pen.line([(3, d * .72 * math.cos(a), d * .72 * math.sin(a)), (3, d * 1.25 * math.cos(a + .35), d * 1.25 * math.sin(a + .35))])


def circlip(pen, r=14.0):
    gap, out, n = .38, [], 26
    for k in range(n + 1):
        t = gap + (2 * math.pi - 2 * gap) * k / n
        out.append((r * 1.12 * math.cos(t), r * 1.12 * math.sin(t)))
    ear = r * .3
    t = -gap
    out.append(((r * 1.12 - ear * 1.6) * math.cos(t + .05), (r * 1.12 - ear * 1.6) * math.sin(t + .05)))
    for k in range(n + 1):
        t = -gap - .2 - (2 * math.pi - 2 * gap - .4) * k / n
        out.append((r * .9 * math.cos(t), r * .9 * math.sin(t)))
    t = gap
    out.append(((r * 1.12 - ear * 1.6) * math.cos(t - .05), (r * 1.12 - ear * 1.6) * math.sin(t - .05)))
    pen.prism(out, 0, 2.2, lines=False)
    for t in (gap + .1, -gap - .1):
        pen.disc(2.2, 1.4, r * .95 * math.cos(t), r * .95 * math.sin(t), 'h')


def bearing(pen, outer=30.0, inner=14.0, width=15.0, sealed=False):
    pen.drum(0, outer, width, outer)
    pen.disc(width, outer * .86)
    middle = (outer * .86 + inner * 1.3) / 2
    ball = (outer * .86 - inner * 1.3) / 2 * .92
    if sealed:
        pen.disc(width, middle, style='n t')
    else:
        count = max(6, int(math.pi * middle / ball * .82))
        for k in range(count):
            t = 2 * math.pi * k / count
            pen.disc(width, ball, middle * math.cos(t), middle * math.sin(t), 'm')
    pen.disc(width, inner * 1.3)
    bore(pen, width, inner, width)


def needle_cage(pen, outer=15.0, inner=12.0, width=20.0):
    pen.drum(0, outer, width, outer, shade=False)
    t0, t1 = pen.front()
    for k in range(9):
        t = t0 + (t1 - t0) * (k + .5) / 9
        a = (outer * math.cos(t), outer * math.sin(t))
        pen.line([(3, *a), (width - 3, *a)], 'q')
    bore(pen, width, inner, width)


def oil_seal(pen, outer=22.0, inner=13.0, width=7.0):
    pen.drum(0, outer, width, outer, shade=False)
    pen.disc(width, outer * .9, style='m')
    pen.disc(width, inner * 1.25, style='m')
    bore(pen, width, inner, width)


def o_ring(pen, r=16.0, thick=3.4):
    pen.disc(0, r, style='n')
    path = pen.sheet.marks.pop().split(' d=')[1]
    w = thick * pen.scale
    pen.sheet.marks.append(f'<path class="w" stroke-width="{w + 2.4:.1f}" d={path}')
    pen.sheet.marks.append(f'<path class="b" stroke-width="{w:.1f}" d={path}')
    pen.disc(0, r + thick / 2, style='x')


def pin(pen, r=4.0, length=24.0, head=False):
    if head:
        pen.drum(-length, r, 0, r)
        pen.hole(-length + 5, 1.4, 0, r * .4, r * .4)
        pen.drum(0, r * 1.6, r * .9, r * 1.6, shade=False)
    else:
        pen.turned([(0, r * .8), (1.2, r), (length - 1.2, r), (length, r * .75)])


def hollow_pin(pen, r=4.0, length=24.0):
    pen.drum(0, r, length, r)
    bore(pen, length, r * .6, 6)


def spring_pin(pen, r=3.2, length=26.0):
    pen.drum(0, r, length, r, shade=False)
    bore(pen, length, r * .6, 4)
    t0, t1 = pen.front()
    t = t0 + (t1 - t0) * .35
    pen.line([(1, r * math.cos(t), r * math.sin(t)), (length, r * math.cos(t), r * math.sin(t))], 'm')


def stud(pen, r=4.0, length=46.0):
    pen.drum(0, r, length, r, shade=False)
    pen.thread(0, length * .28, r, 2.6)
    pen.thread(length * .6, length, r, 2.6)


def key(pen, length=20.0):
    pen.prism(rounded(-3.5, 3.5, -length / 2, length / 2, 3.2), 0, 6)


def plug(pen, d=8.0):
    """A drain plug: hexagon, flange, thread."""
    pen.drum(-d * 1.7, d * .95, 0, d * .95, shade=False)
    pen.thread(-d * 1.7, -1, d * .95, 2.6)
    pen.drum(0, d * 1.55, 3, d * 1.55, shade=False)
    pen.prism(ring(d * 1.15, 6, .3), 3, d + 3)


def adjuster(pen, length=34.0, r=4.0):
    pen.drum(-length, r, 0, r, shade=False)
    pen.thread(-length, -2, r, 2.6)
    pen.drum(0, r * 2.1, 8, r * 2.1, shade=False)
    t0, t1 = pen.front()
    for k in range(1, 8):
        t = t0 + (t1 - t0) * k / 8
        pen.line([(0, r * 2.1 * math.cos(t), r * 2.1 * math.sin(t)), (8, r * 2.1 * math.cos(t), r * 2.1 * math.sin(t))], 't')
    pen.line([(8, -r, -r), (8, r, r)], 'm')


def nipple(pen, d=6.0):
    pen.drum(-d * 1.4, d * .5, 0, d * .5, shade=False)
    pen.thread(-d * 1.4, 0, d * .5, 2.2)
    pen.prism(ring(d, 6, .3), 0, d * .8)
    pen.turned([(d * .8, d * .55), (d * 1.4, d * .4), (d * 1.5, d * .65), (d * 2.1, d * .3)], shade=False)


def ball(pen, r=7.0):
    xy = pen.p(0)
    w = r * pen.scale
    pen.disc(0, r * .8, style='x')
    pen.sheet.marks.append(f'<circle cx="{xy[0]:.1f}" cy="{xy[1]:.1f}" r="{w:.1f}"/>')
    pen.sheet.points += [(xy[0] + w * math.cos(t), xy[1] + w * math.sin(t)) for t in range(7)]
    pen.sheet.marks.append(f'<path class="t" d="M{xy[0] - w * .45:.1f} {xy[1] - w * .2:.1f}'
                           f'a{w * .5:.1f} {w * .5:.1f} 0 0 1 {w * .4:.1f} {-w * .3:.1f}"/>')


def coil(pen, r=9.0, length=40.0, turns=7, wire=2.6):
    """A coil spring: the rear halves of the turns first, then the front halves."""
    t0, t1 = pen.front()
    for front in (False, True):
        for k in range(turns + (0 if front else 1)):
            points = []
            for j in range(9):
                part = (k + (.5 if front else 0) + .5 * j / 8) / (turns + .5)
                t = t1 + (t0 + 2 * math.pi - t1) * j / 8 if not front else t0 + (t1 - t0) * j / 8
                points.append(pen.p(length * part, r * math.cos(t), r * math.sin(t)))
            pen.tube(points, wire)
    pen._extent(0, length)


def hook_spring(pen, r=7.0, length=40.0):
    """A pull spring with a hook at each end."""
    pen.tube([pen.p(-14, 0, r * .9), pen.p(-16, 0, -r * .4), pen.p(-8, 0, -r * .7), pen.p(0, 0, 0), pen.p(4, 0, r * .8)], 2.2)
    coil(pen, r, length, 9, 2.4)
    pen.tube([pen.p(length, 0, r * .8), pen.p(length + 6, 0, 0), pen.p(length + 12, 0, -r * .7),
              pen.p(length + 20, 0, -r * .2), pen.p(length + 17, 0, r * .9)], 2.2)
    pen._extent(-16, length + 20)


def split_pin(pen, length=26.0):
    a, b = pen.p(0), pen.p(length)
    pen.tube([pen.p(length, 0, -2.2), pen.p(0, 0, -2.0), pen.p(-5, 0, -4.5), pen.p(-10, 0, 0), pen.p(-5, 0, 4.5),
              pen.p(0, 0, 2.0), pen.p(length * .85, 0, 2.2)], 2.2)
    pen._extent(-10, length)


def rivet(pen, r=4.0, length=20.0):
    pen.drum(-length, r, 0, r, shade=False)
    pen.turned([(0, r * 1.9), (2.5, r * 1.7), (4.5, r * .9)], shade=False)


def hose_clamp(pen, r=12.0):
    pen.drum(0, r, 7, r, shade=False)
    bore(pen, 7, r * .88, 7)
    up = pen.at(3.5, r * .5, r * 1.05, 'u')
    up.box(-5, 6, -4, 4, -3, 4)
    up.drum(6, 2.6, 9, 2.6, shade=False)
