"""Chooses the shape of a part by its English description."""
import re
import parts_body as body
import parts_drive as drive
import parts_electrical as electrical
import parts_long as long_
import parts_turned as turned
import parts_various as various


class Words:
    """A description taken apart: kind, qualifier and the sizes named in it."""

    def __init__(self, text):
        self.text = text
        self.rest = text.partition(',')[2].strip()
        thread = re.search(r'M(\d+)', text)
        self.m = float(thread.group(1)) if thread else 0
        by = re.search(r'(\d+(?:,\d+)?)x(\d+(?:,\d+)?)', text)
        self.a = float(by.group(1).replace(',', '.')) if by else 0
        self.b = float(by.group(2).replace(',', '.')) if by else 0
        one = re.search(r'(\d+(?:,\d+)?)', text)
        self.n = float(one.group(1).replace(',', '.')) if one else 0
        teeth = re.search(r'Z=(\d+)', text)
        self.z = int(teeth.group(1)) if teeth else 0
        self.right = self.rest.startswith('RH')


def screw(p, w, flip, socket=False):
    d = w.m or 6
    turned.hex_screw(p, d, min(w.b or d * 4, 64) * .9 + 4 if w.b != 1.5 else 30, flip, socket)


def seal(p, w):
    turned.oil_seal(p, w.b * .62 + 4, w.a * .62, 8) if w.b else turned.oil_seal(p)


def ball_bearing(p, w):
    size = {'6204': 24, '6205': 27, '6206': 31, '6208': 38, '6304': 27, '6007': 33}.get(w.text.split()[2][:4], 28)
    turned.bearing(p, size, size * .46, size * .52, 'RS' in w.text)


def spring(p, w):
    if 'return' in w.rest or 'exhaust' in w.rest:
        turned.hook_spring(p) if 'return' in w.rest else turned.coil(p)
    else:
        turned.coil(p, 10 if 'safety' not in w.rest else 13, 44 if 'safety' not in w.rest else 64)


def gear(p, w):
    z = w.z or 20
    drive.gear(p, 15 + z * .72, 15, max(12, min(z, 40)), 11, True, 5 if z > 34 else 0)


def shaft(p, w):
    if 'output' in w.rest:
        drive.shaft(p, 200, 13, 1)
    elif 'reverse' in w.rest:
        drive.shaft(p, 120, 9, 0)
    elif 'Ø' in w.text or 'throttle' in w.rest or 'upper' in w.rest:
        drive.shaft(p, 110 if 'throttle' not in w.rest else 84, max(5, w.n * .5), 2)
    else:
        drive.shaft(p, 180, 12, 0)


def gasket(p, w):
    if w.text.startswith('Cylinder head') or 'upper' in w.rest or 'centre' in w.rest or 'LH' in w.rest or '1,0' in w.text:
        body.gasket(p, 124, 100)
    elif 'Ø' in w.text:
        body.round_gasket(p, 15, .6, False)
    elif 'lower' in w.rest or 'air' in w.rest or 'front' in w.rest:
        body.round_gasket(p, 32, .82, False)
    else:
        body.round_gasket(p, 21)


def cover(p, w):
    if 'upper' in w.rest:
        body.plate(p, 124, 100, 7, 18, 0, True, 16)
    elif 'centre' in w.rest:
        turned_cap(p)
    elif 'assembly' in w.rest:
        body.shroud(p, 150, 120, 60)
    elif 'LH' in w.rest or 'RH' in w.rest:
        body.plate(p, 132, 108, 8, 30, 0, True, 22)
    else:
        body.plate(p, 110, 92, 7, 26, 1)


def turned_cap(p):
    p.turned([(0, 26), (10, 26), (18, 20)], shade=False)


def lever(p, w):
    if any(k in w.rest for k in ('clutch', 'brake', 'throttle', 'safety')):
        long_.hand_lever(p, 96)
    elif 'air' in w.rest:
        long_.lever(p, 54, False)
    else:
        long_.lever(p, 112)


