#!/usr/bin/env python3
"""Other people's readers take the DXF drawings of the program.

    tests/sheet/check_dxf.py SOURCE_FOLDER PROGRAM

ezdxf must load and audit each without an error; LibreCAD, where it is installed, must turn each
into a page. What the entities say is held against the entity list with all other formats.
"""
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

try:
    import ezdxf
except ImportError:
    print("skipped: python3-ezdxf is not installed")
    sys.exit(0)

# A dial with the layers of its declinations and a frame; one of the sphere; one of circles.
RUNS = [["M_Light", "ckFrame=1"], ["mnuUni"], ["mnuFontana_H3"]]


def check_librecad(path: Path) -> None:
    folder = path.parent
    subprocess.run(
        ["librecad", "dxf2pdf", "-a", path.name], cwd=folder, timeout=120, check=True,
        capture_output=True, env=os.environ | {
            "QT_QPA_PLATFORM": "offscreen", "HOME": folder, "XDG_RUNTIME_DIR": folder})
    assert path.with_suffix(".pdf").read_bytes().startswith(b"%PDF"), "LibreCAD made no page"


def main() -> None:
    for arguments in RUNS:
        with tempfile.TemporaryDirectory() as name:
            dxf = Path(name) / "it.dxf"
            subprocess.run([sys.argv[2], "run", *arguments, "--folder", name, "-o", dxf],
                           check=True, timeout=120)
            document = ezdxf.readfile(dxf)
            errors = [error.message for error in document.audit().errors]
            assert not errors, errors[:3]
            assert len(document.modelspace()) > 1000, "the drawing is not taken whole"
            if shutil.which("librecad"):
                check_librecad(dxf)


if __name__ == "__main__":
    main()
