"""Bars, levers, cables, frames and blades: what is bent or cut from bar, wire and sheet."""
import math
from isometric import ring, rounded
from parts_turned import bore


def bent(pen, points):
    return [pen.p(*q) for q in points]


def lever(pen, length=110.0, knob=True):
    """A flat arm on a boss, bent, with a handle."""
    out = [(-11, -4), (0, -12), (11, -4), (6, length * .55), (16, length * .9), (8, length * .93), (-4, length * .58)]
    pen.prism(out, 0, 7)
    pen.drum(7, 11, 12, 11, shade=False)
    bore(pen, 12, 6, 12)
    if knob:
        top = pen.at(3.5, 12, length * .9, 'v')
        top.turned([(0, 5), (6, 5), (10, 11), (20, 11), (26, 6)], shade=False)


def hand_lever(pen, length=120.0):
    """A brake or clutch lever as on a handlebar."""
    pen.box(0, 16, -14, 14, -12, 12)
    pen.hole(16, 5, 10, 0, 2)
    pen.tube(bent(pen, [(8, 8, 0), (8, 30, -6), (8, 70, -16), (8, length, -10)]), 9)
    a = pen.p(8, length, -10)
    w = 7 * pen.scale
    pen.sheet.marks.append(f'<circle cx="{a[0]:.1f}" cy="{a[1]:.1f}" r="{w:.1f}"/>')


def cable(pen, length=220.0, bow=60.0, ends=True):
    a, b = (-length / 2, 0), (length / 2, 0)
    k = pen.scale
    o = pen.origin
    pts = [(a[0], a[1]), (a[0] + length * .18, -bow * .9), (0, -bow * .1), (length * .28, bow * .8), (b[0], b[1])]
    pts = [(o[0] + x * k, o[1] + y * k) for x, y in pts]
    if ends:
        pen.tube([pts[0], (pts[0][0] - 10 * k, pts[0][1] + 14 * k)], 2)
        pen.tube([pts[-1], (pts[-1][0] + 10 * k, pts[-1][1] - 14 * k)], 2)
    pen.tube(pts, 5)
    if ends:
        for q in (pts[0], pts[-1]):
            w = 4.5 * k
            pen.sheet.marks.append(f'<circle cx="{q[0]:.1f}" cy="{q[1]:.1f}" r="{w:.1f}"/>')


def harness(pen, length=240.0):
    k, o = pen.scale, pen.origin
    at = lambda x, y: (o[0] + x * k, o[1] + y * k)
    for x, y, up in ((-.45, -.28, -60), (-.2, -.1, 52), (.1, .05, -58), (.3, .15, 50)):
        x, y = x * length, y * length * .5
        pen.tube([at(x, y), at(x + 16, y + up * .5), at(x + 30, y + up)], 3.4)
        cx, cy = at(x + 30, y + up)
        w, h = 10 * k, 7 * k
        pen.sheet.marks.append(f'<rect x="{cx - w:.1f}" y="{cy - h:.1f}" width="{2 * w:.1f}" height="{2 * h:.1f}"/>')
        pen.sheet.points += [(cx - w, cy - h), (cx + w, cy + h)]
    pen.tube([at(-.5 * length, -.16 * length), at(-.2 * length, -.05 * length), at(.1 * length, .02 * length), at(.5 * length, .12 * length)], 8)


def hose(pen, length=120.0, width=13.0):
    k, o = pen.scale, pen.origin
    pts = [(o[0] + x * k, o[1] + y * k) for x, y in
           ((-length / 2, -length * .2), (-length * .2, -length * .3), (length * .1, length * .15), (length / 2, length * .2))]
    pen.tube(pts, width)
    a = math.atan2(pts[3][1] - pts[2][1], pts[3][0] - pts[2][0])
    w = width * k / 2
    pen.sheet.marks.append(f'<ellipse cx="{pts[3][0]:.1f}" cy="{pts[3][1]:.1f}" rx="{w * .45:.1f}" ry="{w * 1.15:.1f}" '
                           f'transform="rotate({math.degrees(a):.0f} {pts[3][0]:.1f} {pts[3][1]:.1f})"/>')


def handlebar(pen, mirror=1):
    pen.tube(bent(pen, [(-150, 0, -50), (-60, 10 * mirror, 0), (20, 20 * mirror, 14), (90, 44 * mirror, 22), (170, 48 * mirror, 22)]), 15)
    flat = pen.at(-150, 0, -50)
    flat.drum(-4, 13, 4, 13, shade=False)
    flat.hole(4, 5, 6)
    pen._extent(-150, 170)


def grip(pen, length=70.0):
    pen.turned([(0, 13), (length - 8, 11), (length - 8, 16), (length, 15)])
    t0, t1 = pen.front()
    for k in range(6):
        pen.arc(10 + k * 8, 12.5 - k * .2, t0, t1, style='m')


