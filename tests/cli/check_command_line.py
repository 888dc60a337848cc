"""The command line from outside: what scripts rely on, the errors that users meet, and files left whole.

usage: check_command_line.py SOURCE_DIR PROGRAM
"""
import csv
import io
import json
import os
import re
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as ElementTree

PROGRAM = sys.argv[2]
FOLDER = tempfile.mkdtemp()
failures = []


def run(*arguments, status=0):
    done = subprocess.run([PROGRAM, *arguments, "--folder", os.path.join(FOLDER, "cfg")],
                          cwd=FOLDER, capture_output=True, text=True, timeout=120)
    expect(done.returncode == status, f"{arguments}: status {done.returncode}, not {status}; {done.stderr}")
    return done


def expect(condition, sentence):
    if not condition:
        failures.append(sentence)


def read(name):
    with open(os.path.join(FOLDER, name), newline="") as file:
        return file.read()


def rows_of(text):
    return list(csv.DictReader(io.StringIO(text)))


def drawn(*arguments):
    """The rows of the entity list on standard output."""
    return rows_of(run(*arguments, "-o", "-", "--format", "csv").stdout)


def told(*arguments):
    return json.loads(run(*arguments, "--json").stdout)


def fields_of(*arguments):
    return {row["name"]: row for row in told("fields", *arguments)}


def lists():
    dials = told("list")
    first = {"item": "M_Light", "program": 1, "draws": True}
    expect(len(dials) == 28 and first.items() <= dials[0].items(), f"list --json: {dials[0]}")
    expect(len(run("list").stdout.splitlines()) == 29, "list has a row a dial and a head")
    fields = fields_of("M_Light")
    expect(fields["TxtFine"]["default"] == "15", "fields tell what the dial's click has set")
    expect("txtReclinZ" not in fields and "CkConic" in fields, "fields that the dial shows")
    expect(fields_of("1", "--lang", "it")["txtLAT"]["label"] != fields["txtLAT"]["label"], "--lang translates labels")


def drawing():
    run("run", "M_Light", "-o", "a.csv", "-o", "a.txt")
    rows = rows_of(read("a.csv"))
    expect(drawn("run", "1") == rows, "a program number names the same dial, standard output the same list")
    texts = [row["text"] for row in rows if row["kind"] == "T"]
    expect([line.rstrip() for line in read("a.txt").splitlines()] == [text.rstrip() for text in texts], "txt")
    small = drawn("run", "1", "TXTLAT=41.9", "TxtStilo=0.1")
    expect(small != rows, "assignments without regard to case")
    expect(drawn("run", "--press", "cmdInvX", "1", "TXTLAT=41.9", "--quiet", "TxtStilo=0.1") == small,
           "options before, between and behind the words")
    expect(drawn("run", "1", "ck_Italiche=1", "TxtInizio=15") != drawn("run", "1", "TxtInizio=15", "ck_Italiche=1"),
           "a click's hours can be overridden afterwards, from left to right")
    sized = run("run", "1", "--size", "1x0.8", "--shift", "0.5,0.2", "--true", "-o", "small.svg")
    svg = ElementTree.parse(os.path.join(FOLDER, "small.svg")).getroot()
    expect([svg.get(key) for key in ("width", "height", "viewBox")] == ["1000mm", "800mm", "0 0 1000 800"], "--size")
    expect(sized.stderr == "", "silent when all is well")
    expect("light graph" in run("run", "1", "--verbose").stderr, "--verbose shows the caption")


def usage_errors():
    for arguments, word in ((("run", "1", "txtLatt=3"), "txtLAT"), (("rnu",), "run"), (("run", "M_Ligt"), "M_Light"),
                            (("run", "1", "--pres", "x"), "--press"), (("run", "1", "-o", "x.dwg"), ".dxf"),
                            (("run", "1", "nonsense"), "NAME=VALUE"), (("run", "1", "ckFrame=yes"), "1 or 0"),
                            (("run", "1", "lblAO=x"), "label"), (("run",), "ITEM"), (("run", "1", "-o", "-"), "--format"),
                            (("run", "1", "--size", "big"), "--size"), (("run", "1", "--size", "0x1"), "--size"),
                            ((), "--help")):
        done = run(*arguments, status=2)
        expect(word in done.stderr, f"{arguments} should name {word}: {done.stderr}")
        expect(done.stdout == "", f"{arguments}: nothing on standard output")


