"""Runs ovprefs, and commands in which it occurs."""

import json
import os
import pathlib
import subprocess
import tempfile


class Failure(Exception):
    """A command that did not do what the manual says."""


class Companion:
    """One build of ovprefs. Its answers depend on its arguments only, not on time or machine."""

    _HEADER = ["--user", "J. Reeve", "--computer", "YORK-CAD-07", "--date", "Monday 12 October 2026, 09:14:05",
               "--today", "2026-10-12"]

    def __init__(self, program):
        self._program = pathlib.Path(program).resolve()
        if not os.access(self._program, os.X_OK):
            raise Failure(f"{program} is no program")
        # Commands are printed as "ovprefs", whatever the file is called.
        self._folder = tempfile.TemporaryDirectory(prefix="make-manual-")
        (pathlib.Path(self._folder.name) / "ovprefs").symlink_to(self._program)

    def run(self, *arguments, given=None, codes=(0,)):
        """The standard output. Fails for any other exit code than the given ones."""
        done = subprocess.run([self._program, *arguments], input=given, capture_output=True, check=False)
        if done.returncode not in codes:
            raise Failure(f"ovprefs {' '.join(arguments)}: {done.stderr.decode()}")
        return done.stdout.decode("utf-8")

    def version(self):
        """Such as '1.0.0 (0123abc)': the version and, where it is known, the git revision."""
        return self.run("--version").splitlines()[0].removeprefix("ovprefs ")

    def reference(self):
        """The facts about all settings."""
        return json.loads(self.run("reference", "--format", "json"))

    def saved(self, text):
        """The file that Save makes of this one."""
        return self.run("preview", "--format", "file", *self._HEADER, "-", given=text.encode()).replace("\r\n", "\n")

    def matches(self, kind, template, text):
        """True or False; None when texts are not evaluated under this type, or the template is no valid one."""
        done = subprocess.run([self._program, "match", "--ignore-case", kind, template, text], capture_output=True,
                              check=False)
        return {b"yes\n": True, b"no\n": False}.get(done.stdout)

    def session(self, lines, folder, codes=(0, 1)):
        """Runs command lines in the folder; returns (command, output) of each. Findings are no failure."""
        environment = {"PATH": f"{self._folder.name}:/usr/bin:/bin", "LC_ALL": "C.UTF-8", "TZ": "UTC",
                       "HOME": str(folder), "GIT_CONFIG_NOSYSTEM": "1", "NO_COLOR": "1", "GIT_PAGER": "cat",
                       "GIT_AUTHOR_DATE": "2026-10-12T09:14:05Z", "GIT_COMMITTER_DATE": "2026-10-12T09:14:05Z",
                       "GIT_AUTHOR_NAME": "J. Reeve", "GIT_AUTHOR_EMAIL": "j.reeve@hr.example",
                       "GIT_COMMITTER_NAME": "J. Reeve", "GIT_COMMITTER_EMAIL": "j.reeve@hr.example"}
        answers = []
        for line in lines:
            done = subprocess.run(["bash", "-c", line], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                                  capture_output=True, check=False)
            if done.returncode not in codes:
                raise Failure(f"{line}: exit code {done.returncode}: {done.stderr.decode()}")
            answers.append((line, (done.stdout + done.stderr).decode("utf-8").replace("\r\n", "\n")))
        return answers
