"""The Debian packages from outside: their control fields, their files, and that the installed programs work.

usage: check_package.py SOURCE_DIR [PROGRAM]

The packages are built first where anything changed, then unpacked into a folder that nothing else
knows of.
"""
import gzip
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

SOURCE = pathlib.Path(sys.argv[1]).resolve()
PACKAGING = SOURCE / "packaging"
MIME = "application/x-dialwright-project"
failures = []


def expect(condition, sentence):
    if not condition:
        failures.append(sentence)


def run(*command, folder, **environment):
    """What a command says on a machine that has nothing of its user: an empty home, no display."""
    clean = {"HOME": str(folder), "PATH": os.defpath + ":/sbin:/usr/sbin", "LC_ALL": "C.UTF-8",
             "QT_QPA_PLATFORM": "offscreen", **environment}
    done = subprocess.run([str(word) for word in command], cwd=folder, env=clean, capture_output=True,
                          text=True, timeout=120)
    expect(done.returncode == 0, f"{command}: status {done.returncode}; {done.stdout}{done.stderr}")
    return done.stdout


def build():
    done = subprocess.run([PACKAGING / "build_deb.sh"], capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"the packages can't be built:\n{done.stdout}{done.stderr}")
    return {pathlib.Path(deb).name.split("_")[0]: SOURCE / deb for deb in done.stdout.split()}


def control(name, deb, version, folder):
    said = run("dpkg-deb", "--field", deb, folder=folder)
    fields = dict(re.findall(r"^([A-Z][\w-]*): (.*)$", said, re.MULTILINE))
    expect(fields["Version"] == version, f"{name} has another version than the program:\n{said}")
    due, qt = ("libcairo2", False) if name == "dialwright" else (f"dialwright (= {version})", True)
    depends = fields["Depends"]
    expect(due in depends and ("libqt6widgets6" in depends) == qt, f"{name} depends on {depends}")


def contents(deb, folder):
    """Every file's owner and mode are a package's."""
    for line in run("dpkg-deb", "--contents", deb, folder=folder).splitlines():
        mode, owner, *_, path = line.split()
        program = path.startswith("./usr/bin/") and not path.endswith("/")
        due = "drwxr-xr-x" if path.endswith("/") else "-rwxr-xr-x" if program else "-rw-r--r--"
        expect(owner == "root/root" and mode == due and path.startswith("./usr/"), f"{deb.name}: {line}")


def tree(root):
    return {path.relative_to(root) for path in root.rglob("*") if not path.is_dir()}


def same_as_installed(usr, folder):
    """`cmake --install` into another prefix gives the packages' very files, and none tells of this machine."""
    other = folder / "prefix"
    run("cmake", "--install", SOURCE / "build/package", "--prefix", other, "--strip", folder=folder)
    expect(tree(other) == tree(usr), f"installed or packed alone: {sorted(map(str, tree(other) ^ tree(usr)))}")
    for path in tree(other) & tree(usr):
        content = (usr / path).read_bytes()
        expect(content == (other / path).read_bytes(), f"{path} is not what cmake installs")
        expect(os.fsencode(SOURCE) not in content, f"{path} names the folder it was built in")


def documents(usr, names, version):
    for name in names:
        with gzip.open(usr / f"share/man/man1/{name}.1.gz", "rt") as page:
            expect(page.read().startswith(".TH DIALWRIGHT 1\n"), f"the man page of {name}")
        expect((usr / f"share/doc/{name}/copyright").exists(), f"{name} has no copyright file")
        with gzip.open(usr / f"share/doc/{name}/changelog.gz", "rt") as changes:
            expect(changes.readline().startswith(f"dialwright ({version}) "), f"the changelog of {name}")


def command_line(usr, folder):
    program = usr / "bin/dialwright"
    run(program, "run", "1", "-o", "x.dxf", "-o", "x.pdf", "--lang", "it", folder=folder)
    expect((folder / "x.dxf").stat().st_size > 10000, "x.dxf is empty")
    expect(run(program, "fields", "1", "--lang", "it", folder=folder) !=
           run(program, "fields", "1", folder=folder), "the installed program finds no dictionary")
    run(program, "save", "1", "txtLAT=41.9", "x.sun", folder=folder)
    completion = usr / "share/bash-completion/completions/dialwright"
    completed = run("bash", "-c", f". {completion}; COMP_WORDS=(dialwright pag); COMP_CWORD=1; _dialwright;"
                    "echo ${COMPREPLY[@]}; complete -p dialwright", folder=folder)
    expect(completed.startswith("pages\n"), f"'dialwright pag' is completed to: {completed}")


def project_type(folder):
    """The project's type, as the desktop's own tool reads it, holds for a project that was saved."""
    base = folder / "mime"
    (base / "packages").mkdir(parents=True)
    (base / "packages/dialwright.xml").write_bytes((PACKAGING / "dialwright.xml").read_bytes())
    run("update-mime-database", base, folder=folder)
    expect(f":{MIME}:*.sun\n" in (base / "globs2").read_text(), "*.sun is no project")
    magic = ElementTree.parse(PACKAGING / "dialwright.xml").find(".//{*}match").get("value").encode()
    expect(magic in (base / "magic").read_bytes(), "the type has no magic")
    expect((folder / "x.sun").read_bytes().startswith(magic), "a saved project has other first characters")


def desktop(usr, folder, version):
    for file in ("applications/dialwright.desktop", "metainfo/dialwright.metainfo.xml",
                 "mime/packages/dialwright.xml", "icons/hicolor/scalable/apps/dialwright.svg"):
        expect((usr / "share" / file).exists(), f"the desktop's package lacks share/{file}")
    run(usr / "bin/dialwright-desktop", "--version", folder=folder)
    desktop_file = PACKAGING / "dialwright.desktop"
    expect(not run("desktop-file-validate", desktop_file, folder=folder), "desktop-file-validate warns")
    entry = dict(re.findall(r"^([^=\n]+)=(.*)$", desktop_file.read_text(), re.MULTILINE))
    due = {"Exec": "dialwright-desktop %f", "MimeType": MIME + ";", "Icon": "dialwright"}
    expect(due.items() <= entry.items(), f"the entry starts something else: {entry}")
    # Its name ends in no domain: Dialwright has none.
    metainfo = PACKAGING / "dialwright.metainfo.xml"
    run("appstreamcli", "validate", "--no-net", "--override=cid-desktopapp-is-not-rdns=info", metainfo, folder=folder)
    expect(ElementTree.parse(metainfo).find(".//release").get("version") == version, "the software centre shows another version")


def main():
    packages = build()
    names = ["dialwright"] + ["dialwright-desktop"] * (SOURCE / "src/ui/main.cpp").exists()
    expect(sorted(packages) == names, f"the packages are {sorted(packages)}")
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        usr = folder / "root/usr"
        for deb in packages.values():
            contents(deb, folder)
            run("dpkg-deb", "--extract", deb, folder / "root", folder=folder)
        version = run(usr / "bin/dialwright", "--version", folder=folder).split()[-1]
        for name, deb in packages.items():
            control(name, deb, version, folder)
        same_as_installed(usr, folder)
        documents(usr, names, version)
        command_line(usr, folder)
        project_type(folder)
        if "dialwright-desktop" in packages:
            desktop(usr, folder, version)
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
