"""The real program on a private X desktop with a tray host, driven from outside through the
accessibility bus: the icon, the panel, routing to the settings window, the command that
comes back through the program's own URL, the icon's menu and quitting.

Run by CTest with VANDOREL_BINARY and SCREENSHOT_DIR set."""

import os
import subprocess
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import accessible  # noqa: E402
from desktop import Desktop, wait_for  # noqa: E402

BINARY = os.environ["VANDOREL_BINARY"]
SHOTS = os.environ["SCREENSHOT_DIR"]
NO_TRAY = ("⚠️ No system tray found: the icon will appear when one starts. "
           "Open the settings with: xdg-open vandorel://settings")
FIREFOX_TARGET = ('targetDefaultBrowser="@ByteArray({\\"id\\":\\"6F1C1E3A-27D5-4B8E-9D0A-'
                  '3C2B1A0F9E8D\\",\\"name\\":\\"Firefox ESR\\",\\"bundleIdentifier\\":'
                  '\\"firefox-esr\\"})"\n')
BROWSER_TYPES = ["x-scheme-handler/http", "x-scheme-handler/https"]


def pixels(path):
    """The (r, g, b) of every pixel of a picture."""
    text = subprocess.run(["/usr/bin/convert", path, "-depth", "8", "txt:-"],
                          capture_output=True, text=True, check=True).stdout
    result = []
    for line in text.splitlines()[1:]:
        values = line.split("(", 1)[1].split(")", 1)[0].split(",")
        result.append(tuple(int(float(v)) for v in values[:3]))
    return result


def has_colour(path, colour, tolerance=24):
    return any(all(abs(a - b) <= tolerance for a, b in zip(pixel, colour))
               for pixel in pixels(path))


def brightness(path):
    """The mean of all channels of all pixels, 0 to 255."""
    values = pixels(path)
    return sum(sum(p) for p in values) / (3 * len(values))


def is_grey(path):
    return all(max(p) - min(p) <= 24 for p in pixels(path))


class Shell:
    """The program on a desktop, with its icon and its node on the accessibility bus."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        self.program = program
        self.icon = wait_for(lambda: next((w for w in desktop.mapped_windows(program.pid)
                                           if desktop.is_embedded(w)), None),
                             20, "the icon in the tray")
        self.app = accessible.application(program.pid)
        self.popups = accessible.PopupCatcher(self.app)

    def shot(self, name, crop=None):
        os.makedirs(SHOTS, exist_ok=True)
        return self.desktop.screenshot(os.path.join(SHOTS, name + ".png"), crop)

    def icon_shot(self, name):
        return self.shot(name, self.desktop.geometry(self.icon))

    def panel_shot(self, name, panel_window):
        """The panel with the tray icon above it, on a margin of the desktop."""
        boxes = [self.desktop.geometry(w) for w in (panel_window, self.icon)]
        left = max(0, min(x for x, _, _, _ in boxes) - 16)
        right = max(x + width for x, _, width, _ in boxes)
        bottom = max(y + height for _, y, _, height in boxes) + 16
        return self.shot(name, (left, 0, right - left, bottom))

    def open_panel(self):
        """Clicks the icon; returns the panel's node and its X window."""
        before = set(self.desktop.mapped_windows(self.program.pid))
        node = self.popups.catch(
            lambda: self.desktop.click_window(self.icon),
            lambda n: any(accessible.role(b) == "push button"
                          and accessible.name(b).endswith("Ctrl+Q")
                          for b in accessible.walk(n)))
        window = wait_for(lambda: next(iter(set(self.desktop.mapped_windows(self.program.pid))
                                            - before), None), 20, "the panel's window")
        return node, window

    def wait_closed(self, window):
        wait_for(lambda: not self.desktop.is_mapped(window), 20, "the popup to close")

    def row(self, panel, prefix):
        return wait_for(lambda: accessible.find(panel, "push button", prefix=prefix), 20,
                        "the row " + prefix)

    def selected_tab(self, window):
        return next((accessible.name(tab) for tab in accessible.walk(window)
                     if accessible.role(tab) == "page tab"
                     and accessible.has_state(tab, accessible.Atspi.StateType.SELECTED)), None)


