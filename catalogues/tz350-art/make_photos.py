#!/usr/bin/env python3
"""Makes the sample catalogue's photographs: assemblies put together from the parts' shapes, painted and lit.

make_photos.py [--output FOLDER]    needs rsvg-convert and ImageMagick
"""
import argparse
import os
import subprocess
import tempfile

import shapes
from isometric import AXES
from shading import Brush, Canvas

HERE = os.path.dirname(os.path.abspath(__file__))
STEEL, CAST, RED, BLACK = (186, 191, 197), (168, 172, 170), (196, 44, 34), (58, 58, 62)
YELLOW, GREEN, CREAM, BRASS = (226, 168, 30), (52, 112, 66), (222, 214, 196), (190, 154, 84)

# Name of the picture: parts from far to near as (description, axis, place x y z, scale, colour).
SCENES = {
    'motore.jpg': [
        ('Recoil starter, assembly', 'x', (-70, 0, 0), 1.0, BLACK), ('Tank', 'z', (-20, -20, 120), .75, RED),
        ('Crankcase', 'x', (0, 0, 0), 1.25, CAST), ('Cylinder', 'z', (55, 0, 82), .95, CAST), ('Cylinder head, assembly', 'z', (55, 0, 176), .95, CAST),
        ('Cover, upper', 'z', (55, 0, 236), .8, BLACK),
        ('Cover, RH', 'x', (132, 0, -16), 1.25, CAST), ('Oil dipstick', 'y', (90, 110, -30), 1.0, YELLOW)],
    'albero_motore.jpg': [
        ('Ball bearing 6205', 'x', (-150, 0, 0), 1.4, STEEL), ('Crankshaft', 'x', (0, 0, 0), 1.5, STEEL),
        ('Gear Z=25', 'x', (175, 0, 0), 1.3, STEEL), ('Flywheel', 'x', (240, 0, 0), 1.3, CAST)],
    'carburatore.png': [
        ('Float bowl', 'z', (-6, 0, -78), 2.0, BRASS), ('Carburettor, assembly', 'x', (0, 0, 0), 2.4, CAST),
        ('Control cable, throttle', 'x', (-50, -150, 120), 1.2, BLACK)],
    'cambio.jpg': [
        ('Housing, LH', 'x', (-60, 0, 0), 1.8, GREEN), ('Gear Z=36', 'x', (70, 30, 20), 1.5, STEEL),
        ('Gear Z=19', 'x', (75, -55, 30), 1.5, STEEL), ('Shaft, output', 'x', (80, 30, 20), 1.2, STEEL)],
    'ruota.jpg': [('Tyre', 'x', (0, 0, 0), 2.2, BLACK), ('Rim', 'x', (16, 0, 0), 2.2, YELLOW), ('Hub, RH', 'x', (60, 0, 0), 1.2, STEEL)],
    'fresa.jpg': [
        ('Rotor, LH', 'y', (30, -190, -60), 1.3, STEEL), ('Protective hood, assembly', 'y', (0, -90, 40), 1.4, GREEN),
        ('Rotor, RH', 'y', (30, 110, -60), 1.3, STEEL)],
    'lama_neve.jpg': [('Frame, front', 'x', (-170, 0, 0), 1.2, BLACK), ('Mouldboard', 'x', (60, 0, 30), 1.5, YELLOW),
                      ('Scraper edge', 'x', (70, 0, -44), 1.6, STEEL)],
    'rimorchio.jpg': [
        ('Tyre', 'y', (20, -150, -70), .8, BLACK), ('Frame, assembly', 'x', (-90, 0, -20), 1.3, BLACK),
        ('Side panel, LH', 'y', (20, -110, 10), 1.25, RED), ('Side panel, rear', 'x', (-118, 0, 10), 1.35, RED),
        ('Side panel, front', 'x', (150, 0, 10), 1.35, RED), ('Side panel, RH', 'y', (20, 98, 10), 1.25, RED),
        ('Tyre', 'y', (20, 110, -70), .8, BLACK), ('Rim', 'y', (20, 120, -70), .8, YELLOW)],
    'luci.jpg': [('Headlamp, LH', 'x', (0, -80, 20), 1.7, CREAM), ('Headlamp, RH', 'x', (0, 90, 20), 1.7, CREAM),
                 ('Tail lamp, LH', 'x', (130, 10, -60), 1.6, RED)],
    'macchina.jpg': [
        ('Tyre', 'y', (-10, -120, -40), 1.05, BLACK), ('Housing, LH', 'x', (-60, 0, -20), 1.15, GREEN),
        ('Tank', 'z', (110, 0, 80), .8, RED), ('Crankcase', 'x', (50, 0, 0), .95, CAST), ('Cylinder', 'z', (98, 0, 62), .7, CAST),
        ('Cover, upper', 'z', (98, 0, 130), .8, RED), ('Cover, RH', 'x', (150, 0, -12), .95, CAST), ('Muffler, assembly', 'x', (66, 64, 96), .42, STEEL),
        ('handlebars', 'x', (-60, 0, 40), 1.0, BLACK),
        ('Tyre', 'y', (-10, 80, -40), 1.05, BLACK), ('Rim', 'y', (-10, 92, -40), 1.05, YELLOW),
        ('Hub, LH', 'y', (-10, 108, -40), .8, STEEL)],
}


