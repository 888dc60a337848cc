"""The command line from outside: what scripts rely on, the errors that users meet, and files left whole.

usage: check_command_line.py SOURCE_DIR PROGRAM
"""
import csv
import io
import json
import os
import re
import stat
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as ElementTree

PROGRAM = sys.argv[2]
FOLDER = tempfile.mkdtemp()
failures = []


def run(*arguments, status=0, lang=None):
    done = subprocess.run([PROGRAM, *arguments, "--folder", os.path.join(FOLDER, "cfg")],
                          cwd=FOLDER, capture_output=True, text=True, timeout=120)
    expect(done.returncode == status, f"{arguments}: status {done.returncode}, not {status}; {done.stderr}")
    return done


def expect(condition, sentence):
    if not condition:
        failures.append(sentence)


def rows_of(text):
    return list(csv.DictReader(io.StringIO(text)))


def read(name):
    with open(os.path.join(FOLDER, name), newline="") as file:
        return file.read()


def lists():
    dials = json.loads(run("list", "--json").stdout)
    expect(len(dials) == 28 and dials[0]["item"] == "M_Light" and dials[0]["program"] == 1, "list --json")
    expect(dials[0]["draws"] is True, "M_Light draws")
    expect(len(run("list").stdout.splitlines()) == 29, "list has a row a dial and a head")
    fields = {row["name"]: row for row in json.loads(run("fields", "M_Light", "--json").stdout)}
    expect(fields["txtLAT"]["default"] == "45.7438" and fields["txtLAT"]["kind"] == "text", "fields: txtLAT")
    expect(fields["TxtFine"]["default"] == "15", "fields tell what the dial's click has set")
    expect("txtReclinZ" not in fields and "CkConic" in fields, "fields that the dial shows")
    every = json.loads(run("fields", "--json").stdout)
    expect(len(every) > 70, "fields without a dial lists them all")
    italian = {row["name"]: row for row in json.loads(run("fields", "1", "--json", "--lang", "it").stdout)}
    expect(italian["txtLAT"]["label"] != fields["txtLAT"]["label"], "--lang translates labels")


def drawing():
    run("run", "M_Light", "-o", "a.dxf", "-o", "a.svg", "-o", "a.csv", "-o", "a.txt")
    text = read("a.csv")
    expect(text.startswith("kind,x1,y1,x2,y2,radius,aspect,start,end,colour,fill,width,layer,text\r\n")
           or text.startswith("kind,x1,y1,x2,y2,radius,aspect,start,end,colour,fill,width,layer,text\n"), "csv head")
    rows = rows_of(text)
    kinds = [row["kind"] for row in rows]
    expect(kinds == sorted(kinds, key=lambda k: k == "T"), "texts come last")
    by_number = run("run", "1", "-o", "-", "--format", "csv").stdout
    expect(rows_of(by_number) == rows, "a program number names the same dial, standard output the same list")
    svg = ElementTree.parse(os.path.join(FOLDER, "a.svg")).getroot()
    expect(svg.get("width") == "1990mm" and svg.get("height") == "2800mm", f"true scale: {svg.get('width')}")
    expect(svg.get("viewBox") == "0 0 1990 2800", f"view box: {svg.get('viewBox')}")
    texts = [row["text"] for row in rows if row["kind"] == "T"]
    expect([line.rstrip() for line in read("a.txt").splitlines()] == [text.rstrip() for text in texts], "txt")
    small = rows_of(run("run", "1", "TXTLAT=41.9", "TxtStilo=0.1", "-o", "-", "--format", "csv").stdout)
    expect(small != rows, "assignments without regard to case")
    frame = rows_of(run("run", "1", "ckFrame=1", "-o", "-", "--format", "csv").stdout)
    expect(sum(row["kind"] == "B" and row["layer"] == "Quadro" for row in frame) == 1, "the run draws the frame once")
    hours = rows_of(run("run", "1", "ck_Italiche=1", "TxtInizio=15", "-o", "-", "--format", "csv").stdout)
    whole = rows_of(run("run", "1", "TxtInizio=15", "ck_Italiche=1", "-o", "-", "--format", "csv").stdout)
    expect(hours != whole, "a click's hours can be overridden afterwards, from left to right")
    mixed = run("run", "-o", "-", "1", "--press", "cmdInvX", "TXTLAT=41.9", "--format", "csv", "TxtStilo=0.1")
    expect(rows_of(mixed.stdout) == small, "options before, between and behind the words")
    sized = run("run", "1", "--size", "1x0.8", "--shift", "0.5,0.2", "--true", "-o", "small.svg")
    expect('viewBox="0 0 1000 800"' in read("small.svg"), "--size")
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
    told = json.loads(run("board", *moment, "txtLatG=30", "cmdSignLON=+", "ckDst=1", "--json").stdout)
    expect(f"{told['fields']['txtLAT'][:6]} {told['fields']['txtLON']}" == "30.743 7.6438", "the notations follow")
    expect(told["fields"]["ckDst"] is True and 23.43 < told["figures"]["declination"] < 23.44, "figures")
    expect(float(told["panel"]["txtDelta"]) - told["figures"]["declination"] < 1e-9, "what the panel receives")
    expect("TxtDate" in json.loads(run("board", "--json").stdout)["panel"], "today at 0 h tells the transit")
    expect("altezza del Sole" in run("board", "--lang", "it").stdout, "--lang")
    for word, near in (("txtLatt=3", "txtLAT"), ("ckDst=x", "1 or 0"), ("cmdSignLAT=3", "+ or -"), ("3", "NAME=VALUE")):
        expect(near in run("board", word, status=2).stderr, f"board {word} should name {near}")
    figures = json.loads(run("board", *moment, "--true", "--json").stdout)
    expect(abs(float(figures["panel"]["txtAO"]) - figures["figures"]["hourAngle"]) < 1e-9, "--true: the hour angle in degrees")
    expect(12 < figures["figures"]["noon"] < 13, "--true: noon on the clock")
    before = time.time()
    now = json.loads(run("board", "--now", "--json").stdout)["figures"]["julianDay"]
    expect(before - 2 < (now - 2440587.5) * 86400 < time.time() + 2, "--now")


