"""Finds places for the numbered balloons: near their part, clear of everything, leaders that don't cross."""
import math

RADIUS = 15


def cross(o, a, b):
    return (a[0] - o[0]) * (b[1] - o[1]) - (a[1] - o[1]) * (b[0] - o[0])


def crosses(a, b, c, d):
    return cross(a, b, c) * cross(a, b, d) < 0 and cross(c, d, a) * cross(c, d, b) < 0


def distance(p, a, b):
    """Of a point to a segment."""
    dx, dy = b[0] - a[0], b[1] - a[1]
    t = ((p[0] - a[0]) * dx + (p[1] - a[1]) * dy) / (dx * dx + dy * dy or 1)
    t = min(1, max(0, t))
    return math.hypot(p[0] - a[0] - t * dx, p[1] - a[1] - t * dy)


def inside(p, outline):
    signs = [cross(outline[k - 1], outline[k], p) for k in range(len(outline))]
    return all(s >= 0 for s in signs) or all(s <= 0 for s in signs)


def apart(p, outline):
    """Distance of a point to a convex outline, 0 inside."""
    if inside(p, outline):
        return 0.0
    return min(distance(p, outline[k - 1], outline[k]) for k in range(len(outline)))


class Box:
    def __init__(self, outline):
        self.outline = outline
        self.x0, self.x1 = min(p[0] for p in outline), max(p[0] for p in outline)
        self.y0, self.y1 = min(p[1] for p in outline), max(p[1] for p in outline)

    def near(self, x0, y0, x1, y1, margin):
        return self.x0 - margin < x1 and x0 < self.x1 + margin and self.y0 - margin < y1 and y0 < self.y1 + margin


class Balloon:
    def __init__(self, text, targets):
        self.text, self.targets = text, targets
        self.half = RADIUS if len(text) <= 3 else 5 + 4.1 * len(text)
        self.cost, self.at, self.end = 0.0, None, None

    def start(self):
        """Where the leader leaves the balloon."""
        dx, dy = self.end[0] - self.at[0], self.end[1] - self.at[1]
        length = math.hypot(dx, dy) or 1
        if self.half == RADIUS:
            k = RADIUS / length
        else:
            k = min(self.half / abs(dx) if dx else 9e9, 11 / abs(dy) if dy else 9e9)
        return self.at[0] + dx * k, self.at[1] + dy * k


def anchors(outline):
    """Points of a part that a leader may end in: well inside, near the middle and towards each side."""
    cx = (min(p[0] for p in outline) + max(p[0] for p in outline)) / 2
    cy = (min(p[1] for p in outline) + max(p[1] for p in outline)) / 2
    out = [(cx, cy)]
    step = max(1, len(outline) // 7)
    for p in outline[::step]:
        reach = math.hypot(p[0] - cx, p[1] - cy)
        k = max(.3, 1 - 10 / max(reach, 1)) if reach > 14 else .55
        out.append((cx + (p[0] - cx) * k, cy + (p[1] - cy) * k))
    return out


def candidates(balloon, boxes, axes, page):
    found = []
    for piece, later in balloon.targets[-3:]:
        for end in anchors(piece.outline):
            # The leader has to end in what is seen of the part.
            hidden = any(inside(end, other) for other in later)
            for k in range(20):
                t = math.pi * k / 10 + .13
                n = (math.cos(t), math.sin(t))
                for length in (44, 58, 74, 92, 114, 142, 176, 216):
                    x, y = end[0] + n[0] * length, end[1] + n[1] * length
                    w, h = balloon.half + 5, (RADIUS if balloon.half == RADIUS else 11) + 5
                    if x - w < page[0] or x + w > page[2] or y - h < page[1] or y + h > page[3]:
                        continue
                    cost = length * .5 + (700 if hidden else 0)
                    for box in boxes:
                        if box.near(min(x - w, end[0]), min(y - h, end[1]), max(x + w, end[0]), max(y + h, end[1]), 6):
                            if box.near(x - w, y - h, x + w, y + h, 0):
                                d = min(apart((x + s * (balloon.half - RADIUS), y), box.outline) for s in (-1, 0, 1))
                                if d < RADIUS + 5:
                                    cost += 900
                            if box.outline is not piece.outline:
                                for part in (.15, .3, .45, .6, .75, .88):
                                    q = (end[0] + (x - end[0]) * part, end[1] + (y - end[1]) * part)
                                    if inside(q, box.outline):
                                        cost += 30
                    for a, b in axes:
                        if distance((x, y), a, b) < balloon.half + 3:
                            cost += 60
                    found.append((cost, (x, y), end))
    found.sort(key=lambda c: (c[0], c[1], c[2]))
    return found[:140]


def clash(a, b):
    """What two placed balloons cost each other."""
    cost = 0
    if abs(a.at[0] - b.at[0]) < a.half + b.half + 8 and abs(a.at[1] - b.at[1]) < 2 * RADIUS + 8:
        cost += 900
    if crosses(a.at, a.end, b.at, b.end):
        cost += 400
    for p, q in ((a, b), (b, a)):
        if distance(p.at, q.at, q.end) < (RADIUS if p.half == RADIUS else p.half) + 6:
            cost += 400
    if distance(a.end, b.at, b.end) < 5 or distance(b.end, a.at, a.end) < 5:
        cost += 60
    return cost


def place(balloons, outlines, axes, page):
    """Sets the place and the leader's end of every balloon."""
    boxes = [Box(o) for o in outlines if len(o) > 2]
    choice = {}
    for balloon in balloons:
        choice[balloon] = candidates(balloon, boxes, axes, page)
        if not choice[balloon]:
            raise ValueError(f'no room for balloon {balloon.text}')
    order = sorted(balloons, key=lambda b: -choice[b][0][0])
    for turn in range(8):
        changed = False
        for balloon in order:
            before, best = (balloon.at, balloon.end), None
            for cost, at, end in choice[balloon]:
                if best and cost >= best[0]:
                    break
                balloon.at, balloon.end = at, end
                for other in balloons:
                    if other is not balloon and other.at:
                        cost += clash(balloon, other)
                        if best and cost >= best[0]:
                            break
                if not best or cost < best[0]:
                    best = (cost, at, end)
            balloon.cost, balloon.at, balloon.end = best
            changed |= before != (balloon.at, balloon.end)
        if not changed:
            break