def knob(pen, r=17.0):
    pen.drum(0, 6, 10, 6)
    lobes = []
    for j in range(40):
        t = 2 * math.pi * j / 40
        lobes.append(((r + 2.2 * math.cos(5 * t)) * math.cos(t), (r + 2.2 * math.cos(5 * t)) * math.sin(t)))
    pen.prism(lobes, 10, 22, lines=False)
    pen.disc(22, r * .5, style='m')


def boot(pen, r=18.0, length=40.0):
    s, n = 0.0, 5
    for k in range(n):
        w = r * (1.25 - .13 * k)
        pen.turned([(s, w * .8), (s + length / n * .5, w), (s + length / n, w * .76)], shade=False)
        s += length / n
    pen.hole(s, r * .4, 8)


def fork(pen, k=1.0):
    horseshoe = [(29 * k * math.cos(t), 29 * k * math.sin(t)) for t in [math.pi * (-.12 + 1.24 * j / 16) for j in range(17)]]
    hollow = [(20 * k * math.cos(t), 20 * k * math.sin(t)) for t in [math.pi * (1.12 - 1.24 * j / 16) for j in range(17)]]
    stem = 6
    top = horseshoe[:stem + 1] + [(11 * k, 58 * k), (-11 * k, 58 * k)] + horseshoe[17 - stem - 1:]
    pen.prism(top + hollow, 0, 10 * k)
    pen.drum(-6 * k, 13 * k, 18 * k, 13 * k, 0, 62 * k)
    pen.hole(18 * k, 8 * k, 16 * k, 0, 62 * k)


def tie_rod(pen, length=150.0):
    pen.drum(0, 4.5, length, 4.5, shade=False)
    pen.thread(0, length * .16, 4.5, 2.6)
    pen.thread(length * .84, length - 12, 4.5, 2.6)
    end = pen.at(length, 0, 0, 'v')
    end.drum(-5, 10, 5, 10, shade=False)
    end.hole(5, 5, 8)


def ball_joint(pen):
    pen.drum(-34, 4, -10, 4, shade=False)
    pen.thread(-34, -12, 4, 2.6)
    up = pen.at(0, 0, 0, 'v')
    up.drum(-7, 12, 7, 12, shade=False)
    up.disc(7, 7, style='m')
    up.drum(7, 4, 30, 4, shade=False)
    up.thread(14, 30, 4, 2.6)


def tine(pen, mirror=1, k=1.0):
    out = [(-9, 14), (9, 14), (10, -30), (16, -56), (34, -82), (28, -88), (4, -66), (-6, -34)]
    pen.prism([(a * k * mirror, b * k) for a, b in out], 0, 6 * k)
    blade = [(34, -82), (28, -88)]
    pen.face([(6 * k, 34 * k * mirror, -82 * k), (6 * k, 28 * k * mirror, -88 * k), (34 * k, 28 * k * mirror, -92 * k), (34 * k, 36 * k * mirror, -84 * k)])
    pen.hole(6 * k, 3.6 * k, 5, 0, 6 * k)
    pen.hole(6 * k, 3.6 * k, 5, 0, -10 * k)


def rotor(pen, length=160.0, plates=3):
    s = 0
    for k in range(plates):
        pen.drum(s, 17, s + length / plates - 8, 17)
        s += length / plates - 8
        pen.prism(ring(44, 4, .4), s, s + 7)
        for j in range(4):
            t = .4 + math.pi / 2 * j
            pen.hole(s + 7, 3.6, 6, 34 * math.cos(t), 34 * math.sin(t))
        s += 8
    pen.drum(s - 1, 17, s + 8, 17, shade=False)
    bore(pen, s + 8, 11, 16)


def finger_bar(pen, length=420.0):
    pen.box(0, length, -20, 20, -5, 5)
    top = pen.at(0, 0, 5, 'v')
    n = 10
    for k in range(n):
        s = length * (k + .5) / n
        pen.face([(s - 7, 20, 5), (s + 7, 20, 5), (s + 1.5, 54, 2), (s - 1.5, 54, 2)])


def knife(pen, length=400.0):
    pen.box(0, length, -6, 6, 0, 5)
    n = 11
    for k in range(n):
        s = length * (k + .5) / n
        pen.face([(s - 17, 4, 6), (s + 17, 4, 6), (s + 5, 40, 6), (s - 5, 40, 6)])
        pen.line([(s - 14, 10, 6), (s - 3, 38, 6)], 't')


def section(pen, k=1.0):
    pen.prism([(-20 * k, -16 * k), (20 * k, -16 * k), (7 * k, 30 * k), (-7 * k, 30 * k)], 0, 3.4)
    pen.hole(3.4, 3.4, 3, -10 * k, -8 * k)
    pen.hole(3.4, 3.4, 3, 10 * k, -8 * k)