def refusals_and_files():
    with open(os.path.join(FOLDER, "old.csv"), "w") as file:
        file.write("old")
    refused = run("run", "1", "txtLAT=-10", "-o", "old.csv", status=1)
    expect("Southern" in refused.stderr and read("old.csv") == "old", "a refusal leaves the old file")
    level = run("run", "2", "optY=1", "txtReclinZ=0", status=1)
    expect("please use variable X" in level.stderr, "a refusal by the caption is told")
    expect(run("run", "1", "txtLAT=-10", "--quiet", status=1).stderr == "", "--quiet")
    run("run", "mnuBall2", "-o", "empty.csv")
    expect(rows_of(read("empty.csv")) == [], "an item without a drawing draws nothing and says nothing")
    lost = run("run", "1", "-o", "nowhere/x.svg", status=1)
    expect("nowhere/x.svg" in lost.stderr and "No such file" in lost.stderr, lost.stderr)
    os.chmod(os.path.join(FOLDER, "old.csv"), stat.S_IREAD)
    locked = run("run", "1", "-o", "old.csv", status=1)
    expect("old.csv" in locked.stderr and read("old.csv") == "old", "a read-only file stays: " + locked.stderr)
    full = run("run", "1", "-o", "-", "--format", "csv")
    with open("/dev/full", "w") as sink:
        done = subprocess.run([PROGRAM, "run", "1", "-o", "-", "--format", "csv"], stdout=sink, stderr=subprocess.PIPE,
                              text=True, timeout=60)
    expect(done.returncode == 1 and "disk" in done.stderr, f"full standard output: {done.returncode} {done.stderr}")
    expect(not [name for name in os.listdir(FOLDER) if re.search(r"tmp|~|\.new", name)], "no leftovers")


def any_input():
    for field in ("txtLAT", "txtLON", "txtDecl", "TxtStilo", "TxtHour", "txt_Definition", "TxtInizio", "TxtFine", "x1txt"):
        for value in ("", "letters", "0", "-1", "1e-300", "1e300", "1e999", "91", "9" * 400):
            done = subprocess.run([PROGRAM, "run", "1", f"{field}={value}", "-o", "-", "--format", "csv"],
                                  capture_output=True, text=True, timeout=20)
            expect(done.returncode in (0, 1), f"{field}={value[:20]}: status {done.returncode}")
            expect(not re.search(r"nan|inf\b", done.stdout, re.I), f"{field}={value[:20]}: a number that is none")


