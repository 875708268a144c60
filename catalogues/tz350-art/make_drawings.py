#!/usr/bin/env python3
"""Draws the exploded views of the sample catalogue from its parts lists and the recipes beside this program.

make_drawings.py [--catalogue FOLDER] [PRODUCT ...]

Without a product, all are drawn, into FOLDER/disegni. A raster drawing needs rsvg-convert.
"""
import argparse
import csv
import gzip
import os
import subprocess
import sys

from page import Drawing
from recipes import read_recipes

HERE = os.path.dirname(os.path.abspath(__file__))


def rows(folder, table):
    with open(os.path.join(folder, table + '.csv'), encoding='utf-8', newline='') as text:
        return list(csv.DictReader(text))


def parts_of(recipe, lines):
    """Descriptions and hotspot strings of what the recipe may show, by its tokens."""
    names, hotspots, letters = {}, {}, iter('ABCDEFGHIJKLMNOPQRSTUVWXYZ')
    tokens = {}
    for line in lines:
        reference = line['Key_Riferimento']
        if reference == '-':
            reference = line['Codice_Componente']
        if reference not in tokens:
            tokens[reference] = reference if reference.isdigit() else next(letters)
            names[tokens[reference]] = line['Campo03']
            hotspots[tokens[reference]] = line['Key_HotSpot'] or reference
    for token, (hotspot, description) in recipe.parts.items():
        names[token], hotspots[token] = description, hotspot
    return names, hotspots


def write(recipe, svg, path):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    if 'raster' in recipe.flags:
        subprocess.run(['rsvg-convert', '-w', '1400', '-o', path], input=svg.encode(), check=True)
        return
    data = svg.encode()
    if 'gzip' in recipe.flags:
        data = gzip.compress(data, 9, mtime=0)
    with open(path, 'wb') as out:
        out.write(data)


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument('--catalogue', default=os.path.join(HERE, '..', 'tz350'))
    options.add_argument('--output')
    options.add_argument('products', nargs='*')
    given = options.parse_args()
    products = {row['Key_Prodotto']: row for row in rows(given.catalogue, 'Prodotti')}
    lines = {}
    for line in rows(given.catalogue, 'Componenti_Web'):
        lines.setdefault(line['Key_Prodotto'], []).append(line)
    for recipe in read_recipes(os.path.join(HERE, 'recipes')):
        if given.products and recipe.product not in given.products:
            continue
        product = products[recipe.product]
        names, hotspots = parts_of(recipe, lines.get(recipe.product, []))
        drawing = Drawing(recipe, names, hotspots, f"{product['Codice']} {product['Revisione']}")
        kind = 'png' if 'raster' in recipe.flags else 'svgz' if 'gzip' in recipe.flags else 'svg'
        name = product['Codice'].replace('.', '').lower() + '.' + kind
        write(recipe, drawing.svg(), os.path.join(given.output or os.path.join(given.catalogue, 'disegni'), name))
        shown = {p.reference for p in drawing.scene.pieces} | {k for k, _ in drawing.kits}
        missing = [r for r in names if r not in shown]
        worst = [f'{b.text}:{b.cost:.0f}' for b in drawing.balloons if b.cost > 300]
        print(recipe.product, name, f'scale {drawing.scene.scale:.2f}',
              'missing ' + ' '.join(missing) if missing else '', 'crowded ' + ' '.join(worst) if worst else '')
    return 0


if __name__ == '__main__':
    sys.exit(main())
