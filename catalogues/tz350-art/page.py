"""Puts one drawing together: parts, axes, frames, links, balloons, as an SVG document."""
from xml.sax.saxutils import escape, quoteattr
import balloons
import shapes
from isometric import Pen, number
from layout import Scene

PAPER = {'paper': '#ffffff', 'ink': '#000000', 'soft': '#444444'}
NIGHT = {'paper': '#16212c', 'ink': '#e6edf3', 'soft': '#9fb2c4'}

STYLE = """.p{fill:%(paper)s;stroke:%(ink)s;stroke-width:1.3;stroke-linejoin:round;stroke-linecap:round}
.n,.t,.m,.s,.q,.x{fill:none}.t{stroke-width:.6}.m{stroke-width:.9}.s{stroke-width:4}.q{stroke-width:2.4}.x{stroke:none}
.k{fill:%(ink)s;stroke:none}.w{fill:none;stroke:%(ink)s}.b{fill:none;stroke:%(paper)s}
.l{font-family:sans-serif;text-anchor:middle;fill:%(ink)s;stroke:none}
.a{fill:none;stroke:%(soft)s;stroke-width:.8;stroke-dasharray:16 4 3 4}
.f{fill:none;stroke:%(ink)s;stroke-width:1;stroke-dasharray:18 5 3 5}
.o{fill:none;stroke:%(ink)s;stroke-width:1.4}.r{fill:none;stroke:%(ink)s;stroke-width:.9}
"""
LINK_WIDTH, LINK_HEIGHT = 190, 120


def moved(marks, at):
    return f'<g transform="translate({number(at[0])} {number(at[1])})">{"".join(marks)}</g>'


def rectangle(x, y, w, h):
    return [(x, y), (x + w, y), (x + w, y + h), (x, y + h)]


class Corner:
    """A frame as the target of a leader."""

    def __init__(self, outline):
        self.outline = outline