def projects_and_settings():
    run("save", "M_Light", "txtLAT=41.9", "ck_Italiche=1", "roma.sun")
    run("open", "roma.sun", "-o", "opened.csv")
    run("run", "M_Light", "txtLAT=41.9", "ck_Italiche=1", "-o", "direct.csv")
    opened, direct = rows_of(read("opened.csv")), rows_of(read("direct.csv"))
    expect([r["kind"] for r in opened] == [r["kind"] for r in direct], "a project draws what its panel draws")
    numbers = [(float(a[key] or 0), float(b[key] or 0)) for a, b in zip(opened, direct) for key in ("x1", "y1", "x2", "y2")]
    expect(all(abs(a - b) <= 1e-12 * max(1, abs(a)) for a, b in numbers), "a project draws it where its panel does")
    run("open", "roma.sun", "--invert", "x", "--size", "1x1", "-o", "turned.svg")
    run("run", "M_Light", "txtLAT=41.9", "ck_Italiche=1", "--invert", "x", "--size", "1x1", "-o", "direct.svg")
    run("open", "roma.sun", "--size", "1x1", "-o", "straight.svg")
    expect(len(read("turned.svg")) == len(read("direct.svg")) and read("turned.svg") != read("straight.svg"),
           "an option of the sheet acts once on a project")
    changed = rows_of(run("open", "roma.sun", "TxtStilo=0.3", "-o", "-", "--format", "csv").stdout)
    expect(changed != opened, "assignments come after the project")
    expect("riconosciuto" in run("open", "direct.csv", status=1).stderr, "a file that is no project")
    expect("nowhere.sun" in run("open", "nowhere.sun", status=1).stderr, "a project that is not there")
    run("save", "M_Light", "txtLAT=41.9", status=2)
    run("language", "it")
    expect(run("language").stdout == "it\n", "the language is stored")
    expect("emisfero" in run("run", "1", "txtLAT=-3", status=1).stderr, "and spoken")
    expect("hemisphere" in run("run", "1", "txtLAT=-3", "--lang", "en", status=1).stderr, "--lang en for one run")
    run("language", "en")
    run("language", "de", status=2)
    expect("LAT=10\n" in run("defaults", "--save", "1", "txtLAT=10").stdout, "defaults --save")
    expect("LAT=10\n" in run("defaults").stdout, "defaults")
    fields = {row["name"]: row for row in json.loads(run("fields", "1", "--json").stdout)}
    expect(fields["txtLAT"]["default"] == "10", "stored defaults come back at the next start")
    os.remove(os.path.join(FOLDER, "cfg", "dialwright.dat"))


def paper():
    run("run", "1", "-o", "a.pdf", "-o", "a.png", "-o", "a.bmp")
    heads = {}
    for name in ("a.pdf", "a.png", "a.bmp"):
        with open(os.path.join(FOLDER, name), "rb") as file:
            heads[name] = file.read(24)
    expect(heads["a.pdf"].startswith(b"%PDF") and heads["a.bmp"].startswith(b"BM"), "PDF and BMP")
    expect(heads["a.png"].startswith(b"\x89PNG") and int.from_bytes(heads["a.png"][16:20], "big") == 1505, "PNG at 1:5")
    for arguments, count in ((("--page", "36", "--page", "35"), 2), ((), None), (("--all", "--colour"), None)):
        run("pages", "1", *arguments, "-o", "p.pdf")
        info = subprocess.run(["pdfinfo", os.path.join(FOLDER, "p.pdf")], capture_output=True, text=True).stdout
        pages = int(re.search(r"Pages: +(\d+)", info)[1])
        expect(pages == count if count else 1 < pages < 100, f"pages {arguments}: {pages}")
    expect("pdf" in run("pages", "1", "-o", "p.txt", status=2).stderr, "pages are a PDF")
    piped = subprocess.run([PROGRAM, "pages", "1", "--press", "cmdAssi", "-o", "-"], cwd=FOLDER, capture_output=True)
    expect(piped.stdout.startswith(b"%PDF") and not os.path.exists(os.path.join(FOLDER, "-")), "pages to standard output")
    for button, remedy in (("cmdDxf", "-o FILE.dxf"), ("cmdStampa", "pages")):
        expect(remedy in run("run", "1", "--press", button, status=1).stderr, f"{button} says what writes the file")
    expect("1 to 100" in run("pages", "1", "--page", "101", "-o", "p.pdf", status=1).stderr, "a page that is not there")
    bare = rows_of(run("run", "1", "-o", "-", "--format", "csv").stdout)
    axes = rows_of(run("run", "1", "--press", "cmdAssi", "--press", "CmdGriglia", "-o", "-", "--format", "csv").stdout)
    expect([r["layer"] for r in axes].count("AsseX") == 1 and len(axes) > len(bare) + 20, "the sheet's buttons")
    moved = rows_of(run("run", "1", "--press", "txtX=0.5", "--press", "cmdAssiAgg", "-o", "-", "--format", "csv").stdout)
    expect([r["x1"] for r in moved if r["layer"] == "AsseX"] == ["-0.5"], "the sheet's fields")