def board():
    moment = ("txtDay=21", "TXTMONTH=6", "txtYear=2024", "txtHH=12")
    text = run("board", *moment).stdout
    expect(text.startswith("Sun's Azimuth   ") and "\r" not in text, "the results, in this system's lines")
    site = told("board", *moment, "txtLatG=30", "cmdSignLON=+", "ckDst=1")
    expect(f"{site['fields']['txtLAT'][:6]} {site['fields']['txtLON']}" == "30.743 7.6438", "the notations follow")
    expect(site["fields"]["ckDst"] is True and 23.43 < site["figures"]["declination"] < 23.44, "figures")
    expect("altezza del Sole" in run("board", "--lang", "it").stdout, "--lang")
    for word, near in (("txtLatt=3", "txtLAT"), ("ckDst=x", "1 or 0"), ("cmdSignLAT=3", "+ or -"), ("3", "NAME=VALUE")):
        expect(near in run("board", word, status=2).stderr, f"board {word} should name {near}")
    true = told("board", *moment, "--true")
    expect(abs(float(true["panel"]["txtAO"]) - true["figures"]["hourAngle"]) < 1e-9, "--true: the hour angle in degrees")
    before = time.time()
    now = (told("board", "--now")["figures"]["julianDay"] - 2440587.5) * 86400
    expect(before - 2 < now < time.time() + 2, "--now")


def refusals():
    with open(os.path.join(FOLDER, "old.csv"), "w") as file:
        file.write("old")
    refused = run("run", "1", "txtLAT=-10", "-o", "old.csv", status=1)
    expect("Southern" in refused.stderr and read("old.csv") == "old", "a refusal leaves the old file")
    expect(run("run", "1", "txtLAT=-10", "--quiet", status=1).stderr == "", "--quiet")
    expect(drawn("run", "mnuBall2") == [], "an item without a drawing draws nothing and says nothing")
    lost = run("run", "1", "-o", "nowhere/x.svg", status=1)
    expect("nowhere/x.svg" in lost.stderr and "No such file" in lost.stderr, lost.stderr)


def projects_and_settings():
    roma = ("txtLAT=41.9", "ck_Italiche=1")
    run("save", "M_Light", *roma, "roma.sun")
    opened, direct = drawn("open", "roma.sun"), drawn("run", "M_Light", *roma)
    expect([r["kind"] for r in opened] == [r["kind"] for r in direct], "a project draws what its panel draws")
    sheet = ("--invert", "x", "--size", "1x1", "-o")
    run("open", "roma.sun", *sheet, "turned.svg")
    run("run", "M_Light", *roma, *sheet, "direct.svg")
    run("open", "roma.sun", *sheet[2:], "straight.svg")
    expect(len(read("turned.svg")) == len(read("direct.svg")) and read("turned.svg") != read("straight.svg"),
           "an option of the sheet acts once on a project")
    expect(drawn("open", "roma.sun", "TxtStilo=0.3") != opened, "assignments come after the project")
    expect("riconosciuto" in run("open", "direct.svg", status=1).stderr, "a file that is no project")
    expect("nowhere.sun" in run("open", "nowhere.sun", status=1).stderr, "a project that is not there")
    run("save", "M_Light", "txtLAT=41.9", status=2)
    run("language", "it")
    expect(run("language").stdout == "it\n", "the language is stored")
    expect("emisfero" in run("run", "1", "txtLAT=-3", status=1).stderr, "and spoken")
    expect("hemisphere" in run("run", "1", "txtLAT=-3", "--lang", "en", status=1).stderr, "--lang en for one run")
    run("language", "en")
    run("language", "de", status=2)
    expect("LAT=10\n" in run("defaults", "--save", "1", "txtLAT=10").stdout, "defaults --save")
    expect(fields_of("1")["txtLAT"]["default"] == "10", "stored defaults come back at the next start")
    os.remove(os.path.join(FOLDER, "cfg", "dialwright.dat"))


def paper():
    for arguments, least, most in ((("--page", "36", "--page", "35"), 2, 2), ((), 2, 99), (("--all", "--colour"), 2, 100)):
        run("pages", "1", *arguments, "-o", "p.pdf")
        info = subprocess.run(["pdfinfo", os.path.join(FOLDER, "p.pdf")], capture_output=True, text=True).stdout
        expect(least <= int(re.search(r"Pages: +(\d+)", info)[1]) <= most, f"pages {arguments}: {info}")
    expect("pdf" in run("pages", "1", "-o", "p.txt", status=2).stderr, "pages are a PDF")
    piped = subprocess.run([PROGRAM, "pages", "1", "--press", "cmdAssi", "-o", "-"], cwd=FOLDER, capture_output=True)
    expect(piped.stdout.startswith(b"%PDF") and not os.path.exists(os.path.join(FOLDER, "-")), "pages to standard output")
    for button, remedy in (("cmdDxf", "-o FILE.dxf"), ("cmdStampa", "pages")):
        expect(remedy in run("run", "1", "--press", button, status=1).stderr, f"{button} says what writes the file")
    run("pages", "1", "--page", "101", "-o", "p.pdf", status=1)
    moved = drawn("run", "1", "--press", "txtX=0.5", "--press", "cmdAssiAgg")
    expect([r["x1"] for r in moved if r["layer"] == "AsseX"] == ["-0.5"], "the sheet's fields")


