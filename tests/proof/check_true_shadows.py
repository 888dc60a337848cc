"""With --true every stroke of every dial is a true shadow, over 240 random sites, surfaces and panels.

usage: check_true_shadows.py SOURCE_DIR PROGRAM
"""
import json
import random
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

PROGRAM = sys.argv[2]
FOLDER = tempfile.mkdtemp()
PANELS = 10  # of each dial
BOXES = ["ck_Italiche=1", "ck_babiloniche=1", "ckTemp=1", "ck_Lemniscate=1", "Ck_DayLightCurves=1", "ckAlt=1",
         "ckAz=1", "CkQibla=1", "ckAsr=1"]


def prove(dial, assignments):
    return subprocess.run([PROGRAM, "prove", dial, *assignments, "--true", "--json", "--quiet", "--folder", FOLDER],
                          capture_output=True, text=True, timeout=120)


def panel(chance):
    return [f"txtLAT={chance.uniform(0, 72):.3f}", f"txtDecl={chance.uniform(-120, 120):.2f}",
            f"txtLON={chance.uniform(-20, 20):.2f}", f"txtReclinZ={chance.uniform(50, 130):.1f}",
            f"TxtStilo={chance.uniform(.05, .4):.2f}", *chance.sample(BOXES, 5), "TxtInizio=0", "TxtFine=23"]


listed = subprocess.run([PROGRAM, "list", "--json", "--folder", FOLDER], capture_output=True, text=True, check=True)
chance = random.Random(20260621)
cases = [(dial["item"], panel(chance)) for dial in json.loads(listed.stdout) if dial["draws"] for _ in range(PANELS)]
failures, drawn = [], {}
with ThreadPoolExecutor(2) as pool:
    for (dial, assignments), done in zip(cases, pool.map(lambda case: prove(*case), cases)):
        if not done.stdout:  # a dial may refuse a panel
            continue
        every = json.loads(done.stdout)[-1]
        drawn[dial] = drawn.get(dial, 0) + every["true"]
        if every["ghosts"] or every["strays"]:
            failures.append(f"{dial} {assignments}: {every}")
failures += [f"{dial} draws nothing" for dial in sorted({dial for dial, _ in cases}) if not drawn.get(dial)]
print(f"{len(cases)} panels, {sum(drawn.values())} strokes")
print("\n".join(failures))
sys.exit(1 if failures else 0)
