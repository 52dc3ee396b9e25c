#!/usr/bin/env python3
"""table.py BUILD_DIR: measures the programs of a release build on the display there is, and prints one table, in
Markdown. What a window costs stands beside what an empty one costs, what painting costs beside the uncached painter, in
the same run. Ends with 1 when a figure is over its budget. Wants an idle machine, and takes a quarter of an hour."""

import json
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time

BUILD = os.path.abspath(sys.argv[1])
STARTS = 15
SETTLED_SECONDS = 3
MOVING_NUMBER = 4  # Flash_away (Stream), as in lumo_window_cpu
MOVING_PAIRS = 5


def environment(scale, folder):
    """A program's own, without a trace of the last run's settings."""
    return dict(os.environ, QT_SCALE_FACTOR=str(scale), XDG_CONFIG_HOME=folder, QT_PLUGIN_PATH=f"{BUILD}/first_paint")


def start_once(program, scale):
    """Milliseconds from its start to its first painted window, and its memory in MiB some seconds later."""
    with tempfile.TemporaryDirectory() as folder:
        painted = os.path.join(folder, "painted")
        variables = dict(environment(scale, folder), QT_QPA_GENERIC_PLUGINS="firstpaint", LUMO_FIRST_PAINT=painted)
        begin = time.monotonic_ns()
        process = subprocess.Popen([f"{BUILD}/bin/{program}"], env=variables, stdout=subprocess.DEVNULL)
        try:
            time.sleep(SETTLED_SECONDS)
            with open(f"/proc/{process.pid}/smaps_rollup", encoding="ascii") as rollup:
                kib = int(re.search(r"^Pss: *(\d+) kB", rollup.read(), re.MULTILINE).group(1))
            with open(painted, encoding="ascii") as file:
                return (int(file.read()) - begin) / 1e6, kib / 1024
        finally:
            process.kill()
            process.wait()


def starts(scale):
    """Medians of the empty window and of ours, started in turns: ((ms, MiB), (ms, MiB))."""
    found = {"lumo_empty_window": [], "vexa-lumo-65": []}
    for _ in range(STARTS):
        for program, results in found.items():
            results.append(start_once(program, scale))
    return [tuple(statistics.median(column) for column in zip(*results)) for results in found.values()]


def open_windows(scale, *arguments):
    """{what: (per cent of a core, wake-ups a second)}"""
    with tempfile.TemporaryDirectory() as folder:
        lines = subprocess.run([f"{BUILD}/bin/lumo_window_cpu", *arguments], env=environment(scale, folder), check=True,
                               capture_output=True, text=True).stdout
    found = re.findall(r"^(\S.*?) +([\d.]+) % of a core +([\d.]+) wake-ups", lines, re.MULTILINE)
    return {what: (float(cpu), float(wakes)) for what, cpu, wakes in found}


def benches(pattern):
    with tempfile.TemporaryDirectory() as folder:
        out = os.path.join(folder, "out.json")
        subprocess.run([f"{BUILD}/bin/lumo_bench", f"--benchmark_filter={pattern}", f"--benchmark_out={out}"],
                       env=environment(1, folder), check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        with open(out, encoding="utf-8") as file:
            return json.load(file)["benchmarks"]


def uncached_percent(scale):
    """Of a core, for 60 frames a second of the moving effect, each drawn anew."""
    frame, = benches(f"previewFrame/{MOVING_NUMBER}/{scale}/")
    return frame["uncached_ms"] * 60 / 10


def moving_effect(scale):
    """(per cent of a core, share of the uncached painter's, the uncached painter's): the median of some pairs, since the
    speed of the machine may change from one minute to the next."""
    pairs = []
    for _ in range(MOVING_PAIRS):
        before = uncached_percent(scale)
        cpu = open_windows(scale, "moving")["moving"][0]
        uncached = (before + uncached_percent(scale)) / 2
        pairs.append((cpu / uncached, cpu, uncached))
    ratio, cpu, uncached = sorted(pairs)[MOVING_PAIRS // 2]
    return cpu, ratio, uncached


class Table:
    def __init__(self):
        self.is_within = True
        print("| figure | wanted | measured | |\n|---|---|---|---|", flush=True)

    def row(self, figure, wanted, measured, is_within=True):
        self.is_within = self.is_within and is_within
        print(f"| {figure} | {wanted} | {measured} | {'' if is_within else 'OVER'} |", flush=True)


def write_starts(table, scale):
    """Budgets are for scale 1: both windows have four times the pixels at 2, but the empty one paints none of them."""
    (empty_ms, empty_mib), (ms, mib) = starts(scale)
    is_free = scale != 1
    table.row(f"start to the first painted window, scale {scale}", "–" if is_free else "≤ 2 × the empty window's",
              f"{ms:.0f} ms, {ms / empty_ms:.2f} × {empty_ms:.0f} ms", is_free or ms <= 2 * empty_ms)
    table.row(f"memory (PSS) of the open window, scale {scale}", "–" if is_free else "≤ the empty window's + 14 MiB",
              f"{mib:.1f} MiB, {empty_mib:.1f} + {mib - empty_mib:.1f}", is_free or mib <= empty_mib + 14)


def write_open_windows(table, scale, budget):
    found = open_windows(scale)
    for what in ("empty window", "empty window, timer of 2 s"):
        table.row(f"{what}, 20 s, scale {scale}", "–", "{:.4f} %, {:.2f} wake-ups a second".format(*found[what]))
    cpu, wakes = found["still"]
    table.row(f"a still effect, 20 s, scale {scale}", "0.00 %, under 1 wake-up a second",
              f"{cpu:.4f} %, {wakes:.2f} wake-ups a second", cpu < 0.005 and wakes < 1)
    cpu, ratio, uncached = moving_effect(scale)
    table.row(f"60 frames a second of a moving effect, scale {scale}", f"≤ {budget:.3f} of the uncached painter",
              f"{cpu:.1f} % of a core, {ratio:.3f} × {uncached:.0f} %", ratio <= budget)


def write_frames(table, frames):
    for scale in (1, 2):
        ratios = {frame["label"]: frame["ratio"] for frame in frames if f"/{scale}/" in frame["name"]}
        worst = max(ratios, key=ratios.get)
        table.row(f"one preview frame, the dearest of {len(ratios)} effects, scale {scale}",
                  "≤ 0.06 of the uncached painter", f"{ratios[worst]:.3f} ({worst})", ratios[worst] <= 0.06)


def write_traffic(table):
    command, = benches("lightingCommand")
    over = command["worst_over_pauses_ms"]
    table.row("a lighting command over the in-process keyboard", "its three pauses (60 ms) + 2 ms",
              f"{command['real_time']:.1f} ms on average, at worst + {over:.1f} ms", over <= 2)
    gaps = benches("gapWhileHanging")
    worst = max(gaps, key=lambda gap: gap["real_time"])
    table.row(f"longest gap between two turns of the event loop, {len(gaps)} hanging transfers", "< 50 ms",
              f"{worst['real_time']:.1f} ms ({worst['label']})", worst["real_time"] < 50)


def main():
    table = Table()
    for scale in (1, 2):
        write_starts(table, scale)
    write_open_windows(table, 1, 2.0 / 30)
    write_open_windows(table, 2, 4.5 / 56)
    write_frames(table, benches("previewFrame"))
    write_traffic(table)
    return 0 if table.is_within else 1


sys.exit(main())
