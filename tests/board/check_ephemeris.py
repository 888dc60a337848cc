"""The utility board against an ephemeris: the sun's place, the equation of time, sunrise and sunset, for dates
from 1800 to 2200 and sites of both hemispheres.

usage: check_ephemeris.py SOURCE_DIR PROGRAM
"""
import datetime
import json
import math
import random
import subprocess
import sys
import tempfile

import ephem

PROGRAM = sys.argv[2]
CASES = 600
FOLDER = tempfile.mkdtemp()

# The greatest differences allowed, in the board's own units: degrees, minutes of the equation, hours, days.
LIMITS = {"declination": 0.01, "equationOfTime": 5 / 60, "azimuth": 0.02, "height": 0.02, "sunrise": 1 / 60,
          "sunset": 1 / 60, "rightAscension": 5 / 3600, "julianDay": 1e-6}


def board(when, latitude, longitude):
    words = [f"txtLAT={latitude}", f"txtLON={longitude}", "TxtFuso=0", f"txtDay={when.day}", f"txtMonth={when.month}",
             f"txtYear={when.year}", f"txtHH={when.hour}", f"txtMM={when.minute}", f"txtSS={when.second}"]
    done = subprocess.run([PROGRAM, "board", "--json", "--folder", FOLDER, *words], capture_output=True, text=True,
                          check=True, timeout=20)
    return json.loads(done.stdout)["figures"]


def sky(when, latitude, longitude):
    """The ephemeris's figures; the longitude is positive to the West, azimuths count from South to the West."""
    site = ephem.Observer()
    site.lat, site.lon, site.date, site.pressure = str(latitude), str(-longitude), when, 0
    sun = ephem.Sun(site)
    hours = when.hour + when.minute / 60 + when.second / 3600
    greenwich = math.degrees(site.sidereal_time() - sun.g_ra) + longitude
    equation = math.remainder(greenwich - (hours - 12) * 15, 360) * 4
    # The centre of the sun 50 minutes below the horizon, with the declination and the equation of the moment.
    phi, delta = math.radians(latitude), sun.g_dec
    c = (-math.sin(math.radians(50 / 60)) - math.sin(delta) * math.sin(phi)) / (math.cos(delta) * math.cos(phi))
    noon = 12 + longitude / 15 - equation / 60
    arc = None if abs(c) >= 1 else math.degrees(math.acos(c)) / 15
    return {"declination": math.degrees(delta), "equationOfTime": equation, "azimuth": math.degrees(sun.az) - 180,
            "height": math.degrees(sun.alt), "rightAscension": math.degrees(sun.g_ra) / 15,
            "julianDay": ephem.julian_date(site.date), "sunrise": arc and noon - arc, "sunset": arc and noon + arc}


def difference(name, ours, theirs):
    if ours[name] is None or theirs[name] is None:
        return 0 if ours[name] == theirs[name] else math.inf
    apart = ours[name] - theirs[name]
    if name == "azimuth":  # an arc on the sky: towards the zenith it shrinks
        return math.remainder(apart, 360) * math.cos(math.radians(theirs["height"]))
    return math.remainder(apart, 24) if name == "rightAscension" else apart


def main():
    chance = random.Random(1582)
    first = datetime.datetime(1800, 1, 1)
    seconds = int((datetime.datetime(2200, 12, 31) - first).total_seconds())
    faults = []
    for _ in range(CASES):
        when = first + datetime.timedelta(seconds=chance.randrange(seconds))
        latitude = round(math.degrees(math.asin(chance.uniform(-0.9999, 0.9999))), 4)
        longitude = round(chance.uniform(-180, 180), 4)
        ours, theirs = board(when, latitude, longitude), sky(when, latitude, longitude)
        for name, limit in LIMITS.items():
            apart = abs(difference(name, ours, theirs))
            if not apart <= limit:
                faults.append(f"{when} at {latitude}, {longitude}: {name} is off by {apart:.4g}")
    print("\n".join(faults[:30]))
    print(f"{CASES} cases, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
