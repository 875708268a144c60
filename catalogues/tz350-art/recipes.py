"""Reads recipes: what one drawing shows and where.

[P_1010]                     the product
x= 600,400 : 5 *1 2          a chain of parts along an axis (x, y or z), from far to near, centred at a place of the
                             page or at its starred part; `x>` starts and `x<` ends there; a place may be
                             `REFERENCE[x,y,z]`, so far from the middle of that part
                             `x@` places it on the finished page, apart from the fitted view
                             tokens: 5 a part, 5/ turned round, 5%1.2 enlarged, +20 more room before the next,
                             5#60,40 four copies, 5|60,0 two, 5@60,0 one beside the axis, 5o60x3 copies on a circle
                             A, B, ... stand for the references that aren't numbers, in the list's order
part 21 HOTSPOT = Bracket    a part that isn't in the list, with its hotspot; `-` for none and no balloon
link HOTSPOT TR CAPTION = Piston, Cover     a framed box that leads elsewhere, in a corner or at x,y
kit 11 = 1 2 3               a dash-dotted frame around parts, named by a balloon
area 80,80,1320,920          room for the parts; largest 1.3: never enlarged beyond
dark, gzip, raster, pick #rrggbb #rrggbb
"""
import os
import re

CORNERS = {'TL': (46, 46), 'TR': (1164, 46), 'BL': (46, 834), 'BR': (1164, 834), 'L': (46, 440), 'R': (1164, 440),
           'T': (605, 46), 'B': (605, 834)}


class Recipe:
    def __init__(self, product):
        self.product = product
        self.chains, self.parts, self.links, self.kits = [], {}, [], []
        self.area, self.largest = (95, 85, 1305, 910), 1.5
        self.flags, self.pick = set(), []

    def read(self, line):
        chain = re.match(r'^([xyz])([=<>@]) (\S+) : (.*)$', line)
        if chain:
            axis, how, place, tokens = chain.groups()
            self.chains.append((axis, how, place, tokens.split()))
            return
        word, _, rest = line.partition(' ')
        if word == 'part':
            head, _, description = rest.partition(' = ')
            reference, _, hotspot = head.partition(' ')
            self.parts[reference] = (hotspot or reference, description)
        elif word == 'link':
            head, _, shapes = rest.partition(' = ')
            hotspot, place, caption = head.rsplit(' ', 2)
            at = CORNERS[place] if place in CORNERS else tuple(int(q) for q in place.split(','))
            self.links.append((hotspot, at, caption, [s.strip() for s in shapes.split(';')]))
        elif word == 'kit':
            reference, _, parts = rest.partition(' = ')
            self.kits.append((reference, parts.split()))
        elif word == 'area':
            self.area = tuple(float(q) for q in rest.split(','))
        elif word == 'largest':
            self.largest = float(rest)
        elif word == 'pick':
            self.pick = rest.split()
        elif word in ('dark', 'gzip', 'raster'):
            self.flags.add(word)
        else:
            raise ValueError(f'{self.product}: {line}')


def read_recipes(folder):
    recipes = []
    for name in sorted(os.listdir(folder)):
        if not name.endswith('.txt'):
            continue
        with open(os.path.join(folder, name), encoding='utf-8') as text:
            for line in text:
                line = line.strip()
                if line.startswith('['):
                    recipes.append(Recipe(line.strip('[]')))
                elif line and not line.startswith(';'):
                    recipes[-1].read(line)
    return recipes
