"""Prints how long the program takes from its start until its icon sits in a tray, and then,
with the icon shown and nothing happening, its resident memory and how often its threads
wake up. Figures only: nothing is asserted.

Usage: tray_bench.py VANDOREL_BINARY [IDLE_SECONDS]"""

import os
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)),
                                "..", "..", "tests", "e2e", "shell"))

from desktop import Desktop, wait_for  # noqa: E402


def switches(pid):
    """Voluntary context switches of each of the process's threads, by thread id: each is a
    thread that went to sleep and later woke. (Involuntary ones count the machine's load,
    not the program.)"""
    counts = {}
    for task in os.listdir(f"/proc/{pid}/task"):
        try:
            with open(f"/proc/{pid}/task/{task}/status") as status:
                counts[task] = next(int(line.split()[1]) for line in status
                                    if line.startswith("voluntary_ctxt_switches"))
        except FileNotFoundError:  # the thread ended meanwhile
            pass
    return counts


def wakeups(before, after):
    """Wake-ups between two samples; a thread that ended in between is not counted."""
    return sum(count - before.get(task, 0) for task, count in after.items())


def resident_kib(pid):
    with open(f"/proc/{pid}/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS"))


def main():
    binary = sys.argv[1]
    idle = float(sys.argv[2]) if len(sys.argv) > 2 else 60.0
    runs = []
    with Desktop() as desktop:
        desktop.application("firefox-esr", "Firefox ESR",
                            ["x-scheme-handler/http", "x-scheme-handler/https"])
        desktop.defaults({"x-scheme-handler/https": "firefox-esr",
                          "x-scheme-handler/http": "firefox-esr"})
        desktop.start_tray()
        for run in range(3):
            program = desktop.start_program(binary)
            wait_for(lambda: any(desktop.is_embedded(w)
                                 for w in desktop.mapped_windows(program.pid)), 60, "the icon")
            runs.append(time.monotonic() - program.started)
            if run < 2:
                program.stop()
        # The last copy stays: let its start-up settle, then watch it idle.
        time.sleep(2)
        before = switches(program.pid)
        time.sleep(idle)
        per_minute = wakeups(before, switches(program.pid)) * 60.0 / idle
        rss = resident_kib(program.pid)
        program.stop()
    print("start to icon in the tray: " + ", ".join(f"{s * 1000:.0f} ms" for s in runs)
          + f" (best {min(runs) * 1000:.0f} ms)")
    print(f"resident memory, idle with the icon shown: {rss / 1024:.1f} MiB")
    print(f"wake-ups while idle: {per_minute:.1f} per minute (over {idle:.0f} s)")


if __name__ == "__main__":
    main()