def pin(p, w):
    length = {24: 26, 30: 30, 40: 40, 60: 52, 70: 60, 80: 64, 90: 70}.get(int(w.b), 56)
    if w.b >= 40:
        turned.pin(p, max(4, w.a * .5), length, True)
    else:
        turned.hollow_pin(p, w.a * .6 if w.a else 11, length)


def decal(p, w):
    if 'safety' in w.rest:
        various.warning(p)
    elif 'gear' in w.rest:
        various.decal(p, 'R·1·2·3·4', 110, 34)
    else:
        text = w.text.replace('Decal', '').strip(' ,')
        various.decal(p, {'fuel': 'SP 95', 'oil': 'OIL'}.get(text, text), 26 + 13 * max(4, len(text)), 40)


# Kind by the beginning of the description, the longer beginnings first.
TABLE = [
    ('Cylinder head gasket', lambda p, w, f: gasket(p, w)),
    ('Cylinder head', lambda p, w, f: body.cylinder_head(p)),
    ('Cylinder', lambda p, w, f: body.cylinder(p)),
    ('Crankcase', lambda p, w, f: body.crankcase(p)),
    ('Crankshaft', lambda p, w, f: drive.crankshaft(p)),
    ('Camshaft', lambda p, w, f: drive.camshaft(p)),
    ('Cam', lambda p, w, f: various.cam(p)),
    ('Connecting rod bolt', lambda p, w, f: turned.hex_screw(p, 7, 44, f)),
    ('Connecting rod', lambda p, w, f: drive.connecting_rod(p)),
    ('Control cable', lambda p, w, f: long_.cable(p, 210, 60)),
    ('Cable sheath', lambda p, w, f: long_.hose(p, 150, 7)),
    ('Cable end', lambda p, w, f: turned.pin(p, 4, 14)),
    ('Socket head screw', lambda p, w, f: screw(p, w, f, True)),
    ('Hex screw', lambda p, w, f: screw(p, w, f)),
    ('Hex nut', lambda p, w, f: turned.nut(p, min(w.m, 14))),
    ('Lock nut', lambda p, w, f: turned.nut(p, w.m, True)),
    ('Spring washer', lambda p, w, f: turned.spring_washer(p, min(w.n, 14))),
    ('Spring pin', lambda p, w, f: turned.spring_pin(p, w.a * .6, min(w.b, 34))),
    ('Spring retainer', lambda p, w, f: various.retainer(p)),
    ('Spring', lambda p, w, f: spring(p, w)),
    ('Spiral spring', lambda p, w, f: various.spiral(p)),
    ('Washer', lambda p, w, f: turned.washer(p, w.n)),
    ('Circlip', lambda p, w, f: turned.circlip(p, 6 + w.n * .55)),
    ('Ball bearing', lambda p, w, f: ball_bearing(p, w)),
    ('Ball joint', lambda p, w, f: long_.ball_joint(p)),
    ('Release bearing', lambda p, w, f: turned.bearing(p, 28, 15, 22, True)),
    ('Bearing shell', lambda p, w, f: drive.shells(p)),
    ('Needle cage', lambda p, w, f: turned.needle_cage(p, w.b * .62, w.a * .62, 20)),
    ('Needle valve', lambda p, w, f: various.needle(p)),
    ('Oil seal', lambda p, w, f: seal(p, w)),
    ('O-ring', lambda p, w, f: turned.o_ring(p, 8 + w.a * .5, 2.4 + w.b * .3)),
    ('Oil dipstick', lambda p, w, f: various.dipstick(p)),
    ('Oil pump', lambda p, w, f: various.oil_pump(p)),
    ('Gasket', lambda p, w, f: gasket(p, w)),
    ('Gear', lambda p, w, f: gear(p, w)),
    ('Bevel gear pair', lambda p, w, f: (drive.bevel(p, 24, 20, 14, 9, 40), drive.bevel(p.at(24), 44, 18, 26, 14), p._extent(-40, 44))),
    ('Planet gear', lambda p, w, f: drive.bevel(p, 20, 16, 12, 8)),
    ('Side gear', lambda p, w, f: drive.bevel(p, 28, 16, 16, 11)),
    ('Sprocket', lambda p, w, f: drive.gear(p, 20 + w.z * 1.1, 7, w.z, 11)),
    ('Balancer shaft', lambda p, w, f: (drive.shaft(p, 140, 10, 0), p.prism([(-14, -30), (14, -30), (10, 4), (-10, 4)], 60, 92))),
    ('Half shaft', lambda p, w, f: drive.shaft(p, 190, 12, 1)),
    ('Cross shaft', lambda p, w, f: various.cross(p)),
    ('Shaft', lambda p, w, f: shaft(p, w)),
    ('Selector rod', lambda p, w, f: drive.shaft(p, 190, 8, 2)),
    ('Push rod', lambda p, w, f: various.rod(p)),
    ('Flywheel', lambda p, w, f: drive.flywheel(p)),
    ('Key switch', lambda p, w, f: electrical.key_switch(p)),
    ('Key', lambda p, w, f: turned.key(p, 22)),
    ('Pulley', lambda p, w, f: drive.pulley(p, 44 if 'front' in w.rest else 58)),
    ('Clutch disc', lambda p, w, f: drive.disc_plate(p, 62, True)),
    ('Pressure plate', lambda p, w, f: drive.disc_plate(p, 64, False, 12)),
    ('Clutch bell', lambda p, w, f: drive.bell(p, 68, 44)),
    ('Brake drum', lambda p, w, f: drive.bell(p, 66, 34)),
    ('Brake shoe', lambda p, w, f: various.brake_shoe(p)),
    ('Brake backing plate', lambda p, w, f: various.backing_plate(p)),
    ('Hub', lambda p, w, f: drive.hub(p)),
    ('Flange', lambda p, w, f: drive.flange(p)),
    ('Insulating flange', lambda p, w, f: body.plate(p, 76, 60, 14, 16, 1)),
    ('Sliding sleeve', lambda p, w, f: drive.sleeve(p)),
    ('Coupling', lambda p, w, f: various.coupling(p)),
    ('Spacer', lambda p, w, f: turned.ring_part(p, 8 + w.n * .5, 3 + w.n * .42, 22)),
    ('Adjusting shim', lambda p, w, f: turned.ring_part(p, 19, 13, 2)),
    ('Bush', lambda p, w, f: turned.ring_part(p, 7 + w.n * .5, 2 + w.n * .45, 22)),
    ('Locating dowel', lambda p, w, f: turned.hollow_pin(p, w.a * .6, w.b + 4)),
    ('Piston ring set', lambda p, w, f: drive.ring_set(p)),
    ('Piston pin', lambda p, w, f: pin(p, w)),
    ('Pin', lambda p, w, f: pin(p, w)),
    ('Piston', lambda p, w, f: drive.piston(p)),
    ('Valve seat', lambda p, w, f: turned.ring_part(p, 20, 15, 8)),
    ('Valve collet', lambda p, w, f: various.collet(p)),
    ('Valve', lambda p, w, f: drive.valve(p)),
    ('Tappet', lambda p, w, f: various.tappet(p)),
    ('Rocker arm', lambda p, w, f: drive.rocker(p)),
    ('Guide', lambda p, w, f: turned.ring_part(p, 8, 4, 40) if 'inlet' in w.rest or 'exhaust' in w.rest else body.bracket(p, 48, 34, 26)),
    ('Speed governor', lambda p, w, f: drive.governor(p)),
    ('Differential case', lambda p, w, f: various.differential(p)),
    ('Axle tube', lambda p, w, f: various.axle_tube(p, 150, 1 if w.right else -1)),
    ('Stud', lambda p, w, f: turned.stud(p, w.m * .55, min(w.b, 90) * .8 + 8)),
    ('Split pin', lambda p, w, f: turned.split_pin(p)),
    ('Rivet', lambda p, w, f: turned.rivet(p)),
    ('Adjuster', lambda p, w, f: turned.adjuster(p)),
    ('Grease nipple', lambda p, w, f: turned.nipple(p)),
    ('Drain plug', lambda p, w, f: turned.plug(p)),
    ('Detent ball', lambda p, w, f: turned.ball(p)),
    ('Hose clamp', lambda p, w, f: turned.hose_clamp(p, 7 + w.n * .42)),
    ('Hose', lambda p, w, f: long_.hose(p, 120, 20 if 'air' in w.rest else 12)),
    ('Anti-vibration mount', lambda p, w, f: various.mount(p)),
    ('Rubber pad', lambda p, w, f: various.pad(p)),
    ('Cover', lambda p, w, f: cover(p, w)),
    ('Housing', lambda p, w, f: body.housing(p)),
    ('Filter housing', lambda p, w, f: (body.bowl(p, 54, 40))),
    ('Filter element', lambda p, w, f: various.filter_element(p)),
    ('Foam pre-filter', lambda p, w, f: various.foam(p)),
    ('Fuel filter', lambda p, w, f: various.inline_filter(p)),
    ('Fuel tap', lambda p, w, f: various.tap(p)),
    ('Pipe fitting', lambda p, w, f: various.fitting(p)),
    ('Breather', lambda p, w, f: various.breather(p)),
    ('Air shroud', lambda p, w, f: body.shroud(p, 130, 120, 50 if 'lower' not in w.rest else 26)),
    ('Protective hood', lambda p, w, f: body.shroud(p, 200, 130, 150)),
    ('Protective boot', lambda p, w, f: long_.boot(p)),
    ('Tank cap', lambda p, w, f: various.cap(p)),
    ('Tank', lambda p, w, f: body.tank(p)),
    ('Carburettor', lambda p, w, f: body.carburettor(p)),
    ('Float bowl', lambda p, w, f: body.bowl(p)),
    ('Float', lambda p, w, f: body.float_(p)),
    ('Jet', lambda p, w, f: various.jet(p)),
    ('Throttle valve', lambda p, w, f: various.butterfly(p)),
    ('Choke plate', lambda p, w, f: various.butterfly(p)),
    ('Manifold', lambda p, w, f: body.manifold(p)),
    ('Muffler', lambda p, w, f: body.muffler(p)),
    ('Spark arrestor', lambda p, w, f: (p.turned([(0, 11), (30, 11), (30, 14), (36, 14)]), p.hole(36, 9))),
    ('Spark plug cap', lambda p, w, f: electrical.plug_cap(p)),
    ('Spark plug', lambda p, w, f: electrical.spark_plug(p)),
    ('Bracket', lambda p, w, f: body.bracket(p)),
    ('Guard', lambda p, w, f: body.guard(p)),
    ('Skid shoe', lambda p, w, f: body.skid(p)),
    ('Recoil starter', lambda p, w, f: various.recoil_housing(p)),
    ('Starter rope', lambda p, w, f: various.rope(p)),
    ('Starter motor', lambda p, w, f: electrical.starter_motor(p)),
    ('Handlebar', lambda p, w, f: long_.handlebar(p, 1 if w.right else -1)),
    ('Handle', lambda p, w, f: various.handle(p)),
    ('Pawl', lambda p, w, f: various.pawl(p)),
    ('Knob', lambda p, w, f: long_.knob(p)),
    ('Lever', lambda p, w, f: lever(p, w)),
    ('Fork', lambda p, w, f: long_.fork(p)),
    ('Tie rod', lambda p, w, f: long_.tie_rod(p)),
    ('Relay', lambda p, w, f: electrical.relay(p)),
    ('Battery', lambda p, w, f: electrical.battery(p)),
    ('Fuse', lambda p, w, f: electrical.fuse(p)),
    ('Horn', lambda p, w, f: electrical.horn(p)),
    ('Ignition coil', lambda p, w, f: electrical.coil_ignition(p)),
    ('Voltage regulator', lambda p, w, f: electrical.regulator(p)),
    ('Stop button', lambda p, w, f: electrical.button(p)),
    ('Headlamp', lambda p, w, f: electrical.headlamp(p)),
    ('Tail lamp', lambda p, w, f: electrical.tail_lamp(p)),
    ('Bulb', lambda p, w, f: electrical.bulb(p)),
    ('Reflector', lambda p, w, f: electrical.reflector(p)),
    ('Wiring harness', lambda p, w, f: long_.harness(p)),
    ('Tyre valve', lambda p, w, f: various.tyre_valve(p)),
    ('Tyre', lambda p, w, f: body.tyre(p)),
    ('Inner tube', lambda p, w, f: body.tube_ring(p)),
    ('Rim', lambda p, w, f: body.rim(p)),
    ('Ballast weight', lambda p, w, f: various.weight(p)),
    ('Column', lambda p, w, f: (p.box(0, 14, -34, 34, -34, 34), p.drum(14, 17, 130, 15), p.hole(130, 11))),
    ('Grip', lambda p, w, f: long_.grip(p)),
    ('Toothed sector', lambda p, w, f: long_.sector(p)),
    ('Chain', lambda p, w, f: long_.chain(p)),
    ('V-belt', lambda p, w, f: long_.belt(p)),
    ('Depth spur', lambda p, w, f: various.depth_spur(p)),
    ('Rotor', lambda p, w, f: long_.rotor(p)),
    ('Tiller tine', lambda p, w, f: long_.tine(p, -1 if w.right else 1)),
    ('Finger bar', lambda p, w, f: long_.finger_bar(p)),
    ('Finger', lambda p, w, f: long_.finger(p)),
    ('Blade', lambda p, w, f: long_.knife(p)),
    ('Knife section', lambda p, w, f: long_.section(p)),
    ('Wear plate', lambda p, w, f: various.plate_small(p)),
    ('Mouldboard', lambda p, w, f: long_.mouldboard(p)),
    ('Scraper edge', lambda p, w, f: long_.scraper(p)),
    ('Share', lambda p, w, f: long_.share(p)),
    ('Frame', lambda p, w, f: long_.frame(p)),
    ('Drawbar', lambda p, w, f: long_.drawbar(p)),
    ('Side panel', lambda p, w, f: body.panel(p, 220 if 'H' in w.rest else 150)),
    ('Seat', lambda p, w, f: various.seat(p)),
    ('Auger', lambda p, w, f: drive.auger(p, 34, 130, w.right)),
    ('Impeller', lambda p, w, f: drive.impeller(p)),
    ('Discharge chute', lambda p, w, f: various.chute(p)),
    ('Gear oil', lambda p, w, f: various.bottle(p)),
    ('Engine oil', lambda p, w, f: various.bottle(p)),
    ('Lithium grease', lambda p, w, f: various.tin(p)),
    ('Complete kit', lambda p, w, f: various.carton(p)),
    ('Feeler gauge', lambda p, w, f: various.feeler(p)),
    ('Special wrench', lambda p, w, f: various.wrench(p)),
    ('Puller', lambda p, w, f: various.puller(p)),
    ('Decal', lambda p, w, f: decal(p, w)),
]
TABLE.sort(key=lambda entry: -len(entry[0]))


def draw(pen, description, flip=False):
    """Draws the part on the pen; a description that no kind begins is an error of the table."""
    for start, shape in TABLE:
        if description.startswith(start):
            shape(pen, Words(description), flip)
            return pen.sheet
    raise KeyError(description)
