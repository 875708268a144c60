"""Isometric projection and the pen that draws solids as line art.

Every axis of the page points towards the viewer, so a solid is drawn from its far end to its near end, each
face filled with the page's colour: what is nearer covers what is farther, and no hidden line is left.
"""
import math

C30, S30 = math.cos(math.radians(30)), 0.5
AXES = {'x': (C30, S30), 'y': (-C30, S30), 'z': (0.0, -1.0)}
ORDER = {'x': 'xyz', 'y': 'yxz', 'z': 'zxy'}


def number(value):
    """One decimal, without what SVG doesn't need."""
    text = f'{value:.1f}'
    if text.endswith('.0'):
        text = text[:-2]
    return '0' if text == '-0' else text


def hull(points):
    """Convex hull of 2D points."""
    points = sorted(set((round(x, 1), round(y, 1)) for x, y in points))
    if len(points) < 3:
        return points

    def half(sequence):
        out = []
        for p in sequence:
            while len(out) > 1 and ((out[-1][0] - out[-2][0]) * (p[1] - out[-2][1])
                                    - (out[-1][1] - out[-2][1]) * (p[0] - out[-2][0])) <= 0:
                out.pop()
            out.append(p)
        return out[:-1]
    return half(points) + half(points[::-1])


class Sheet:
    """Collects the marks of one part: SVG elements, and the points that its outline is made from."""

    def __init__(self):
        self.marks = []
        self.points = []
        self.low = self.high = 0.0

    def mark(self, path, style=''):
        self.marks.append(f'<path{" class=" + chr(34) + style + chr(34) if style else ""} d="{path}"/>')


