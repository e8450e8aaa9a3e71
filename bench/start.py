#!/usr/bin/env python3
"""How long Orvanta takes to show its window, as a multiple of an empty window's time: start.py ORV EMPTYWINDOW

Both are started in turn, 20 times, on the display of the environment; each time is from the start of the process to the
moment that its window is mapped, as xdotool sees it. Prints the medians and their ratio."""

import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time


def seconds_to_window(command, environment):
    start = time.perf_counter()
    process = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(process.pid)],
                   check=True, stdout=subprocess.DEVNULL, timeout=30)
    elapsed = time.perf_counter() - start
    process.kill()
    process.wait()
    return elapsed


def main():
    orv, empty = sys.argv[1:3]
    with tempfile.TemporaryDirectory() as data:
        config = pathlib.Path(data) / "Kelvory/Orvanta/config"
        config.mkdir(parents=True)
        (config / "global.xml").write_text("<Settings><IsFirstStart>false</IsFirstStart>"
                                           "<DisableSplashScreen>true</DisableSplashScreen></Settings>")
        environment = dict(os.environ, XDG_DATA_HOME=data)
        times = {orv: [], empty: []}
        for _ in range(20):
            for command in (orv, empty):
                times[command].append(seconds_to_window([command], environment))
        medians = [statistics.median(times[command]) for command in (orv, empty)]
        print(f"orv {medians[0] * 1000:.0f} ms, empty window {medians[1] * 1000:.0f} ms, "
              f"ratio {medians[0] / medians[1]:.2f}")


main()