def handlebars(pen):
    for side in (-1, 1):
        pen.tube([pen.p(*q) for q in ((20, 0, 20), (-40, 14 * side, 60), (-110, 52 * side, 120), (-170, 62 * side, 140), (-230, 62 * side, 140))], 13)
        pen.tube([pen.p(-178, 62 * side, 140), pen.p(-236, 62 * side, 140)], 19)


def paint(parts):
    """The SVG of a scene on a studio background."""
    canvas = Canvas()
    for description, axis, place, scale, colour in parts:
        x = (place[0] - place[1]) * AXES['x'][0]
        y = (place[0] + place[1]) * AXES['x'][1] - place[2]
        canvas.colour = colour
        pen = Brush(axis, scale, canvas, (x, y))
        if description == 'handlebars':
            handlebars(pen)
        else:
            shapes.draw(pen, description)
    x0, x1 = min(p[0] for p in canvas.points), max(p[0] for p in canvas.points)
    y0, y1 = min(p[1] for p in canvas.points), max(p[1] for p in canvas.points)
    k = min(620 / (x1 - x0), 440 / (y1 - y0))
    where = f'translate({400 - k * (x0 + x1) / 2:.1f} {285 - k * (y0 + y1) / 2:.1f}) scale({k:.3f})'
    base = 285 + k * (y1 - y0) / 2
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="800" height="600" viewBox="0 0 800 600"><defs>'
            '<linearGradient id="wall" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#b9c2c9"/>'
            '<stop offset=".62" stop-color="#e8ecee"/><stop offset=".66" stop-color="#d3d8db"/><stop offset="1" stop-color="#aab1b6"/></linearGradient>'
            '<radialGradient id="shadow"><stop offset="0" stop-color="#000" stop-opacity=".5"/><stop offset="1" stop-color="#000" stop-opacity="0"/></radialGradient>'
            f'{canvas.definitions()}</defs><rect width="800" height="600" fill="url(#wall)"/>'
            f'<ellipse cx="400" cy="{base - 26:.0f}" rx="{k * (x1 - x0) * .56:.0f}" ry="46" fill="url(#shadow)"/>'
            f'<g transform="{where}" stroke-linejoin="round">{"".join(canvas.marks)}</g></svg>')


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument('--output', default=os.path.join(HERE, '..', 'tz350', 'foto'))
    folder = options.parse_args().output
    os.makedirs(folder, exist_ok=True)
    with tempfile.TemporaryDirectory() as temporary:
        png = os.path.join(temporary, 'photo.png')
        for name, parts in SCENES.items():
            subprocess.run(['rsvg-convert', '-o', png], input=paint(parts).encode(), check=True)
            kind = ['-quality', '85'] if name.endswith('.jpg') else ['+dither', '-colors', '200', '-define', 'png:exclude-chunks=date,time']
            subprocess.run(['convert', png, '-strip', *kind, os.path.join(folder, name)], check=True)


if __name__ == '__main__':
    main()