class Drawing:
    def __init__(self, recipe, names, hotspots, title):
        """names: reference to description; hotspots: reference to hotspot string."""
        self.recipe, self.names, self.hotspots, self.title = recipe, names, hotspots, title
        self.ink = NIGHT if 'dark' in recipe.flags else PAPER
        self.scene = Scene(recipe, names)
        self.links = [self._link(*link) for link in recipe.links]
        self.kits = [self._kit(*kit) for kit in recipe.kits]
        self.balloons = self._balloons()

    def _kit(self, reference, parts):
        points = [q for p in self.scene.pieces if p.reference in parts for q in p.outline]
        x0, x1 = min(q[0] for q in points) - 20, max(q[0] for q in points) + 20
        y0, y1 = min(q[1] for q in points) - 20, max(q[1] for q in points) + 20
        return reference, rectangle(x0, y0, x1 - x0, y1 - y0)

    def _link(self, hotspot, at, caption, descriptions):
        x, y = at
        out = [f'<rect class="f" x="{x}" y="{y}" width="{LINK_WIDTH}" height="{LINK_HEIGHT}"/>']
        sheets = []
        for description in descriptions:
            pen = Pen('x', 1.0)
            sheets.append((description, shapes.draw(pen, description)))
        widths = [max(q[0] for q in s.points) - min(q[0] for q in s.points) for _, s in sheets]
        heights = [max(q[1] for q in s.points) - min(q[1] for q in s.points) for _, s in sheets]
        scale = min((LINK_WIDTH - 24) / (sum(widths) + 16 * (len(widths) - 1)), (LINK_HEIGHT - 48) / max(heights), 1)
        left = x + (LINK_WIDTH - scale * (sum(widths) + 16 * (len(widths) - 1))) / 2
        for (description, _), width in zip(sheets, widths):
            sheet = shapes.draw(Pen('x', scale), description)
            x0 = min(q[0] for q in sheet.points)
            middle = (min(q[1] for q in sheet.points) + max(q[1] for q in sheet.points)) / 2
            out.append(moved(sheet.marks, (left - x0, y + (LINK_HEIGHT - 30) / 2 - middle)))
            left += scale * (width + 16)
        base = y + LINK_HEIGHT - 12
        out.append(f'<path d="M{x + 22} {base - 9}h22v-5l15 10l-15 10v-5h-22z"/>')
        out.append(f'<text class="l" x="{x + 118}" y="{base + 1}" font-size="17" font-weight="bold">{escape(caption)}</text>')
        return hotspot, rectangle(x, y, LINK_WIDTH, LINK_HEIGHT), ''.join(out)

    def _balloons(self):
        shown, out = {}, []
        pieces = self.scene.pieces
        for k, piece in enumerate(pieces):
            later = [p.outline for p in pieces[k + 1:] if len(p.outline) > 2]
            shown.setdefault(piece.reference, []).append((piece, later))
        corners = [(reference, [(Corner(frame), [])]) for reference, frame in self.kits]
        for reference, targets in [*shown.items(), *corners]:
            if self.hotspots[reference] != '-':
                text = reference if reference.isdigit() else self.hotspots[reference].rpartition('#$#')[2]
                out.append(balloons.Balloon(text, targets))
                out[-1].reference = reference
        outlines = [p.outline for p in pieces] + [frame for _, frame, _ in self.links]
        outlines.append(rectangle(560, 952, 280, 40))
        balloons.place(out, outlines, self.scene.axes, (30, 30, 1370, 952))
        return out

    def svg(self):
        pick = ''
        if self.recipe.pick:
            pick = f' data-pickbackcolor="{self.recipe.pick[0]}" data-pickbordercolor="{self.recipe.pick[1]}"'
        out = ['<?xml version="1.0" encoding="UTF-8"?>\n'
               f'<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="1400" height="1000" viewBox="0 0 1400 1000"{pick}>\n'
               f'<title>{escape(self.title)}</title>\n<style>{STYLE % self.ink}</style>\n'
               f'<rect width="1400" height="1000" fill="{self.ink["paper"]}"/>\n'
               f'<rect class="r" x="16" y="16" width="1368" height="968"/>\n'
               f'<text class="l" x="700" y="972" font-size="16">{escape(self.title)}</text>\n']
        out += [f'<path class="a" d="M{number(a[0])} {number(a[1])}L{number(b[0])} {number(b[1])}"/>\n' for a, b in self.scene.axes]
        for _, frame in self.kits:
            out.append('<path class="f" d="M' + 'L'.join(f'{number(x)} {number(y)}' for x, y in frame) + 'Z"/>\n')
        for hotspot, _, marks in self.links:
            out.append(f'<g class="p" data-hotspot={quoteattr(hotspot)}>{marks}</g>\n')
        for piece in self.scene.pieces:
            hotspot = self.hotspots[piece.reference]
            name = '' if hotspot == '-' else f' data-hotspot={quoteattr(hotspot)}'
            out.append(f'<g class="p"{name} transform="translate({number(piece.at[0])} {number(piece.at[1])})">'
                       f'{"".join(piece.marks)}</g>\n')
        out.append('<g class="r">\n')
        for balloon in self.balloons:
            (x0, y0), (x1, y1) = balloon.start(), balloon.end
            out.append(f'<path d="M{number(x0)} {number(y0)}L{number(x1)} {number(y1)}"/>\n')
        out.append('</g>\n')
        for balloon in self.balloons:
            x, y = (number(q) for q in balloon.at)
            if balloon.half == balloons.RADIUS:
                outline, size = f'<circle class="o" cx="{x}" cy="{y}" r="{balloons.RADIUS}"/>', 15
            else:
                w = balloon.half
                outline, size = (f'<rect class="o" x="{number(balloon.at[0] - w)}" y="{number(balloon.at[1] - 11)}" '
                                 f'width="{number(2 * w)}" height="22" rx="11"/>'), 12.5
            out.append(f'<g data-hotspot={quoteattr(self.hotspots[balloon.reference])}>{outline}'
                       f'<text class="l" x="{x}" y="{number(balloon.at[1] + size * .36)}" font-size="{size}">{escape(balloon.text)}</text></g>\n')
        out.append('</svg>\n')
        return ''.join(out)
