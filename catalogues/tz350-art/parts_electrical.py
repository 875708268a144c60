"""Electrical parts."""
import math
from isometric import ring, rounded
from parts_drive import gear


def battery(pen):
    pen.prism([(-50, -36), (50, -36), (50, 36), (-50, 36)], 0, 74)
    pen.prism([(-52, -38), (52, -38), (52, 38), (-52, 38)], 58, 64)
    for u in (-34, 34):
        pen.drum(74, 7, 84, 6, u, 20, shade=False)
    for k in range(6):
        pen.drum(74, 5, 77, 5, -36 + k * 14.4, -12, shade=False)


def relay(pen):
    pen.prism(rounded(-20, 20, -16, 16, 4), 0, 36)
    pen.prism([(-20, 16), (20, 16), (20, 20), (-20, 20)], 10, 30)
    for u in (-11, 0, 11):
        pen.prism([(u - 3, -5), (u + 3, -5), (u + 3, 5), (u - 3, 5)], 36, 46)


def coil_ignition(pen):
    for k in range(5):
        pen.prism([(-34, -26), (34, -26), (34, 26), (-34, 26)], k * 4, k * 4 + 4)
    pen.prism(rounded(-20, 20, -30, 30, 8), 20, 48)
    lead = pen.at(34, 0, 30, 'v')
    lead.turned([(0, 8), (14, 7)], shade=False)
    pen.tube([pen.p(34, 0, 42), pen.p(34, 4, 62), pen.p(40, 30, 72), pen.p(52, 66, 60)], 6)


def regulator(pen):
    pen.box(0, 16, -34, 34, -24, 24)
    for k in range(7):
        u = -30 + k * 10
        pen.box(16, 30, u - 2.5, u + 2.5, -22, 22)


def button(pen):
    pen.turned([(0, 9), (20, 9), (20, 15), (27, 15), (27, 9), (36, 8)])
    pen.thread(2, 20, 9, 3)


def key_switch(pen):
    pen.turned([(0, 15), (30, 15), (30, 20), (37, 20)])
    pen.thread(18, 30, 15, 3)
    pen.prism(rounded(-2, 2, -8, 8, 1.5), 37, 37.1, 'h')
    pen.prism([(-1.5, -12), (1.5, -12), (1.5, 12), (-1.5, 12)], 46, 62)
    pen.drum(62, 10, 66, 10, shade=False)


def fuse(pen):
    pen.prism(rounded(-11, 11, -8, 8, 3), 0, 14)
    for u in (-6, 6):
        pen.box(14, 22, u - 2.5, u + 2.5, -1.5, 1.5)


def horn(pen):
    pen.turned([(0, 26), (12, 34), (22, 36), (26, 36)])
    pen.disc(26, 27, style='m')
    pen.disc(26, 12, style='m')
    for k in range(12):
        t = math.pi * k / 6
        pen.line([(26, 14 * math.cos(t), 14 * math.sin(t)), (26, 25 * math.cos(t), 25 * math.sin(t))], 'm')


def starter_motor(pen):
    pen.turned([(-40, 30), (-34, 36), (60, 36), (60, 30), (72, 30)])
    top = pen.at(-30, 0, 48)
    top.turned([(0, 17), (66, 17), (66, 8), (74, 8)])
    pen.turned([(72, 12), (84, 12)], shade=False)
    pen.at(84)
    gear(pen.at(84), 17, 14, 10, 5, hub=False)
    pen._extent(-40, 100)


def headlamp(pen, r=46.0):
    pen.turned([(0, r * .3), (14, r * .55), (40, r), (48, r * 1.06), (56, r * 1.06)])
    pen.disc(56, r * .94, style='m')
    for k in (-2, -1, 0, 1, 2):
        h = math.sqrt(max(0, .88 - (k * .32) ** 2)) * r
        pen.line([(56, k * r * .32, -h), (56, k * r * .32, h)], 't')


def tail_lamp(pen):
    pen.prism(rounded(-38, 38, -24, 24, 10), 0, 12)
    pen.prism(rounded(-34, 34, -20, 20, 9), 12, 30)
    pen.line([(30, 0, -20), (30, 0, 20)], 'm')
    for k in range(1, 5):
        pen.line([(30, -34 + k * 7, -18), (30, -34 + k * 7, 18)], 't')


def bulb(pen):
    pen.turned([(0, 6), (14, 6), (14, 8), (16, 8), (18, 6), (24, 11), (34, 12), (42, 8), (45, 3)], shade=False)
    pen.disc(0.1, 2, style='x')


def reflector(pen):
    pen.drum(0, 18, 6, 18, shade=False)
    pen.disc(6, 14, style='m')
    for k in (-1, 0, 1):
        pen.line([(6, k * 6, -11), (6, k * 6, 11)], 't')
        pen.line([(6, -11, k * 6), (6, 11, k * 6)], 't')


def spark_plug(pen):
    pen.drum(-40, 5.5, -12, 5.5, shade=False)
    pen.thread(-40, -14, 5.5, 2.6)
    pen.drum(-12, 10, -8, 10, shade=False)
    pen.prism(ring(11.5, 6, .3), -8, 4)
    pen.turned([(4, 7.5), (22, 6), (22, 4), (30, 4), (30, 5.5), (37, 5.5)], shade=False)


def plug_cap(pen):
    pen.turned([(0, 10), (30, 10), (36, 12), (46, 12)])
    pen.tube([pen.p(44, 6, 0), pen.p(46, 26, 0), pen.p(46, 44, 2), pen.p(36, 66, 14)], 6)
