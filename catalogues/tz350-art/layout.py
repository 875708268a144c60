"""Places the parts of one exploded view: chains of parts pulled apart along their common axis."""
import math
import re
import shapes
from isometric import AXES, ORDER, Pen, hull

TOKEN = re.compile(r'^(\*?)([0-9A-Z]+)(/?)(?:%([\d.]+))?(?:([#|@o])(-?[\d.]+)(?:,(-?[\d.]+))?(?:x(\d+))?)?$')


class Piece:
    """One drawn copy of a part: its marks, and its outline on the page."""

    def __init__(self, item, at):
        self.reference, self.item, self.at = item.reference, item, at
        self._take(item.sheet)

    def _take(self, sheet):
        self.marks = sheet.marks
        self.outline = hull([(x + self.at[0], y + self.at[1]) for x, y in sheet.points])

    def move(self, scale, dx, dy):
        """Moves the piece and draws it again in its final size: lines keep their weight at every scale."""
        self.at = (self.at[0] * scale + dx, self.at[1] * scale + dy)
        self._take(self.item.draw(scale))


class Item:
    """A part of a chain, with the places of its copies across the axis."""

    def __init__(self, token, axis, names):
        match = TOKEN.match(token)
        if not match:
            raise ValueError(f'not a part of a chain: {token}')
        star, self.reference, flip, scale, kind, a, b, count = match.groups()
        self.star = bool(star)
        if self.reference not in names:
            raise ValueError(f'no such reference: {self.reference}')
        self.scale = float(scale or 1)
        self.axis, self.description, self.flip = axis, names[self.reference], bool(flip)
        self.sheet = self.draw(1.0)
        self.low, self.high = self.sheet.low * self.scale, self.sheet.high * self.scale
        a, b = float(a or 0), float(b or 0)
        self.places = {None: [(0, 0)], '@': [(a, b)], '|': [(-a, -b), (a, b)],
                       '#': [(-a, -b), (-a, b), (a, -b), (a, b)],
                       'o': [(a * math.cos(2 * math.pi * k / int(count or 3) + .5), a * math.sin(2 * math.pi * k / int(count or 3) + .5))
                             for k in range(int(count or 3))]}[kind]
        self.places.sort(key=lambda q: q[0] + q[1])
        across = (-AXES[axis][1], AXES[axis][0])
        sides = [x * across[0] + y * across[1] for x, y in self.sheet.points]
        self.own = (max(sides) - min(sides)) / 2.45
        self.lateral = self.own + max(math.hypot(*q) for q in self.places)
        self.s = 0.0

    def draw(self, scale):
        return shapes.draw(Pen(self.axis, self.scale * scale), self.description, self.flip)


def gap(behind, front):
    """Room between two parts of a chain, so that the nearer one leaves the farther one in sight."""
    ratio = front.own / max(behind.lateral, 1)
    factor = min(1.1, max(.35, .35 + .75 * (ratio - .6)))
    return 11 + .707 * front.own * factor


class Chain:
    def __init__(self, axis, how, place, tokens, names):
        self.axis, self.how, self.place, self.items = axis, how, place, []
        cursor, extra = 0.0, 0.0
        for token in tokens:
            if re.match(r'^[+-]\d+$', token):
                extra += float(token)
                continue
            item = Item(token, axis, names)
            if self.items:
                cursor += gap(self.items[-1], item) + extra
            item.s = cursor - item.low
            cursor, extra = item.s + item.high, 0.0
            self.items.append(item)
        self.length = cursor

    def origin(self, found):
        """The place of s = 0, and the group that the chain belongs to: None for the main one."""
        match = re.match(r'^(\w+)\[(-?\d+),(-?\d+),(-?\d+)\]$', self.place)
        if match:
            (x, y), group = found[match.group(1)]
            d = [float(match.group(k)) for k in (2, 3, 4)]
            x += (d[0] - d[1]) * AXES['x'][0]
            y += (d[0] + d[1]) * AXES['x'][1] - d[2]
        else:
            x, y = (float(q) for q in self.place.split(','))
            group = None
            if self.how == '@':
                group, x, y = (x, y), 0.0, 0.0
        star = next((i for i in self.items if i.star), None)
        if self.how == '>':
            s = 0.0
        elif self.how == '<':
            s = self.length
        else:
            s = star.s + (star.low + star.high) / 2 if star else self.length / 2
        return x - s * AXES[self.axis][0], y - s * AXES[self.axis][1], group


class Scene:
    """All pieces and axes of a drawing, in drawing order, on a page of 1400 by 1000."""

    def __init__(self, recipe, names):
        self.pieces, self.axes = [], []
        found, laid = {}, []
        for line in recipe.chains:
            chain = Chain(*line, names)
            laid.append((chain.how, *self._lay(chain, found)))
        scale, dx, dy = self.fit([q for _, group, pieces, _ in laid if not group for p in pieces for q in p.outline], recipe)
        self.scale = scale
        for how in '<=>@':
            for kind, group, pieces, axes in laid:
                if kind == how:
                    move = (min(scale, 1.2), *group) if group else (scale, dx, dy)
                    for piece in pieces:
                        piece.move(*move)
                    self.pieces += pieces
                    self.axes += [[(x * move[0] + move[1], y * move[0] + move[2]) for x, y in axis] for axis in axes]

    def _lay(self, chain, found):
        ox, oy, group = chain.origin(found)
        a, u, v = (AXES[k] for k in ORDER[chain.axis])

        def at(s, place=(0, 0)):
            return (ox + s * a[0] + place[0] * u[0] + place[1] * v[0], oy + s * a[1] + place[0] * u[1] + place[1] * v[1])
        pieces, axes = [], []
        items = chain.items
        for k, item in enumerate(items):
            middle = item.s + (item.low + item.high) / 2
            found.setdefault(item.reference, (at(middle, item.places[0] if len(item.places) == 1 else (0, 0)), group))
            for place in item.places:
                if place != (0, 0):
                    before, after = items[max(k - 1, 0)], items[min(k + 1, len(items) - 1)]
                    low = min(item.s + item.low, before.s + before.high - 2)
                    high = max(item.s + item.high, after.s + after.low + 2)
                    axes.append([at(low, place), at(high, place)])
                pieces.append(Piece(item, at(item.s, place)))
        central = [i for i in items if (0, 0) in i.places]
        if len(central) > 1 or (central and chain.how in '<>'):
            low, high = central[0].s + central[0].low, central[-1].s + central[-1].high
            axes.append([at(low - (36 if chain.how == '>' else 16)), at(high + (36 if chain.how == '<' else 16))])
        return group, pieces, axes

    @staticmethod
    def fit(points, recipe):
        """Scale and shift that centre the points in the recipe's area."""
        x0, x1 = min(q[0] for q in points), max(q[0] for q in points)
        y0, y1 = min(q[1] for q in points), max(q[1] for q in points)
        left, top, right, bottom = recipe.area
        scale = min((right - left) / (x1 - x0), (bottom - top) / (y1 - y0), recipe.largest)
        return scale, (left + right - scale * (x0 + x1)) / 2, (top + bottom - scale * (y0 + y1)) / 2