def viewer():
    """A viewer that is asked for or configured gets the file."""
    script, seen = os.path.join(FOLDER, "viewer.sh"), os.path.join(FOLDER, "seen")
    with open(script, "w") as file:
        file.write('#!/bin/sh\nprintf %s "$1" > "$(dirname "$1")/seen.new"\nmv "$(dirname "$1")/seen.new" "$(dirname "$1")/seen"\n')
    os.chmod(script, 0o755)
    for name, asked in (("v.dxf", ["--viewer", script]), ("w.dxf", [])):
        run("run", "1", "-o", name, *asked)
        deadline = time.monotonic() + 60
        while not os.path.exists(seen) and time.monotonic() < deadline:
            time.sleep(0.05)
        expect(os.path.exists(seen) and read("seen").endswith(name), f"{name} is shown")
        os.remove(seen)
        with open(os.path.join(FOLDER, "cfg", "viewer.txt"), "w") as file:
            file.write(script + "\n")


def proof():
    every = told("prove", "7")[-1]
    expect(every["ghosts"] > 0 and every["strays"] == 0, f"program 7 has ghosts and no strays: {every}")
    true = told("prove", "7", "--true")[-1]
    expect(true["strokes"] == true["true"] == every["true"], f"--true keeps the true ones alone: {true}")
    run("prove", "7", "--mark", "-o", "marked.csv")
    grey = sum(row["colour"] == "8421504" for row in rows_of(read("marked.csv")))
    expect(grey >= every["ghosts"], "ghosts are marked in grey")
    said = run("run", "7", "-o", "g.csv").stderr
    expect(f"{every['ghosts']} of {every['strokes']} strokes are no shadows; --true" in said, f"remark: {said}")
    for silent in ("-q", "--true"):
        expect(run("run", "7", silent, "-o", "h.csv").stderr == "", f"no remark with {silent}")
    run("prove", "mnuBall2", status=1)
    run("prove", "7", "--within", "0", status=2)
    strays = run("prove", "3", "ck_Italiche=1", "-o", "-", "--format", "csv", status=1)
    expect(strays.stdout.startswith("kind,") and "layer  strokes" in strays.stderr, "a drawing has the output alone")


def shadow():
    said = run("shadow", "7", "-q", "--date", "2026-06-21", "--time", "10:30", "-o", "s.csv").stdout
    # An ephemeris (JPL DE405 by the library ephem) has 56.894 and -57.959.
    expect(said.startswith("2026-06-21 10:30  the dial reads 09:59  sun 56.89° high, azimuth -57.96°"), f"shadow: {said}")
    expect(any(row["layer"] == "shadow" for row in rows_of(read("s.csv"))), "the shadow is drawn")
    day = ["shadow", "7", "-q", "--date", "2026-03-21", "--from", "9:00", "--to", "11:00", "--step", "30"]
    said = run(*day, "-o", "day.svg", "-o", "day.csv").stdout.splitlines()
    expect(len(said) == 5, f"a row a moment: {said}")
    svg = ElementTree.parse(os.path.join(FOLDER, "day.svg"))
    expect(len(svg.findall(".//{http://www.w3.org/2000/svg}animate")) == 5, "an animation of five moments")
    expect(os.path.exists(os.path.join(FOLDER, "day-20260321-0930.csv")), "a file a moment")
    year = run("shadow", "7", "-q", "--from", "2026-01-31", "--to", "2026-03-02", "--step", "10", "--time", "12:00")
    expect(re.findall(r"^2026-(\S+)", year.stdout, re.MULTILINE) == ["01-31", "02-10", "02-20", "03-02"], "from day to day")
    run("shadow", "mnuDia", "--date", "2026-06-21", "--time", "10:30", status=1)  # a map throws none
    for wrong in (["--date", "2026-02-30", "--time", "12:00"], ["--date", "2026-02-03", "--time", "25:00"],
                  ["--date", "2026-02-03"], ["--date", "2026-02-03", "--from", "9:00", "--to", "10:00"],
                  ["--date", "2026-02-03", "--from", "0:00", "--to", "24:00", "--step", "0.001"]):
        run("shadow", "7", *wrong, status=2)


for check in (lists, drawing, usage_errors, board, refusals, projects_and_settings, paper, viewer, proof, shadow):
    check()
for sentence in failures:
    print(sentence)
sys.exit(1 if failures else 0)
