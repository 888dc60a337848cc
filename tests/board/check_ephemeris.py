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

# The greatest differences allowed: degrees, seconds of time, minutes of time.
LIMITS = {"declination": 0.01, "equation of time": 5, "direction": 0.02, "height": 0.02, "sunrise": 1, "sunset": 1,
          "right ascension": 5, "Julian day": 1e-6}


def board(when, latitude, longitude):
    words = [f"txtLAT={latitude}", f"txtLON={longitude}", "TxtFuso=0", f"txtDay={when.day}", f"txtMonth={when.month}",
             f"txtYear={when.year}", f"txtHH={when.hour}", f"txtMM={when.minute}", f"txtSS={when.second}"]
    done = subprocess.run([PROGRAM, "board", "--json", "--folder", FOLDER, *words], capture_output=True, text=True,
                          check=True, timeout=20)
    return json.loads(done.stdout)["figures"]


def turned(degrees):
    """The same angle in -180 to 180."""
    return math.remainder(degrees, 360)


def sky(when, latitude, longitude):
    """The ephemeris's figures; the longitude is positive to the West, azimuths count from South to the West."""
    site = ephem.Observer()
    site.lat, site.lon = str(latitude), str(-longitude)
    site.pressure, site.elevation = 0, 0
    site.date = when
    sun = ephem.Sun(site)
    hours = when.hour + when.minute / 60 + when.second / 3600
    greenwich = math.degrees(site.sidereal_time() - sun.g_ra) + longitude
    equation = turned(greenwich - (hours - 12) * 15) * 4
    declination = math.degrees(sun.g_dec)
    figures = {"declination": declination, "equationOfTime": equation, "azimuth": turned(math.degrees(sun.az) - 180),
               "height": math.degrees(sun.alt), "rightAscension": math.degrees(sun.g_ra) / 15,
               "julianDay": ephem.julian_date(site.date)}
    # The centre of the sun 50 minutes below the horizon, with the declination and the equation of the moment.
    phi, delta = math.radians(latitude), sun.g_dec
    c = (-math.sin(math.radians(50 / 60)) - math.sin(delta) * math.sin(phi)) / (math.cos(delta) * math.cos(phi))
    noon = 12 + longitude / 15 - equation / 60
    arc = None if abs(c) >= 1 else math.degrees(math.acos(c)) / 15
    figures["sunrise"] = None if arc is None else noon - arc
    figures["sunset"] = None if arc is None else noon + arc
    return figures


def differences(ours, theirs):
    yield "declination", ours["declination"] - theirs["declination"]
    yield "equation of time", 60 * (ours["equationOfTime"] - theirs["equationOfTime"])
    # An azimuth is an arc on the sky: towards the zenith it shrinks.
    yield "direction", turned(ours["azimuth"] - theirs["azimuth"]) * math.cos(math.radians(theirs["height"]))
    yield "height", ours["height"] - theirs["height"]
    yield "right ascension", turned(15 * (ours["rightAscension"] - theirs["rightAscension"])) * 240
    yield "Julian day", ours["julianDay"] - theirs["julianDay"]
    for name in ("sunrise", "sunset"):
        if (ours[name] is None) != (theirs[name] is None):
            yield name, math.inf
        elif ours[name] is not None:
            yield name, 60 * (ours[name] - theirs[name])


def main():
    chance = random.Random(1582)
    first = datetime.datetime(1800, 1, 1)
    seconds = int((datetime.datetime(2200, 12, 31) - first).total_seconds())
    worst, faults = dict.fromkeys(LIMITS, 0.0), []
    for _ in range(CASES):
        when = first + datetime.timedelta(seconds=chance.randrange(seconds))
        latitude = round(math.degrees(math.asin(chance.uniform(-0.9999, 0.9999))), 4)
        longitude = round(chance.uniform(-180, 180), 4)
        for name, difference in differences(board(when, latitude, longitude), sky(when, latitude, longitude)):
            worst[name] = max(worst[name], abs(difference))
            if not abs(difference) <= LIMITS[name]:
                faults.append(f"{when} at {latitude}, {longitude}: {name} is off by {difference:.4g}")
    print("\n".join(faults[:30]))
    print(f"{CASES} cases, {len(faults)} faults; greatest differences:",
          ", ".join(f"{name} {value:.3g}" for name, value in worst.items()))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
