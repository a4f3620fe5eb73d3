"""Runs the scripts as on a Mac: nothing but POSIX's tools and stand-ins for uname, Homebrew and CMake in the path."""

import os
import shutil
import stat
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent

FAKES = {
    "uname": "echo Darwin",
    # Of what is not installed it tells the folder as well, unless asked not to.
    "brew": '''echo "$@" >>"$LOG"
[ "$1" = --prefix ] || exit 0
shift
if [ "$1" = --installed ]; then shift; [ -d "$HOME/opt/$1" ] || exit 1; fi
for formula; do echo "$HOME/opt/$formula"; done''',
    "cmake": 'echo cmake "$@" >>"$LOG"',
    "ctest": 'echo ctest "$@" >>"$LOG"',
}
FORMULAS = "cmake ninja qt@5 icu4c libarchive libplist googletest python3"


class Mac(unittest.TestCase):
    def setUp(self):
        self.home = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.home)
        self.log = self.home / "log"
        for name, body in FAKES.items():
            fake = self.home / name
            fake.write_text("#!/bin/sh\n" + body + "\n")
            fake.chmod(stat.S_IRWXU)
        for name in ("sh", "date", "dirname", "getconf", "mkdir", "sed", "sleep", "tail"):
            (self.home / name).symlink_to(shutil.which(name))

    def run_script(self, *command):
        self.log.write_text("")
        environment = {"PATH": str(self.home), "HOME": str(self.home), "LOG": str(self.log)}
        done = subprocess.run(command, cwd=ROOT, env=environment, capture_output=True, text=True)
        lines = self.log.read_text().splitlines()
        return done.returncode, done.stdout + done.stderr, [line for line in lines if not line.startswith("--prefix")]

    def install(self, formulas):
        for formula in formulas.split():
            (self.home / "opt" / formula).mkdir(parents=True)

    def test_setup_installs_what_is_missing(self):
        self.assertEqual(self.run_script("scripts/setup")[2], ["install " + FORMULAS])
        self.install("cmake qt@5 libarchive")
        self.assertEqual(self.run_script("scripts/setup")[2], ["install ninja icu4c libplist googletest python3"])
        self.assertEqual(self.run_script("scripts/setup", "demo")[::2], (2, []))
        (self.home / "brew").unlink()
        code, said, _ = self.run_script("scripts/setup", "test")
        self.assertEqual((code, said), (1, "setup: get Homebrew, then: brew install googletest python3\n"))

    def test_all_is_built_and_tested_by_the_same_commands(self):
        self.install(FORMULAS)
        processors = os.sysconf("SC_NPROCESSORS_ONLN")
        code, said, done = self.run_script("scripts/test", "debug", "-R", "x")
        self.assertEqual(code, 0, said)
        self.assertIn("build: debug (log: build/debug.log)", said)
        self.assertEqual(done, ["cmake --preset debug", "cmake --build build/debug",
                                f"ctest --preset debug --parallel {2 * processors} -R x"])

    def test_cmake_finds_what_homebrew_keeps_apart(self):
        self.install("qt@5/lib/cmake/Qt5")
        config = self.home / "opt/qt@5/lib/cmake/Qt5/Qt5Config.cmake"
        config.write_text("")
        ask = self.home / "ask.cmake"
        ask.write_text(f"include({ROOT}/cmake/homebrew.cmake)\n"
                       'find_package(Qt5 REQUIRED)\nmessage("${Qt5_DIR};${CMAKE_PREFIX_PATH}")\n')
        said = self.run_script(shutil.which("cmake"), "-P", str(ask))[1]
        folders = [config.parent] + [self.home / "opt" / name for name in ("qt@5", "icu4c", "libarchive")]
        self.assertEqual(said.strip().split(";"), [str(folder) for folder in folders])


if __name__ == "__main__":
    unittest.main()
