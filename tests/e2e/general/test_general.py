"""The real program on a private X desktop, driven through the accessibility bus: turning
launch at login on in the settings window writes an autostart entry that the desktop's own
validator accepts and that starts this very program with --login; turning it off removes it.

Run by CTest with VANDOREL_BINARY and SCREENSHOT_DIR set."""

import os
import shlex
import shutil
import subprocess
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "shell"))

import accessible  # noqa: E402
from desktop import Desktop, wait_for  # noqa: E402
from test_shell import NO_TRAY, SHOTS, Shell  # noqa: E402

BINARY = os.environ["VANDOREL_BINARY"]
ENTRY = "home/.config/autostart/io.kestrane.vandorel.desktop"


def exec_line(path):
    """The Exec value of the [Desktop Entry] group, split as a desktop launcher splits it."""
    group = None
    with open(path, encoding="utf-8") as entry:
        for line in entry:
            line = line.rstrip("\n")
            if line.startswith("["):
                group = line
            elif group == "[Desktop Entry]" and line.startswith("Exec="):
                return shlex.split(line[len("Exec="):].replace("\\\\", "\\"))
    return None


class GeneralPageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop().__enter__()
        accessible.attach(cls.desktop)

    @classmethod
    def tearDownClass(cls):
        cls.desktop.close()

    def test_launch_at_login_writes_and_removes_the_autostart_entry(self):
        d = self.desktop
        for tool in ("desktop-file-validate", "xdotool", "trayer"):
            self.assertIsNotNone(shutil.which(tool), tool)
        program = d.start_program(BINARY)
        self.addCleanup(program.stop)
        # A tray that comes up while the program looks for one makes it build its icon
        # twice: the first icon found would be gone by the click.
        program.wait_for_line(NO_TRAY)
        d.start_tray()
        shell = Shell(d, program)
        panel, _ = shell.open_panel()
        accessible.press(shell.row(panel, "Settings"))
        settings = accessible.window(shell.app, "Vandorel Settings")
        switch = wait_for(lambda: accessible.find(settings, "check box", "Launch at login"), 20,
                          "the launch at login switch")
        checked = accessible.Atspi.StateType.CHECKED
        self.assertFalse(accessible.has_state(switch, checked))
        entry = d.path(ENTRY)
        self.assertFalse(os.path.exists(entry))

        accessible.press(switch)
        wait_for(lambda: os.path.exists(entry), 20, "the autostart entry")
        self.assertTrue(accessible.has_state(switch, checked))
        validation = subprocess.run(["desktop-file-validate", entry], capture_output=True,
                                    text=True)
        self.assertEqual((validation.returncode, validation.stdout + validation.stderr), (0, ""))
        command = exec_line(entry)
        self.assertEqual(len(command), 2, command)
        self.assertEqual(os.path.realpath(command[0]), os.path.realpath(BINARY))
        self.assertEqual(command[1], "--login")
        shell.shot("e2e-general-launch-at-login", accessible.extents(settings))

        accessible.press(switch)
        wait_for(lambda: not os.path.exists(entry), 20, "the autostart entry to go")
        self.assertFalse(accessible.has_state(switch, checked))
        self.assertFalse([line for line in program.lines if line.startswith("Failed to")])
        shell.popups.close()


if __name__ == "__main__":
    unittest.main()
