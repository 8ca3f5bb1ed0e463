#!/usr/bin/env python3
"""Types at a real bash, presses Tab, and looks at what a stand-in for lorvane3d is started with.

    packaging/completion_test.py COMPLETION_FILE
"""
import os
import pty
import re
import select
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

# Each is a name that a list may hold, and what a user may have typed of it.
NAMES = [
    ("Quake", "--launch Qu"),
    ("Half-Life (Windows)", "--launch Half"),
    ("Half-Life (Windows)", "--launch Half-Life\\ \\("),
    ("Half-Life (Windows)", '--launch "Half-Life (W'),
    ("Half-Life (Windows)", "--launch 'Half-Life"),
    ("$(touch ran)", "--launch \\$"),
    ("$(touch ran)", "--launch '$("),
    ("$(touch ran)", '--launch "\\$('),
    ("`touch ran`", "--launch \\`to"),
    ("a;touch ran", "--launch a"),
    ("b\"quote' and \\slash", "--launch b"),
    ("*", "--launch \\*"),
    ("!history", "--launch '!"),
    ("!history", "--launch \\!"),
    ("odd \"$(touch ran)\" 'quotes' `touch ran`!1 \\", "--launch odd"),
    ("odd \"$(touch ran)\" 'quotes' `touch ran`!1 \\", "--launch 'odd"),
    ("odd \"$(touch ran)\" 'quotes' `touch ran`!1 \\", '--launch "odd'),
    ("k=v w", "--launch k=v"),
    ("c > ran", "--launch c"),
    ("~root", "--launch \\~"),
    ("Quake: the first", "--launch Quake:\\ th"),
    ("d: two words", "--launch d:"),
    ("&e", "--launch \\&"),
    ("Zoë's", "--launch Zo"),
]
OTHERS = [
    (["--list", "servers"], "--list serv"),
    (["--dry-run"], "--launch Quake --dry", 2),
    (["127.0.0.1:26000"], "--launch Quake --server 127", 3),
    (["127.0.0.1:26000"], "--launch Quake --server 127.0.0.1:2", 3),
    (["play.example:27500"], "--launch Quake --server pl", 3),
    (["quake.example"], "--launch Quake --server q", 3),
    (["map of Half-Life (Windows)"], "--launch Half-Life\\ \\(Windows\\) --map map", 3),
    (["map of $(touch ran)"], "--launch '$(touch ran)' --map map", 3),
    (["map of a `setup`"], '--setup "a \\`setup\\`" --map map', 3),
    (["--import", "my own.lv3d"], "--import my"),
]
STANDIN = """#!/usr/bin/env python3
import sys
names = {names!r}
words = sys.argv[1:]
if words[:1] == ["--list"] and words[1:2] != ["servers"] or words[:2] == ["--list", "servers"] and len(words) > 2:
    if words[1:2] == ["programs"]:
        print("\\n".join(name + "\\tC:\\\\GAMES\\tother" for name in names))
        print("bell\\a in a name")
    elif words[1:2] == ["servers"]:
        print("Server on this machine\\t127.0.0.1:26000\\nOne of the net\\tplay.example:27500\\nNo port\\tquake.example")
    elif words[2:3] in (["--launch"], ["--setup"]):
        print("map of " + words[3] + "\\tmore")
else:
    with open({said!r}, "w") as file:
        file.write("\\0".join(words))
"""


class Bash:
    """An interactive bash on a terminal of its own."""

    def __init__(self, folder, completion):
        rc = folder / "rc"
        rc.write_text(
            f"PS1='ready> '; PATH={folder}/bin:$PATH; cd {folder}/here\n"
            "unset HISTFILE; bind 'set enable-bracketed-paste off'; bind 'set bell-style none'\n"
            f". /usr/share/bash-completion/bash_completion\n. {completion}\n")
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            environment = {"TERM": "dumb", "HOME": str(folder), "LC_ALL": "C.UTF-8", "PATH": os.environ["PATH"]}
            os.execve("/bin/bash", ["bash", "--noprofile", "--rcfile", str(rc), "-i"], environment)
        self.read_until("ready> ")

    def read_until(self, text, patience=10.0):
        seen = ""
        end = time.monotonic() + patience
        while text not in seen and time.monotonic() < end:
            if select.select([self.terminal], [], [], 0.1)[0]:
                seen += os.read(self.terminal, 4096).decode(errors="replace")
        return seen

    def type(self, text):
        os.write(self.terminal, text.encode())

    def end(self):
        os.kill(self.process, signal.SIGKILL)
        os.close(self.terminal)
        os.waitpid(self.process, 0)


def started_with(bash, said, typed):
    """What the stand-in is started with, once what is typed has been completed. The line editor takes key after key."""
    said.unlink(missing_ok=True)
    bash.type("lorvane3d " + typed + "\t\n")
    echo = bash.read_until("ready> ")
    end = time.monotonic() + 2
    while not said.exists() and time.monotonic() < end:
        time.sleep(0.05)
    if not said.exists():
        bash.type("\x03")
        bash.read_until("ready> ")
        return None, echo
    return said.read_text().split("\0"), echo


def main(completion):
    faults = []
    with tempfile.TemporaryDirectory() as work:
        folder = Path(work)
        for name in ("bin", "here"):
            (folder / name).mkdir()
        (folder / "here/my own.lv3d").touch()
        (folder / "here/other.txt").touch()
        said = folder / "said"
        standin = folder / "bin/lorvane3d"
        names = list(dict.fromkeys(name for name, _ in NAMES))
        standin.write_text(STANDIN.format(names=names, said=str(said)))
        standin.chmod(0o755)
        bash = Bash(folder, Path(completion).resolve())
        cases = [(["--launch", name], typed, 0) for name, typed in NAMES]
        cases += [(row[0], row[1], row[2] if len(row) > 2 else 0) for row in OTHERS]
        for wanted, typed, start in cases:
            words, echo = started_with(bash, said, typed)
            if typed == "--launch Qu":
                # Two begin so: what they share is there, and nothing more.
                wanted = ["--launch", "Quake"]
            if words is None or words[start:] != wanted:
                faults.append(f"{typed}: {words}, not {wanted}; the line: {echo!r}")
        bash.end()
        if list(folder.rglob("ran")):
            faults.append("a name was carried out")
    print(*faults, f"completion: {len(cases) - len(faults)} of {len(cases)} as they should be", sep="\n")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
