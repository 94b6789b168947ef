#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Makes the tables of docs/benchmarks.md, docs/benchmarks.json and README.md from a run.

Usage: benchmarks/table.py BUILD_FOLDER [NOTE], from the root of the project. The folder holds the
benchmarks.json of the run. The note says what else is to be known of it.
"""

import json
import pathlib
import platform
import re
import subprocess
import sys

SIZES = (10000, 100000, 1000000)
WAIT_SIZES = (100000, 1000000, 10000000)
SHAPES = {
    "one_polyline": "one polyline",
    "ten_each": "ten segments each",
    "one_each": "one segment each",
}
SHORT_SHAPE = "ten_each"

# Name of the benchmark, what it measures, the counter that is judged, the aim, its limit.
DXFLIB = "dxflib reading into an empty adapter"
SUM = "a plain sum over all coordinates"
ROWS = (
    ("read_bytes", "Read bytes", "ratio", 1.10, DXFLIB),
    ("read_file", "Read a file", "ratio", 1.10, DXFLIB),
    ("read_many_layers", "Read, a layer for two polylines", "ratio", 1.15, DXFLIB),
    ("flatten", "Read everything as polylines", "ratio", 1.5, "the reader that keeps polylines only"),
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
)

# Name of the benchmark, what it measures, the aims in milliseconds by shape and size.
WAITS = (
    ("hover_whole", "Move, all in view", {}),
    (
        "hover_zoomed",
        "Move, zoomed in",
        {
            ("ten_each", 100000): 1,
            ("ten_each", 1000000): 8,
            ("ten_each", 10000000): 60,
            ("one_each", 100000): 4,
            ("one_each", 1000000): 40,
        },
    ),
    (
        "drag_whole",
        "Erase, all in view",
        {("ten_each", 1000000): 110, ("one_each", 100000): 40},
    ),
    (
        "drag_zoomed",
        "Erase, zoomed in",
        {
            ("ten_each", 100000): 2,
            ("ten_each", 1000000): 20,
            ("ten_each", 10000000): 200,
            ("one_each", 100000): 8,
            ("one_each", 1000000): 100,
        },
    ),
)

# What a host developer asks first: the operation and the benchmarks that make it up.
SHORT_ROWS = (
    ("Open: read and set up", ("read_bytes", "setup")),
    ("Paint all of it", ("paint",)),
    ("Follow the mouse, zoomed in", ("hover_zoomed",)),
    ("Erase, zoomed in, each move of the mouse", ("drag_zoomed",)),
    ("Save", ("write_bytes",)),
)
SHORT_SIZES = (100000, 1000000)

DIFFERENCES = """**Reading and writing** cost what dxflib costs. The text is looked at once before, and numbers are
written without dxflib's detour through text of its own. A polyline's vertices have room for twelve
while they arrive, and the room that is left over is given back as soon as the polyline is whole.

**Painting** skips what cannot be seen when the painter makes pixels. A polyline knows its bounds,
so most polylines cost one comparison with the visible part of the drawing and none of their
segments is looked at. Pens are kept and handed over only when the next segment needs another. Thin
lines go to the raster painter in groups.

**Following the mouse** is painting and nothing else, so zoomed in it costs a walk over the
polylines and the lines in view. The walk reads summaries of the polylines, which lie side by side in
memory; the polylines themselves lie scattered. [Why and how](decisions/summaries.md).

**Erasing** is a hit test, a selection, a step of undo and a painting for each move. All of them read
the summaries. The hit test asks the bounds. The selection asks the range of a polyline's segment
ids and whether any segment is flagged, and opens a polyline only if it is concerned. A step keeps a
record of each polyline. The next steps share it while the polyline stays the same, and neighbours
that all stay the same share one list of records. Clones are made from the records when undo needs
them, with the ids that the step set aside for them.

**Memory.** The points of vertices without bulge and z stand in the segments already, so that after
the set-up such vertices are kept no longer, until somebody asks for them."""
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
        "machine": f"{processor()}, {run['context']['num_cpus']} processors, {platform.system()}",
        "compiler": output_of(compiler, "--version").splitlines()[0],
        "qt": output_of("pkg-config", "--modversion", f"Qt{qt_major}Core"),
        "build_type": cache_entry(build, "CMAKE_BUILD_TYPE"),
    }


def figures_of(run):
    """The counters, and the time in milliseconds, by benchmark, shape and size."""
    kept = (*UNITS, "limit_ns_per_segment", "p99_ms", "clock_ms", "limit_ms")
    figures = {}
    for entry in run["benchmarks"]:
        if entry["run_type"] != "iteration" or "error_message" in entry:
            continue
        name, shape, size, *_ = entry["name"].split("/")
        figure = {key: value for key, value in entry.items() if key in kept}
        figures[name, shape, int(size)] = {"time_ms": entry["real_time"], **figure}
    return figures


def deviation_of(figures, name, shape):
    """The root mean square of the distances from a straight line through zero, divided by the mean.

    Google Benchmark computes the same, but from processor times. These include all rounds, and the
    parts of the rounds that are not timed.
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
    """The tables show the time of an operation even if its aim is a ratio."""
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


def wait_table(figures):
    rows = []
    for name, title, aims in WAITS:
        for shape, drawing in SHAPES.items():
            for size in WAIT_SIZES:
                figure = figures.get((name, shape, size))
                if not figure:
                    continue
                aim = aims.get((shape, size))
                met = "–" if aim is None else "yes" if figure["median_ms"] <= aim else "no"
                rows.append(
                    [title, drawing, f"{size:,}"]
                    + [number(figure[key]) for key in ("median_ms", "p99_ms", "clock_ms")]
                    + [number(figure["limit_ms"]), "–" if aim is None else f"≤ {aim}", met]
                )
    header = ["event", "drawing", "segments", "median", "99th percentile"]
    return table(rows, header + ["on the clock", "limit", "aim", "met"])


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
        "## What a user waits for",
        "One event of the mouse in edit mode, in a window of 1000 by 800, until the window has "
        "painted it and done the deletions that were due; milliseconds of processor time, and the "
        "median of the time on the clock. Zoomed in is 15 steps. The limit is the time that it "
        "takes to find the visible lines in a plain array and to draw them with one pen.",
        wait_table(figures),
        "## What made the difference",
        DIFFERENCES,
        "## What the ratios compare with",
        limits,
    ]
    return "\n\n".join(parts) + "\n"


def short_form(context, figures):
    rows = []
    for title, names in SHORT_ROWS:
        cells = []
        for size in SHORT_SIZES:
            parts = [figures.get((name, SHORT_SHAPE, size)) for name in names]
            known = all(parts)
            cells.append(f"{number(sum(part['time_ms'] for part in parts))} ms" if known else "–")
        rows.append([title, *cells])
    note = (
        f"Segments in polylines of ten; {context['date']}, {context['machine']}, Qt "
        f"{context['qt']}, commit {context['commit']}. "
        "[docs/benchmarks.md](docs/benchmarks.md) has more, and what the figures compare with."
    )
    return note + "\n\n" + table(rows, ["operation"] + [f"{size:,}" for size in SHORT_SIZES])


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
    if len(sys.argv) > 2:
        context["note"] = sys.argv[2]
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