def finger(pen):
    pen.prism([(-13, -14), (13, -14), (11, 4), (3, 46), (-3, 46), (-11, 4)], 0, 10)
    pen.hole(10, 4, 8, 0, -5)
    pen.line([(10, -9, 6), (10, 0, 44), (10, 9, 6)], 'm')


def mouldboard(pen, w=300.0, h=96.0):
    """A curved sheet that lies along u."""
    curve = [(30 * (1 - math.cos(t)) - 6, h * (t / 1.9)) for t in [1.9 * j / 10 for j in range(11)]]
    low, high = -w / 2, w / 2
    side = [(c + 4, v - h / 2) for c, v in curve]
    pen.face([(c - 8, high, v) for c, v in side] + [(c, high, v) for c, v in side[::-1]])
    pen.face([(c, low, v) for c, v in side] + [(c, high, v) for c, v in side[::-1]])
    for k in (2, 4, 6, 8):
        c, v = side[k]
        pen.line([(c, low + 8, v), (c, high - 8, v)], 't')


def scraper(pen, w=280.0):
    pen.box(0, 6, -w / 2, w / 2, -12, 12)
    for k in range(5):
        pen.hole(6, 3.6, 5, (k - 2) * w * .22, 3)


def frame(pen, w=150.0, d=180.0):
    """A welded frame of square tube, lying flat."""
    t = 14
    pen.box(0, t, -w / 2, w / 2, -t / 2, t / 2)
    for u in (-w / 2 + t / 2, w / 2 - t / 2):
        if u < 0:
            pen.box(t, d - t, u - t / 2, u + t / 2, -t / 2, t / 2)
    pen.box(d * .45, d * .45 + t, -w / 2 + t, w / 2 - t, -t / 2, t / 2)
    pen.box(t, d - t, w / 2 - t, w / 2, -t / 2, t / 2)
    pen.box(d - t, d, -w / 2, w / 2, -t / 2, t / 2)
    for u in (-w * .3, w * .3):
        pen.hole(d, 4, 8, u, 0)


def drawbar(pen, length=170.0):
    pen.box(0, length, -9, 9, -9, 9)
    pen.box(length, length + 6, -20, 20, -20, 20)
    eye = pen.at(-12, 0, 0, 'v')
    eye.drum(-7, 18, 7, 18, shade=False)
    eye.hole(7, 9, 12)


def sector(pen):
    out = []
    n = 13
    for j in range(n):
        t = math.pi * (.12 + .76 * j / n)
        step = math.pi * .76 / n
        out += [(58 * math.cos(t), 58 * math.sin(t)), (58 * math.cos(t + step * .5), 58 * math.sin(t + step * .5)),
                (50 * math.cos(t + step * .55), 50 * math.sin(t + step * .55)), (50 * math.cos(t + step * .95), 50 * math.sin(t + step * .95))]
    out += [(-14, -10), (0, -16), (14, -10)]
    pen.prism(out, 0, 7, lines=False)
    pen.hole(7, 7, 7, 0, 0)
    pen.hole(7, 4, 7, 0, 32)


def share(pen):
    pen.prism([(-60, -10), (0, -38), (60, -10), (46, 0), (0, -20), (-46, 0)], 0, 8)
    pen.hole(8, 4, 6, -30, -12)
    pen.hole(8, 4, 6, 30, -12)


def chain(pen, links=9, k=1.0):
    """Links seen flat and on edge by turns, along the pen's axis."""
    for n in range(links):
        a, b = pen.p(n * 15 * k, 0, 0), pen.p(n * 15 * k + 20 * k, 0, 0)
        angle = math.degrees(math.atan2(b[1] - a[1], b[0] - a[0]))
        length, high = math.hypot(b[0] - a[0], b[1] - a[1]), (10 if n % 2 == 0 else 4) * k * pen.scale
        cx, cy = (a[0] + b[0]) / 2, (a[1] + b[1]) / 2
        pen.sheet.marks.append(f'<rect x="{cx - length / 2:.1f}" y="{cy - high / 2:.1f}" width="{length:.1f}" height="{high:.1f}" '
                               f'rx="{high / 2:.1f}" transform="rotate({angle:.0f} {cx:.1f} {cy:.1f})"/>')
        pen.sheet.points += [(a[0], a[1] - high), (b[0], b[1] + high)]
    pen._extent(0, links * 15 * k)


def belt(pen, r=52.0, reach=110.0):
    """A closed belt over two unseen pulleys, lying across the axis."""
    out = [(r * .6 * math.cos(t), reach / 2 + r * .6 * math.sin(t)) for t in [math.pi * j / 12 for j in range(13)]]
    out += [(r * .8 * math.cos(t), -reach / 2 + r * .8 * math.sin(t)) for t in [math.pi * (1 + j / 12) for j in range(13)]]
    pen.prism(out, 0, 11, lines=False)
    inner = [(a * .84, b * .93) for a, b in out]
    pen.line([(11, *q) for q in inner], 'h', True)
