#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Makes the tables of docs/benchmarks.md, docs/benchmarks.json and README.md from a run.

Usage: benchmarks/table.py BUILD_FOLDER, from the root of the project. The folder holds the
benchmarks.json of the run.
"""

import json
import pathlib
import platform
import re
import subprocess
import sys

SIZES = (10000, 100000, 1000000)
SHAPES = {
    "one_polyline": "one polyline",
    "ten_each": "ten segments each",
    "one_each": "one segment each",
}
SHORT_SHAPE = "ten_each"

# Name of the benchmark, what it measures, the counter that counts, the aim, its limit.
DXFLIB = "dxflib reading into an empty adapter"
SUM = "a plain sum over all coordinates"
ROWS = (
    ("read_bytes", "Read bytes", "ratio", 1.10, DXFLIB),
    ("read_file", "Read a file", "ratio", 1.10, DXFLIB),
    ("read_many_layers", "Read, a layer for two polylines", "ratio", 1.15, DXFLIB),
    ("setup", "Set up, with bounds", "ns_per_segment", 60, SUM),
    ("setup_many_layers", "Set up, a layer for two polylines", "ns_per_segment", 1000, SUM),
    ("paint", "Paint all", "ratio", 1.05, "drawing the lines one by one with one pen"),
    ("items_under_mouse", "Find what is under the eraser", "ratio", 2.0, SUM),
    ("select_some", "Select five ids", "ratio", 2.0, SUM),
    ("select_all", "Select every id", "ns_per_segment", 100, SUM),
    ("selected_ids", "List the selected ids", "ratio", 2.0, SUM),
    ("delete_first_batch", "Delete five segments, first time", "ns_per_segment", 60, SUM),
    ("delete_further_batch", "Delete five more", "ns_per_segment", 40, SUM),
    ("delete_all", "Delete all", "ns_per_segment", 200, SUM),
    ("undo_one", "Undo one deletion", "ns_per_segment", 40, SUM),
    ("redo_one", "Redo one deletion", "ns_per_segment", 40, SUM),
    ("undo_ten", "Undo ten deletions", "ns_per_segment", 400, SUM),
    ("redo_ten", "Redo ten deletions", "ns_per_segment", 400, SUM),
    ("write_bytes", "Write bytes", "ratio", 0.4, "dxflib writing the same polylines"),
    ("memory_of_drawing", "Memory of a drawing", "bytes_per_segment", 120, None),
    ("memory_of_command", "Memory of a deletion beyond what it changes", "bytes_per_entity", 200, None),
    ("stroke_event", "A stroke's event until it is painted", "median_ms", None, None),
)
UNITS = {
    "ratio": "× the limit",
    "ns_per_segment": "ns per segment",
    "bytes_per_segment": "bytes per segment",
    "bytes_per_entity": "bytes per entity",
    "median_ms": "ms",
}


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def cache_entry(build, name):
    match = re.search(rf"^{name}:[^=]*=(.*)$", (build / "CMakeCache.txt").read_text(), re.M)
    return match.group(1) if match else ""


def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return platform.machine()


def context_of(build, run):
    changed = output_of("git", "status", "--porcelain", "--untracked-files=no")
    commit = output_of("git", "rev-parse", "--short=12", "HEAD")
    qt_major = cache_entry(build, "DXFVIEWER_QT_MAJOR")
    compiler = cache_entry(build, "CMAKE_CXX_COMPILER")
    return {
        "date": run["context"]["date"][:10],
        "commit": commit + (" with changes" if changed else ""),
        "machine": f"{processor()}, {run['context']['num_cpus']} processors, {platform.system()} "
        f"{platform.release()}",
        "compiler": output_of(compiler, "--version").splitlines()[0],
        "qt": output_of("pkg-config", "--modversion", f"Qt{qt_major}Core"),
        "build_type": cache_entry(build, "CMAKE_BUILD_TYPE"),
    }


def figures_of(run):
    """The counters, and the time in milliseconds, by benchmark, shape and size."""
    kept = (*UNITS, "limit_ns_per_segment", "p99_ms")
    figures = {}
    for entry in run["benchmarks"]:
        if entry["run_type"] != "iteration" or "error_message" in entry:
            continue
        name, shape, size, *_ = entry["name"].split("/")
        figure = {key: value for key, value in entry.items() if key in kept}
        figures[name, shape, int(size)] = {"time_ms": entry["real_time"], **figure}
    return figures


def deviation_of(figures, name, shape):
    """The root mean square of what a straight line through zero leaves, as a share of the mean.

    Google Benchmark computes the same, but from processor times, to which the rounds and what is
    not timed in them belong.
    """
    points = [
        (size, figures[name, shape, size]["time_ms"])
        for size in SIZES
        if (name, shape, size) in figures
    ]
    if len(points) < 2:
        return None
    slope = sum(n * t for n, t in points) / sum(n * n for n, _ in points)
    mean_square = sum((t - slope * n) ** 2 for n, t in points) / len(points)
    return mean_square**0.5 / (sum(t for _, t in points) / len(points))


def number(value):
    if value is None:
        return "–"
    digits = 0 if value >= 100 else 1 if value >= 10 else 2
    return f"{value:.{digits}f}"


def aim_of(row):
    _, _, counter, aim, _ = row
    return "–" if aim is None else f"≤ {aim:g} {UNITS[counter]}"


def shown_counter(row):
    """Operations are shown by their times, whatever the aim is about."""
    return "ns_per_segment" if row[2] == "ratio" else row[2]


def table(rows, header):
    lines = ["| " + " | ".join(header) + " |", "|" + "---|" * len(header)]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows])


def largest(figures, name, shape):
    sizes = [size for size in SIZES if (name, shape, size) in figures]
    return figures[name, shape, sizes[-1]] if sizes else {}


def full_table(figures, shape):
    rows = []
    for row in ROWS:
        name, title, counter, aim, _ = row
        last = largest(figures, name, shape)
        if not last:
            continue
        shown = shown_counter(row)
        met = "–" if aim is None else "yes" if last[counter] <= aim else "no"
        deviation = deviation_of(figures, name, shape)
        rows.append(
            [f"{title}, {UNITS[shown]}"]
            + [number(figures.get((name, shape, size), {}).get(shown)) for size in SIZES]
            + [number(last.get("ratio")), aim_of(row), met]
            + ["–" if deviation is None else f"{deviation:.0%}"]
        )
    header = ["operation"] + [f"{size:,}" for size in SIZES]
    return table(rows, header + ["ratio", "aim", "met", "from linear"])


def stroke_table(figures):
    rows = []
    for shape, title in SHAPES.items():
        for size in SIZES:
            figure = figures.get(("stroke_event", shape, size))
            if figure:
                rows.append(
                    [title, f"{size:,}", number(figure["median_ms"]), number(figure["p99_ms"])]
                )
    return table(rows, ["drawing", "segments", "median, ms", "99th percentile, ms"])


def page(context, figures):
    limits = "\n".join(f"- {row[1]}: {row[4]}" for row in ROWS if row[4])
    parts = [
        "# Benchmarks",
        "Written by `scripts/bench`. Times are processor times, the best of some rounds in which "
        "the operation and what limits it took turns. The ratio of both and the verdict on the "
        "aim are those of the largest drawing. The last column tells how far the times are from "
        "growing with the drawing's size.",
        "\n".join(f"- {key.replace('_', ' ')}: {value}" for key, value in context.items()),
    ]
    for shape, title in SHAPES.items():
        parts += [f"## {title.capitalize()}", full_table(figures, shape)]
    parts += [
        "## A stroke of the eraser",
        "Press, 60 moves and release across the window, each waited for until the window has "
        "painted it and done the deletions that were due. Time on the clock.",
        stroke_table(figures),
        "## What the ratios compare with",
        limits,
    ]
    return "\n\n".join(parts) + "\n"


def short_form(context, figures):
    rows = []
    for row in ROWS:
        figure = largest(figures, row[0], SHORT_SHAPE)
        if figure:
            shown = shown_counter(row)
            rows.append(
                [row[1], f"{number(figure[shown])} {UNITS[shown]}", number(figure.get("ratio"))]
            )
    note = (
        f"A million segments in polylines of ten; {context['date']}, {context['machine']}, "
        f"Qt {context['qt']}, commit {context['commit']}. The ratio compares the operation "
        "with the work that limits it; [docs/benchmarks.md](docs/benchmarks.md) says what that is, and has more."
    )
    return note + "\n\n" + table(rows, ["operation", "figure", "ratio"])


def fill_readme(text):
    readme = pathlib.Path("README.md")
    begin, end = "<!-- benchmarks -->", "<!-- /benchmarks -->"
    content = readme.read_text() if readme.exists() else ""
    if begin not in content or end not in content:
        print(f"README.md has no {begin} … {end}, so the short table is left out", file=sys.stderr)
        return
    head, rest = content.split(begin, 1)
    tail = rest.split(end, 1)[1]
    readme.write_text(f"{head}{begin}\n{text}\n{end}{tail}")


def main():
    build = pathlib.Path(sys.argv[1])
    run = json.loads((build / "benchmarks.json").read_text())
    context = context_of(build, run)
    figures = figures_of(run)
    docs = pathlib.Path("docs")
    (docs / "benchmarks.md").write_text(page(context, figures))
    entries = [
        {"name": name, "shape": shape, "segments": size, **figure}
        for (name, shape, size), figure in figures.items()
    ]
    text = json.dumps({"context": context, "benchmarks": entries}, indent=1, ensure_ascii=False)
    (docs / "benchmarks.json").write_text(text + "\n")
    fill_readme(short_form(context, figures))


if __name__ == "__main__":
    main()
