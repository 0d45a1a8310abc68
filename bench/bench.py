#!/usr/bin/python3
"""All figures of docs/performance.md: runs the benchmark programs, each beside its floor, and prints one table in that page's form.

    bench.py BIN [--sizes 100,1000,10000] [--repeat 3] [--json OUT] [--markdown OUT]
             [--only run,list,site,engine,batch,windows,start,onvif,scale]

The part scale, for docs/scale.md, is measured only when it is asked for: it takes minutes and 10 GiB of memory at 10,000.

BIN is the directory of the built programs. A figure is the median of its repetitions; a ratio is that of the medians of
two programs that ran in turn. The JSON file has the least and the most of them too.
"""

import argparse
import collections
import json
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

import onvif_part
import scale_part
import site_part
from figures import Table, environment, run


def google_benchmark(program, sizes, repeat, env):
    """Of each benchmark the milliseconds of CPU time, and by its name each counter: one of each repetition."""
    options = ["--benchmark_format=json", "--benchmark_repetitions=%d" % repeat, "--benchmark_min_time=%g" % (0.1 if repeat > 1 else 0.01),
               "--benchmark_enable_random_interleaving=true", "--benchmark_filter=/(%s)$" % "|".join(map(str, sizes))]
    figures = collections.defaultdict(list)
    for entry in json.loads(run([program, *options], env))["benchmarks"]:
        if entry.get("error_occurred"):
            sys.exit("%s: %s" % (entry["name"], entry["error_message"]))
        if entry["run_type"] == "iteration":
            figures[entry["run_name"]].append(entry["cpu_time"])
            for counter in ("comeMs", "goMs", "pauseMs"):
                if counter in entry:
                    figures[entry["run_name"] + "/" + counter].append(entry[counter])
    return dict(figures)


def measure_run(options, env, _directory, table):
    figures = google_benchmark(options.bin / "run_bench", [1, *options.sizes], options.repeat, env)
    painting = statistics.median(figures["osdRun/1"])
    per_device = {}
    for size in options.sizes:
        us = lambda values, less=0: [(ms - less) * 1000 / size for ms in values]
        floors = us(figures["osdFloor/%d" % size])
        per_device[size] = us(figures["osdRun/%d" % size])
        table.add("OSD run, UI-thread time per device", size, per_device[size], "µs", floors, {1000: "1.7x", 10000: "3.0x"}.get(size))
        table.add("the same, every device holding something else", size, us(figures["osdRunDifferent/%d" % size]), "µs", floors)
        table.add("the OSD run without the painting of one", size, us(figures["osdRun/%d" % size], painting), "µs", floors)
    if {100, 10000} <= set(per_device):
        table.add("OSD run per device, against the same at 100", 10000, per_device[10000], "µs", per_device[100], "2.5x")


def measure_list(options, env, _directory, table):
    figures = google_benchmark(options.bin / "list_bench", options.sizes, options.repeat, env)
    for what, name in (("fill", "listFill"), ("search, a key stroke", "listSearch"), ("sort and renumber", "listSort")):
        for size in options.sizes:
            table.add("List: " + what, size, figures["%s/%d" % (name, size)], "ms",
                      figures["%sFloor/%d" % (name, size)], "1.5x" if size == 10000 else None)
    # With a search text the rows are Qt's own work, and these what it was found to cost.
    for what, name, comes, goes in (("", "all", "2000 ms", "2000 ms"),
                                    (", with a search text", "searched", "3000 ms", "6100 ms")):
        for size in options.sizes:
            at = lambda counter: figures["listComesAndGoes/%s/%d/%s" % (name, size, counter)]
            is_goal = size == 10000
            table.add("List: online one by one" + what, size, at("comeMs"), "ms", None, comes if is_goal else None)
            table.add("List: offline one by one" + what, size, at("goMs"), "ms", None, goes if is_goal else None)
            table.add("List: longest pause of these" + what, size, at("pauseMs"), "ms", None,
                      "100 ms" if is_goal else None)


def measure_start(options, env, _directory, table):
    times = []
    for _ in range(options.repeat):
        start = time.monotonic()
        process = subprocess.Popen([str(options.bin / "orda_client"), "--language", "en", "--demo", "200",
                                    "--run", "osd"], env=env,
                                   stdout=subprocess.PIPE, text=True)
        for line in process.stdout:
            if line.startswith("window shown"):
                times.append((time.monotonic() - start) * 1000)
        process.wait()
    table.add("Start of the client to the form shown, 200 devices of its own", None, times, "ms", None, "150 ms")


PARTS = {"run": measure_run, "list": measure_list, "site": site_part.measure_site, "engine": site_part.measure_engine,
         "batch": site_part.measure_batch, "windows": site_part.measure_windows, "start": measure_start,
         "onvif": onvif_part.measure_onvif, "scale": scale_part.measure_scale}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("bin", type=pathlib.Path)
    parser.add_argument("--sizes", default="100,1000,10000", type=lambda text: [int(n) for n in text.split(",")])
    parser.add_argument("--repeat", default=3, type=int)
    parser.add_argument("--json", type=pathlib.Path)
    parser.add_argument("--markdown", type=pathlib.Path)
    parser.add_argument("--only", default=",".join(part for part in PARTS if part != "scale"), type=lambda text: text.split(","))
    options = parser.parse_args()

    table = Table()
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        env = environment(name)
        for part in options.only:
            if part not in PARTS:
                parser.error("--only takes some of %s, not \"%s\"" % (", ".join(PARTS), part))
            PARTS[part](options, env, directory, table)
    text = table.markdown()
    print(text, end="")
    if options.markdown:
        options.markdown.write_text(text, encoding="utf-8")
    if options.json:
        options.json.write_text(json.dumps(table.rows, indent=2), encoding="utf-8")


if __name__ == "__main__":
    main()
