"""A pen that paints instead of drawing lines: the same shapes, lit from above, as on a photograph."""
import math
from isometric import ORDER, Pen, Sheet, number

LIGHT = (0.30, 0.48, 0.82)


def tone(colour, brightness):
    """A colour under more or less light; full light goes towards white."""
    if brightness > 1:
        return tuple(round(c + (255 - c) * min(1, brightness - 1)) for c in colour)
    return tuple(round(c * brightness) for c in colour)


def text(colour):
    return '#%02x%02x%02x' % tuple(colour)


class Canvas(Sheet):
    """Marks with their own paint, and the gradients that they use."""

    def __init__(self):
        super().__init__()
        self.colour, self.fill, self.gradients = (180, 184, 188), '#999', {}

    def mark(self, path, style=''):
        dark = text(tone(self.colour, .38))
        if style == 'h':
            self.marks.append(f'<path d="{path}" fill="{text(tone(self.colour, .34))}" stroke="{dark}" stroke-width=".7"/>')
        elif style == 'k':
            self.marks.append(f'<path d="{path}" fill="#222"/>')
        elif style in ('x', 't'):
            return
        elif style:
            width = {'s': 4, 'q': 2.4}.get(style, .8)
            self.marks.append(f'<path d="{path}" fill="none" stroke="{dark}" stroke-opacity=".7" stroke-width="{width}"/>')
        else:
            self.marks.append(f'<path d="{path}" fill="{self.fill}" stroke="{dark}" stroke-width=".7"/>')

    def gradient(self, axis, tones):
        key = (axis, tones)
        if key not in self.gradients:
            self.gradients[key] = f'g{len(self.gradients)}'
        return f'url(#{self.gradients[key]})'

    def definitions(self):
        ends = {'z': (0, 0, 1, 0), 'x': (.72, 0, .28, 1), 'y': (.28, 0, .72, 1)}
        out = []
        for (axis, tones), name in self.gradients.items():
            stops = ''.join(f'<stop offset="{number(k / (len(tones) - 1))}" stop-color="{c}"/>' for k, c in enumerate(tones))
            x1, y1, x2, y2 = ends[axis]
            out.append(f'<linearGradient id="{name}" x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}">{stops}</linearGradient>')
        return ''.join(out)


class Brush(Pen):
    def facing(self, s, u, v, curved=False):
        colour = self.sheet.colour
        if curved:
            lights = {'z': (.62, 1.05, 1.22, .85, .5, .42), 'x': (1.2, 1.28, 1.0, .7, .45, .4), 'y': (1.1, 1.2, .92, .66, .44, .38)}
            self.sheet.fill = self.sheet.gradient(self.axis, tuple(text(tone(colour, b)) for b in lights[self.axis]))
            return
        length = math.sqrt(s * s + u * u + v * v) or 1
        normal = dict(zip(ORDER[self.axis], (s / length, u / length, v / length)))
        lit = sum(normal[k] * LIGHT[n] for n, k in enumerate('xyz'))
        self.sheet.fill = text(tone(colour, .42 + .74 * max(0, lit)))

    def tube(self, points, width, steps=True):
        keep = self.sheet.marks
        self.sheet.marks = []
        super().tube(points, width, steps)
        path = self.sheet.marks[0].split(' d="')[1].split('"')[0]
        self.sheet.marks = keep
        w = width * self.scale
        for part, light, shift in ((1.0, .4, 0), (.82, .85, 0), (.3, 1.25, -w * .16)):
            self.sheet.marks.append(f'<path d="{path}" transform="translate(0 {number(shift)})" fill="none" stroke-linecap="round" '
                                    f'stroke="{text(tone(self.sheet.colour, light))}" stroke-width="{number(w * part)}"/>')