class Pen:
    """Draws in local coordinates: s along the part's axis (towards the viewer), u and v across it."""

    def __init__(self, axis, scale=1.0, sheet=None, origin=(0.0, 0.0), offset=None):
        self.axis, self.scale, self.sheet, self.origin = axis, scale, sheet or Sheet(), origin
        self.a, self.u, self.v = (AXES[k] for k in ORDER[axis])
        self.root = offset is None
        cross = self.u[0] * self.v[1] - self.u[1] * self.v[0]
        self.turn = 1 if cross > 0 else -1
        # A unit circle across the axis: half axes and rotation of its picture, and the axis in the circle's own plane.
        e, f = (self.u[0] + self.v[1]) / 2, (self.u[0] - self.v[1]) / 2
        g, h = (self.u[1] + self.v[0]) / 2, (self.u[1] - self.v[0]) / 2
        q, r = math.hypot(e, h), math.hypot(f, g)
        self.major, self.minor = q + r, abs(q - r)
        self.rotation = math.degrees((math.atan2(g, f) + math.atan2(h, e)) / 2)
        self.along = ((self.a[0] * self.v[1] - self.a[1] * self.v[0]) / cross,
                      (self.u[0] * self.a[1] - self.u[1] * self.a[0]) / cross)

    def p(self, s, u=0.0, v=0.0):
        k = self.scale
        return (self.origin[0] + k * (s * self.a[0] + u * self.u[0] + v * self.v[0]),
                self.origin[1] + k * (s * self.a[1] + u * self.u[1] + v * self.v[1]))

    def at(self, s, u=0.0, v=0.0, axis='s'):
        """A pen for a detail: its origin at a place of this part, its axis one of this part's."""
        letter = ORDER[self.axis]['suv'.index(axis)]
        return type(self)(letter, self.scale, self.sheet, self.p(s, u, v), ())

    def facing(self, s, u, v, curved=False):
        """Told before each face which way it looks. Line art has no use for it; a shading pen has."""

    # --- paths ---
    def _point(self, xy):
        self.sheet.points.append(xy)
        return f'{number(xy[0])} {number(xy[1])}'

    def _extent(self, *along):
        if self.root:
            self.sheet.low = min(self.sheet.low, *along)
            self.sheet.high = max(self.sheet.high, *along)

    def line(self, points, style='n', close=False):
        """A line through local points (s, u, v); closed and filled if asked."""
        path = 'M' + 'L'.join(self._point(self.p(*q)) for q in points) + ('Z' if close else '')
        self.sheet.mark(path, style)

    def face(self, points, style=''):
        """A flat face through local points."""
        self._extent(*(q[0] for q in points))
        (a, b, c), (d, e, f) = ([points[k][n] - points[0][n] for n in range(3)] for k in (1, 2))
        normal = (b * f - c * e, c * d - a * f, a * e - b * d)
        self.facing(*(q if sum(normal) > 0 else -q for q in normal))
        self.line(points, style, True)

    def rim(self, s, r, angle, u=0.0, v=0.0):
        return self.p(s, u + r * math.cos(angle), v + r * math.sin(angle))

    def _arc(self, r, start, end, to):
        large = 1 if abs(end - start) > math.pi else 0
        sweep = 1 if (end > start) == (self.turn > 0) else 0
        return (f'A{number(r * self.major * self.scale)} {number(r * self.minor * self.scale)} '
                f'{number(self.rotation)} {large} {sweep} {self._point(to)}')

    def disc(self, s, r, u=0.0, v=0.0, style=''):
        """A circle across the axis."""
        self._extent(s)
        self.facing(1, 0, 0)
        for k in range(12):
            self.sheet.points.append(self.rim(s, r, k * math.pi / 6, u, v))
        a, b = self.rim(s, r, 0, u, v), self.rim(s, r, math.pi, u, v)
        self.sheet.mark('M' + self._point(a) + self._arc(r, 0, math.pi, b) + self._arc(r, math.pi, 2 * math.pi, a)
                        + 'Z', style)

    def arc(self, s, r, start, end, u=0.0, v=0.0, style='t'):
        """Part of a circle, angles in radians."""
        a, b = self.rim(s, r, start, u, v), self.rim(s, r, end, u, v)
        self.sheet.mark('M' + self._point(a) + self._arc(r, start, end, b), style)

    def front(self):
        """The angles between which a cylinder's side faces the viewer."""
        middle = math.atan2(-self.along[1], -self.along[0])
        return middle - math.pi / 2, middle + math.pi / 2

    def hole(self, s, r, depth=6.0, u=0.0, v=0.0, style='h'):
        """A bore in a face at s, with the visible part of its bottom rim."""
        self.disc(s, r, u, v, style)
        d = (-depth * self.along[0], -depth * self.along[1])
        reach = math.hypot(*d)
        if reach < 2 * r:
            inside = math.acos(reach / (2 * r))
            back = math.atan2(d[1], d[0]) + math.pi
            self.arc(s - depth, r, back - inside, back + inside, u, v)

    # --- solids ---
    def drum(self, s0, r0, s1, r1, u=0.0, v=0.0, shade=True, style=''):
        """A cylinder or cone from s0 (far) to s1 (near), with its near face."""
        self._extent(s0, s1)
        self.facing(0, 1, 1, True)
        d = ((s1 - s0) * self.along[0], (s1 - s0) * self.along[1])
        reach = math.hypot(*d)
        if reach > abs(r0 - r1) + 1e-6:
            middle, spread = math.atan2(d[1], d[0]), math.acos((r0 - r1) / reach)
            t0, t1 = middle - spread, middle + spread
            far0, near1 = self.rim(s0, r0, t0, u, v), self.rim(s1, r1, t1, u, v)
            self.sheet.mark('M' + self._point(self.rim(s0, r0, t1, u, v))
                            + self._arc(r0, t1, t0 + 2 * math.pi, far0)
                            + 'L' + self._point(self.rim(s1, r1, t0, u, v))
                            + self._arc(r1, t0, t1, near1) + 'Z', style)
            if shade and min(r0, r1) > 5 and s1 - s0 > 9:
                self._shade(s0, r0, s1, r1, t0, t1, u, v)
        elif r0 > r1:
            self.disc(s0, r0, u, v, style)
        self.disc(s1, r1, u, v, style)

    def _shade(self, s0, r0, s1, r1, t0, t1, u, v):
        low = t0 if self.rim(0, 1, t0)[1] + .3 * self.rim(0, 1, t0)[0] > \
            self.rim(0, 1, t1)[1] + .3 * self.rim(0, 1, t1)[0] else t1
        inward = -1 if low == t0 else 1
        lines = []
        for k, step in enumerate((.16, .34, .56)):
            t = low + inward * step
            a, b = self.rim(s0 + (s1 - s0) * .06 * (k + 1), r0, t, u, v), self.rim(s1 - (s1 - s0) * .1 * k, r1, t, u, v)
            lines.append('M' + self._point(a) + 'L' + self._point(b))
        self.sheet.mark(''.join(lines), 't')

    def turned(self, profile, u=0.0, v=0.0, shade=True):
        """A turned part: (s, radius) from far to near; two entries at one s are a step."""
        for (s0, r0), (s1, r1) in zip(profile, profile[1:]):
            if s1 > s0:
                self.drum(s0, r0, s1, r1, u, v, shade)
            elif r1 < r0:
                self.disc(s1, r1, u, v)

    def thread(self, s0, s1, r, pitch=3.0, u=0.0, v=0.0):
        """Thread lines on a cylinder."""
        t0, t1 = self.front()
        s, parts = s0 + pitch / 2, []
        while s < s1 - .5:
            a, b = self.rim(s, r, t0, u, v), self.rim(s, r, t1, u, v)
            parts.append('M' + self._point(a) + self._arc(r, t0, t1, b))
            s += pitch
        if parts:
            self.sheet.mark(''.join(parts), 't')

    def prism(self, outline, s0, s1, style='', lines=True):
        """A plate or prism: an outline of (u, v) points extruded from s0 to s1."""
        self._extent(s0, s1)
        area = sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(outline, outline[1:] + outline[:1]))
        ring = outline if area > 0 else outline[::-1]
        n = len(ring)
        seen = []
        for k in range(n):
            (u0, v0), (u1, v1) = ring[k], ring[(k + 1) % n]
            seen.append((v1 - v0) - (u1 - u0) > 1e-9)
        runs, start = [], next((k for k in range(n) if seen[k] and not seen[k - 1]), None)
        if start is not None:
            k = 0
            while k < n:
                i = (start + k) % n
                if seen[i]:
                    run = [ring[i]]
                    while k < n and seen[(start + k) % n]:
                        run.append(ring[(start + k + 1) % n])
                        k += 1
                    runs.append(run)
                else:
                    k += 1
        for run in sorted(runs, key=lambda r: sum(q[0] + q[1] for q in r) / len(r)):
            across = (run[-1][1] - run[0][1], run[0][0] - run[-1][0])
            self.facing(0, *across, len(run) > 3)
            self.line([(s1, *q) for q in run] + [(s0, *q) for q in run[::-1]], style, True)
            edges = []
            for before, here, after in zip(run, run[1:], run[2:]):
                bend = abs(math.atan2(after[1] - here[1], after[0] - here[0])
                           - math.atan2(here[1] - before[1], here[0] - before[0]))
                if lines and .5 < min(bend, 2 * math.pi - bend):
                    edges.append('M' + self._point(self.p(s0, *here)) + 'L' + self._point(self.p(s1, *here)))
            if edges:
                self.sheet.mark(''.join(edges), 'm')
        self.facing(1, 0, 0)
        self.line([(s1, *q) for q in ring], style, True)

    def box(self, s0, s1, u0, u1, v0, v1):
        self.prism([(u0, v0), (u1, v0), (u1, v1), (u0, v1)], s0, s1)

    def tube(self, points, width, steps=True):
        """A round bar, hose or cable along page points (already projected), smoothed when asked."""
        if steps and len(points) > 2:
            path = 'M' + self._point(points[0])
            for k in range(len(points) - 1):
                a, b = points[max(k - 1, 0)], points[k]
                c, d = points[k + 1], points[min(k + 2, len(points) - 1)]
                self.sheet.points.append(b)
                path += (f'C{number(b[0] + (c[0] - a[0]) / 6)} {number(b[1] + (c[1] - a[1]) / 6)} '
                         f'{number(c[0] - (d[0] - b[0]) / 6)} {number(c[1] - (d[1] - b[1]) / 6)} '
                         + self._point(c))
        else:
            path = 'M' + 'L'.join(self._point(q) for q in points)
        w = width * self.scale
        for q in points:
            self.sheet.points += [(q[0] - w / 2, q[1] - w / 2), (q[0] + w / 2, q[1] + w / 2)]
        self.sheet.marks.append(f'<path class="w" stroke-width="{number(w + 2.6)}" d="{path}"/>')
        self.sheet.marks.append(f'<path class="b" stroke-width="{number(w)}" d="{path}"/>')


def rounded(u0, u1, v0, v1, r, steps=4):
    """A rectangle with rounded corners, as an outline."""
    out = []
    for cu, cv, start in ((u1 - r, v0 + r, -90), (u1 - r, v1 - r, 0), (u0 + r, v1 - r, 90), (u0 + r, v0 + r, 180)):
        for k in range(steps + 1):
            t = math.radians(start + 90 * k / steps)
            out.append((cu + r * math.cos(t), cv + r * math.sin(t)))
    return out


def ring(r, n, phase=0.0):
    """A regular polygon, as an outline."""
    return [(r * math.cos(phase + 2 * math.pi * k / n), r * math.sin(phase + 2 * math.pi * k / n)) for k in range(n)]