def viewer():
    script = os.path.join(FOLDER, "viewer.sh")
    with open(script, "w") as file:
        file.write('#!/bin/sh\nprintf %s "$1" > "$(dirname "$1")/seen"\n')
    os.chmod(script, 0o755)
    run("run", "1", "-o", "v.dxf", "--viewer", script)
    for _ in range(50):
        if os.path.exists(os.path.join(FOLDER, "seen")):
            break
        subprocess.run(["sleep", "0.1"])
    expect(os.path.exists(os.path.join(FOLDER, "seen")) and read("seen").endswith("v.dxf"), "the viewer gets the file")
    run("run", "1", "-o", "v.dxf", "--viewer", "/no/such/viewer")
    os.remove(os.path.join(FOLDER, "seen"))
    with open(os.path.join(FOLDER, "cfg", "viewer.txt"), "w") as file:
        file.write(script + "\n")
    run("run", "1", "-o", "w.dxf")
    for _ in range(50):
        if os.path.exists(os.path.join(FOLDER, "seen")):
            break
        subprocess.run(["sleep", "0.1"])
    expect(os.path.exists(os.path.join(FOLDER, "seen")), "a configured viewer is started")


def proof_and_shadow():
    literal = {row["layer"]: row for row in json.loads(run("prove", "7", "--json").stdout)}
    every = literal["all"]
    expect(every["ghosts"] > 0 and every["strays"] == 0, f"program 7 has ghosts and no strays: {every}")
    expect(every["strokes"] == every["true"] + every["ghosts"], "each stroke has one finding")
    true = json.loads(run("prove", "7", "--json", "--true").stdout)[-1]
    expect(true["strokes"] == true["true"] == every["true"], f"--true keeps the true ones alone: {true}")
    expect(len(run("prove", "7").stdout.splitlines()) == len(literal) + 1, "a row a layer and a head")
    run("prove", "7", "--mark", "-o", "marked.csv")
    grey = sum(row["colour"] == "8421504" for row in rows_of(read("marked.csv")))
    expect(grey >= every["ghosts"], "ghosts are marked in grey")
    said = run("run", "7", "-o", "g.csv").stderr
    expect(f"{every['ghosts']} of {every['strokes']} strokes are no shadows; --true" in said, f"remark: {said}")
    expect(run("run", "7", "-q", "-o", "h.csv").stderr == "", "--quiet silences the remark")
    expect(run("run", "7", "--true", "-o", "h.csv").stderr == "", "nothing to remark with --true")
    run("prove", "mnuBall2", status=1)
    run("prove", "7", "--within", "0", status=2)
    strays = run("prove", "3", "ck_Italiche=1", "-o", "-", "--format", "csv", status=1)
    expect(strays.stdout.startswith("kind,") and "layer  strokes" in strays.stderr, "a drawing has the output alone")

    moment = ["shadow", "7", "-q", "--date", "2026-06-21", "--time", "10:30"]
    told = run(*moment, "-o", "s.csv").stdout
    expect(told.startswith("2026-06-21 10:30  the dial reads 09:59  sun 56.89"), f"shadow: {told}")
    expect(any(row["layer"] == "shadow" for row in rows_of(read("s.csv"))), "the shadow is drawn")
    night = run("shadow", "7", "-q", "--date", "2026-06-21", "--time", "23:00").stdout
    expect("the sun is down" in night, "no shadow at night")
    day = ["shadow", "7", "-q", "--date", "2026-03-21", "--from", "9:00", "--to", "11:00", "--step", "30"]
    told = run(*day, "-o", "day.svg", "-o", "day.csv").stdout.splitlines()
    expect(len(told) == 5, f"a row a moment: {told}")
    svg = ElementTree.parse(os.path.join(FOLDER, "day.svg"))
    expect(len(svg.findall(".//{http://www.w3.org/2000/svg}animate")) == 5, "an animation of five moments")
    expect(os.path.exists(os.path.join(FOLDER, "day-20260321-0930.csv")), "a file a moment")
    year = run("shadow", "7", "-q", "--from", "2026-01-31", "--to", "2026-03-02", "--step", "10", "--time", "12:00")
    expect([line[:10] for line in year.stdout.splitlines()] ==
           ["2026-01-31", "2026-02-10", "2026-02-20", "2026-03-02"], "from day to day")
    run("shadow", "mnuDia", "--date", "2026-06-21", "--time", "10:30", status=1)  # a map throws none
    for wrong in (["--date", "2026-02-30", "--time", "12:00"], ["--date", "2026-02-03", "--time", "25:00"],
                  ["--date", "2026-02-03"], ["--date", "2026-02-03", "--from", "9:00", "--to", "10:00"],
                  ["--date", "2026-02-03", "--from", "0:00", "--to", "24:00", "--step", "0.001"]):
        run("shadow", "7", *wrong, status=2)


lists()
drawing()
usage_errors()
board()
refusals_and_files()
any_input()
projects_and_settings()
paper()
viewer()
proof_and_shadow()
for sentence in failures:
    print(sentence)
sys.exit(1 if failures else 0)
