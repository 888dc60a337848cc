"""The guard of the rooms finds each kind of include that it is there for, and no other."""
import sys
import tempfile
from pathlib import Path

ROOT = Path(sys.argv[1])
sys.path.insert(0, str(ROOT / "tools"))
import check_rooms  # noqa: E402

ROOMS = """
dialwright_room(low)
dialwright_room(high low)
if(DIALWRIGHT_DESKTOP)
  dialwright_room(ui high)
endif()
"""

# file, its line, what the guard says of it (nothing: it may)
CASES = [
    ("low/a.hpp", "#include <vector>", None),
    ("high/b.cpp", '#include "low/a.hpp"', None),
    ("high/below/c.cpp", '#include "high/b.hpp"', "does not exist"),
    ("low/d.cpp", '#include "high/b.cpp"', "low/ may not include high/"),
    ("low/e.cpp", "#include <high/b.cpp>", "low/ may not include high/"),
    ("ui/f.cpp", '#include "low/a.hpp"', "ui/ may not include low/"),
    ("ui/g.cpp", "#include <QWidget>", None),
    ("high/h.cpp", "#include <QtWidgets/QWidget>", "includes Qt"),
    ("high/i.cpp", "#  include <qglobal.h>", "includes Qt"),
    ("high/j.cpp", "#include <cairo/cairo-pdf.h>", "includes Cairo"),
    ("high/k.cpp", '#include "neighbour.hpp"', "not named from src/ on"),
    ("attic/l.cpp", "", "no room attic"),
]

with tempfile.TemporaryDirectory() as folder:
    source = Path(folder) / "src"
    for name, line, _ in CASES:
        path = source / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(f"// A case.\n{line}\n", encoding="utf-8")
    (source / "CMakeLists.txt").write_text(ROOMS, encoding="utf-8")
    found = check_rooms.offences(Path(folder))

wrong = []
for name, _, expected in CASES:
    said = [text for text in found if text.startswith(f"src/{name}:")]
    if len(said) != (expected is not None) or (expected and expected not in said[0]):
        wrong.append(f"{name}: expected {expected!r}, got {said}")
print("\n".join(wrong) or f"{len(CASES)} cases")
sys.exit(bool(wrong))