class ShellTest(unittest.TestCase):
    """One desktop for both cases, in order: the accessibility bus stays the first one seen."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop().__enter__()
        accessible.attach(cls.desktop)
        d = cls.desktop
        d.application("firefox-esr", "Firefox ESR", BROWSER_TYPES)
        d.application("chromium", "Chromium", BROWSER_TYPES)
        d.application("thunderbird", "Thunderbird", ["x-scheme-handler/mailto"])

    @classmethod
    def tearDownClass(cls):
        cls.desktop.close()

    def test_1_panel_routing_commands_menu_and_quit(self):
        d = self.desktop
        d.defaults({"x-scheme-handler/https": "firefox-esr", "x-scheme-handler/http": "firefox-esr",
                    "x-scheme-handler/mailto": "thunderbird"})
        # No tray yet: the program says so, keeps running, and shows up once one starts.
        program = d.start_program(BINARY)
        self.addCleanup(program.stop)
        program.wait_for_line(NO_TRAY)
        d.start_tray()
        shell = Shell(d, program)
        self.assertTrue(is_grey(shell.icon_shot("e2e-icon-plain-protected")))

        panel, panel_window = shell.open_panel()
        names = [accessible.name(n) for n in accessible.walk(panel) if accessible.role(n) == "push button"]
        self.assertEqual(names, ["Default browser: Firefox ESR — Protected",
                                 "Default mail client: Thunderbird — Protected",
                                 "Settings Ctrl+,", "Send feedback", "About", "Quit Ctrl+Q"])
        shell.panel_shot("e2e-panel-en", panel_window)

        # The mail row opens the settings window on the mail page.
        accessible.press(shell.row(panel, "Default mail client"))
        settings = accessible.window(shell.app, "Vandorel Settings")
        wait_for(lambda: shell.selected_tab(settings) == "Mail", 20, "the mail tab")
        self.assertEqual(accessible.extents(settings)[2:], (700, 550))
        self.assertFalse(accessible.has_state(settings, accessible.Atspi.StateType.RESIZABLE))
        active = accessible.Atspi.StateType.ACTIVE
        wait_for(lambda: accessible.has_state(settings, active), 20, "the settings window")
        shell.shot("e2e-settings-email", accessible.extents(settings))
        # The toolkit closes the panel when another window of the program takes the focus.
        shell.wait_closed(panel_window)

        # A second click on the icon closes the panel.
        panel, panel_window = shell.open_panel()
        d.click_window(shell.icon)
        shell.wait_closed(panel_window)

        # Open on another page, the window switches to the browser page: no second window.
        accessible.press(accessible.find(settings, "page tab", "Log"))
        wait_for(lambda: shell.selected_tab(settings) == "Log", 20, "the log tab")
        panel, panel_window = shell.open_panel()
        accessible.press(shell.row(panel, "Default browser"))
        wait_for(lambda: shell.selected_tab(settings) == "Browser", 20, "the browser tab")
        self.assertEqual(len(accessible.windows_named(shell.app, "Vandorel Settings")), 1)

        # Ctrl+, in the about window comes back through vandorel://settings.
        accessible.press(shell.row(panel, "About"))
        about = accessible.window(shell.app, "About Vandorel")
        wait_for(lambda: accessible.has_state(about, active), 20, "the about window to be active")
        shell.wait_closed(panel_window)
        d.key("ctrl+comma")
        wait_for(lambda: accessible.has_state(settings, active), 20, "the settings window")
        self.assertEqual(shell.selected_tab(settings), "Browser")

        # A right click shows the same rows as a menu.
        menu = shell.popups.catch(lambda: d.click_window(shell.icon, 3),
                                  lambda n: accessible.find(n, "menu item") is not None)
        items = [n for n in accessible.walk(menu) if accessible.role(n) == "menu item"]
        self.assertEqual([accessible.name(n).split("\t")[0] for n in items],
                         ["Default browser: Firefox ESR — Protected",
                          "Default mail client: Thunderbird — Protected",
                          "Settings", "Send feedback", "About", "Quit"])
        enabled = accessible.Atspi.StateType.ENABLED
        self.assertEqual([accessible.has_state(n, enabled) for n in items],
                         [False, False, True, True, True, True])
        x, y, width, height = accessible.extents(menu)
        shell.shot("e2e-menu", (x, y, width, height))
        d.key("Escape")

        # Quitting from the panel ends the process with status 0.
        panel, _ = shell.open_panel()
        accessible.press(shell.row(panel, "Quit"))
        self.assertEqual(program.wait_for_exit(), 0)
        shell.popups.close()

    def test_2_coloured_icon_and_panel_in_another_language(self):
        d = self.desktop
        d.defaults({"x-scheme-handler/https": "chromium", "x-scheme-handler/http": "chromium",
                    "x-scheme-handler/mailto": "thunderbird"})
        d.settings("[General]\napp_language=de\nshowColoredMenuBarIcon=true\n"
                   "hasLaunchedBefore=true\nmonitoringEnabled=true\ncheckInterval=10min\n"
                   + FIREFOX_TARGET)
        program = d.start_program(BINARY)
        self.addCleanup(program.stop)
        shell = Shell(d, program)
        # The check at start finds Chromium where Firefox should be, and asks; keep it.
        alerts = lambda: [w for w in accessible.children(shell.app)  # noqa: E731
                          if accessible.role(w) == "alert"]
        alert = wait_for(alerts, 20, "the alert")[0]
        buttons = [n for n in accessible.walk(alert) if accessible.role(n) == "push button"]
        accessible.press(buttons[-1])
        wait_for(lambda: not alerts(), 20, "the alert to go")

        self.assertTrue(has_colour(shell.icon_shot("e2e-icon-colored-mismatch"), (255, 149, 0)))
        panel, panel_window = shell.open_panel()
        self.assertEqual(shell.row(panel, "Standardbrowser").get_name(),
                         "Standardbrowser: Chromium, Sollte Firefox ESR sein — "
                         "Abweichung ・ Geschützt")
        shell.panel_shot("e2e-panel-de-mismatch", panel_window)
        accessible.press(shell.row(panel, "Beenden"))
        self.assertEqual(program.wait_for_exit(), 0)
        shell.popups.close()

    def test_3_every_tab_by_name_in_japanese(self):
        d = self.desktop
        d.defaults({"x-scheme-handler/https": "firefox-esr", "x-scheme-handler/http": "firefox-esr",
                    "x-scheme-handler/mailto": "thunderbird"})
        # The browser guard switched off, the mail guard on its first start; the dark look,
        # which the general page applies when it first appears.
        d.settings("[General]\napp_language=ja\nhasLaunchedBefore=true\nmonitoringEnabled=false\n"
                   "appearanceMode=dark\n")
        program = d.start_program(BINARY)
        self.addCleanup(program.stop)
        shell = Shell(d, program)
        icon = pixels(shell.icon_shot("e2e-icon-plain-not-protected"))
        panel, panel_window = shell.open_panel()
        names = [accessible.name(n) for n in accessible.walk(panel)
                 if accessible.role(n) == "push button"]
        self.assertEqual(names, ["既定のブラウザ: Firefox ESR — 保護なし",
                                 "既定のメールクライアント: Thunderbird — 保護中",
                                 "設定 Ctrl+,", "フィードバックを送信", "バージョン情報",
                                 "終了 Ctrl+Q"])
        shell.panel_shot("e2e-panel-ja", panel_window)

        # The settings row opens the general page; every tab is reached by its name.
        accessible.press(shell.row(panel, "設定"))
        settings = accessible.window(shell.app, "Vandorel の設定")
        wait_for(lambda: shell.selected_tab(settings) == "一般", 20, "the general tab")
        active = accessible.Atspi.StateType.ACTIVE
        wait_for(lambda: accessible.has_state(settings, active), 20, "the settings window")
        place = accessible.extents(settings)
        for raw, title in [("browser", "ブラウザ"), ("email", "メール"), ("log", "履歴"),
                           ("feedback", "フィードバック"), ("general", "一般")]:
            accessible.press(accessible.find(settings, "page tab", title))
            wait_for(lambda: shell.selected_tab(settings) == title, 20, "the tab " + title)
            # The window stays where it is, as large as it was, and keeps the focus.
            self.assertEqual(accessible.extents(settings), place)
            self.assertTrue(accessible.has_state(settings, active))
            shell.shot("e2e-settings-ja-" + raw, place)
        self.assertEqual(len(accessible.windows_named(shell.app, "Vandorel の設定")), 1)

        panel, panel_window = shell.open_panel()
        self.assertLess(brightness(shell.shot("e2e-panel-ja-dark-only",
                                              d.geometry(panel_window))), 96)
        shell.panel_shot("e2e-panel-ja-dark", panel_window)
        # The tray is the desktop's: the program's dark look leaves the icon as it was.
        self.assertEqual(pixels(shell.icon_shot("e2e-icon-plain-dark-look")), icon)
        accessible.press(shell.row(panel, "終了"))
        self.assertEqual(program.wait_for_exit(), 0)
        shell.popups.close()


if __name__ == "__main__":
    unittest.main(verbosity=2)
