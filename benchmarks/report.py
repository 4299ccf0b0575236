#!/usr/bin/env python3
"""Prints the table of promises: what was measured, the baseline beside it, and whether the promise is kept.

    report.py [--write FILE] PROMISES FOLDER

FOLDER holds what the benchmarks told: NAME.json from Google Benchmark, NAME.txt with lines "figure NAME VALUE UNIT"
parted by tabs. Exit status 1 when a promise is not kept or was not measured.
"""
import argparse
import datetime
import json
import pathlib
import platform
import re
import sys

SECONDS = {"s": 1.0, "ms": 1e-3, "us": 1e-6, "ns": 1e-9}
HEAD = ["Promise", "Measured", "Baseline", "Ratio", "Goal", "Kept"]


def figures_of_google(file):
    """Medians by "PROGRAM/BENCHMARK/ARGUMENTS", as pairs of value and unit; a counter behind a dot."""
    figures = {}
    for run in json.loads(file.read_text())["benchmarks"]:
        if run.get("aggregate_name") != "median" or run.get("error_occurred"):
            continue
        name = re.sub(r"/(iterations:\d+|repeats:\d+|manual_time|real_time)", "", run["run_name"])
        figures[f"{file.stem}/{name}"] = (run["real_time"], run["time_unit"])
        if "longest_ms" in run:
            figures[f"{file.stem}/{name}.longest_ms"] = (run["longest_ms"], "ms")
    return figures


def figures_told(file):
    figures = {}
    for line in file.read_text().splitlines():
        cells = line.split("\t")
        if len(cells) == 4 and cells[0] == "figure":
            figures[f"{file.stem}/{cells[1]}"] = (float(cells[2]), cells[3])
    return figures


def read_figures(folder):
    figures = {}
    for file in sorted(folder.glob("*.json")):
        figures.update(figures_of_google(file))
    for file in sorted(folder.glob("*.txt")):
        figures.update(figures_told(file))
    return figures


def value_of(expression, unit, figures):
    """The figure of a name, or of "3*name", in a unit; None when it was not measured or there is none."""
    if expression == "-":
        return None
    times, _, name = expression.rpartition("*")
    if name not in figures:
        return None
    value, own = figures[name]
    if own != unit:
        value *= SECONDS[own] / SECONDS[unit]
    return value * float(times or 1)


def text_of(value, unit):
    """Three digits that count."""
    if value is None:
        return "-"
    digits = 3 if value < 1 else 2 if value < 10 else 1 if value < 100 else 0
    if unit == "stalls":
        digits = 0
    return f"{value:.{digits}f} {'µs' if unit == 'us' else unit}"


def judge(rule, goal, measured, baseline):
    """True or False; None when something is missing."""
    if measured is None or (rule != "most" and baseline is None):
        return None
    if rule == "times":
        return measured <= goal * baseline
    if rule == "over":
        return measured - baseline <= goal
    return measured <= goal


def goal_text(rule, goal, unit):
    unit = "µs" if unit == "us" else unit
    number = f"{goal:g}"
    return {"times": f"{number} times", "over": f"{number} {unit} more", "most": f"{number} {unit}"}[rule]


def rows_of(promises, figures):
    """Rows of six texts, or one text for the head of a group; and whether all is kept."""
    rows, kept = [], True
    for number, line in enumerate(promises.read_text().splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        if line.startswith("== "):
            rows.append(line[3:])
            continue
        cells = [cell for cell in line.split("\t") if cell]
        if len(cells) != 6:
            sys.exit(f"{promises}:{number}: {len(cells)} cells in place of 6")
        promise, unit, measured_name, baseline_name, rule, goal = cells
        measured = value_of(measured_name, unit, figures)
        baseline = value_of(baseline_name, unit, figures)
        result = judge(rule, float(goal), measured, baseline)
        kept = kept and result is True
        ratio = f"{measured / baseline:.2f}" if measured is not None and baseline else "-"
        rows.append([promise, text_of(measured, unit), text_of(baseline, unit), ratio,
                     goal_text(rule, float(goal), unit), {True: "yes", False: "NO", None: "not measured"}[result]])
    return rows, kept


def print_table(rows):
    table = [HEAD] + [row for row in rows if not isinstance(row, str)]
    widths = [max(len(row[i]) for row in table) for i in range(len(HEAD))]

    def line(row):
        cells = [row[0].ljust(widths[0])] + [row[i].rjust(widths[i]) for i in range(1, 5)] + [row[5]]
        return "  ".join(cells)

    print(line(HEAD))
    for row in rows:
        print(f"\n{row}" if isinstance(row, str) else line(row))


def machine():
    """Processor, cores, memory and system of this computer."""
    def find(file, pattern):
        try:
            found = re.search(pattern, pathlib.Path(file).read_text())
        except OSError:
            return "?"
        return found.group(1).strip() if found else "?"

    cores = len(re.findall(r"^processor\s*:", pathlib.Path("/proc/cpuinfo").read_text(), re.M))
    memory = find("/proc/meminfo", r"MemTotal:\s*(\d+)")
    gigabytes = f"{int(memory) / 2**20:.0f} GB" if memory.isdigit() else "?"
    system = find("/etc/os-release", r'PRETTY_NAME="([^"]*)"')
    processor = find("/proc/cpuinfo", r"model name\s*:\s*(.*)")
    return f"{processor}, {cores} cores, {gigabytes}, {system}, Linux {platform.release()}"


def write_page(page, rows, kept, measured_at):
    lines = [
        "# Figures",
        "",
        "What the program promises about its speed, as it was measured last. `./bench --write` measures and writes this page;",
        "nothing here is written by hand. `benchmarks/promises.tsv` says which figure of which benchmark stands behind each row.",
        "",
        f"Measured on {measured_at:%Y-%m-%d at %H:%M}, on {machine()}.",
        "All promises are kept." if kept else "Not all promises are kept.",
        "",
        "Figures are medians where nothing else is said. The baseline is measured in the same run, by turns with the program.",
        "The ratio is the measured figure over the baseline. The goal is the most that is allowed: so many times the baseline,",
        "so much more than it, or so much.",
    ]
    for row in rows:
        if isinstance(row, str):
            lines += ["", f"## {row}", "", "| " + " | ".join(HEAD) + " |", "|---|--:|--:|--:|--:|---|"]
        else:
            lines.append("| " + " | ".join(row) + " |")
    page.write_text("\n".join(lines) + "\n")
    print(f"\nwritten: {page}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--write", type=pathlib.Path, metavar="FILE")
    parser.add_argument("promises", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    arguments = parser.parse_args()
    figures = read_figures(arguments.folder)
    if not figures:
        sys.exit(f"No figures in {arguments.folder}: nothing was measured yet.")
    rows, kept = rows_of(arguments.promises, figures)
    print_table(rows)
    if arguments.write:
        files = [file.stat().st_mtime for file in arguments.folder.iterdir()]
        write_page(arguments.write, rows, kept, datetime.datetime.fromtimestamp(max(files)))
    return 0 if kept else 1


if __name__ == "__main__":
    sys.exit(main())
