#!/usr/bin/env python3
"""Turns the suite's JSON (medians) into docs/benchmarks/results.md and chart.png.

Usage: report.py results.json out_dir

Benchmark names are workload/shape/N:n/contender/T:threads. Peers run on one thread; tarn and
the memory reference on 1 and 2. Only the standard library and gnuplot are used.
"""
import json
import os
import subprocess
import sys

# Peers in the order the table shows them; any other contender a workload file registers (but tarn
# and the memory reference) is a peer too, shown after these.
PEERS = ["plain", "eigen", "glm"]
# The statistic over the repetitions: median by default, STAT=min for the fastest repetition.
STAT = os.environ.get("STAT", "median")
# The workloads the targets speak of (LayoutS, packed, 32f, 3x3 and 4x4).
TARGET_ROWS = ["tarnAdd_mama_32f/3x3", "tarnAdd_mama_32f/4x4", "tarnAdd_mam_32f/3x3", "tarnAdd_mam_32f/4x4"]
# Workloads judged against the memory reference with a tolerance of their own (default 10 %).
# The reductions: batches of 3-vectors and 3x3 matrices to one number (or one vector) each.
REDUCTION_ROWS = ["tarnDotProduct_vava_32f/v3", "tarnCrossProduct_vava_32f/v3", "tarnL2Norm_va_32f/v3",
                  "tarnFrobNorm_ma_32f/3x3"]
TARGET_ROWS += REDUCTION_ROWS
# Matrix products: no memory target (the arithmetic bounds them in cache), only the peers.
MUL_ROWS = ["tarnMul_mama_32f/3x3", "tarnMul_mama_32f/4x4", "tarnMul_mama_64f/6x6", "tarnMul_mam_32f/4x4"]
TARGET_ROWS += MUL_ROWS
MEMORY_TOLERANCE = {wl: 0.15 for wl in REDUCTION_ROWS}
# Every packed LayoutS element-wise workload and every Copy pair run is judged against the peers
# (and the memory reference where it has one) as well.
ELEMENTWISE = ("tarnAdd_", "tarnSub_", "tarnSaxpy_", "tarnLComb_", "tarnCopy_")


def judged(order):
    extra = [w for w in order if w.startswith(ELEMENTWISE) and not w.split("/")[0].endswith(("_L", "_P"))]
    return TARGET_ROWS + [w for w in extra if w not in TARGET_ROWS]
# Matrix-vector products and products with a constant: one matrix (or constant) for a batch, the
# peers at every N and the memory reference at 1,000,000 objects.
MATVEC_ROWS = ["tarnMul_mva_32f/4x4", "tarnMul_mva_32f/3x3", "tarnMul_mava_32f/4x4", "tarnGaxpy_mva_32f/4x4",
               "tarnMul_mac_32f/3x3"]
TARGET_ROWS += MATVEC_ROWS


def load(path):
    with open(path) as f:
        data = json.load(f)
    res = {}  # (workload, n, contender, threads) -> (ns/obj, GB/s)
    order = []
    for b in data["benchmarks"]:
        if b.get("aggregate_name", STAT) != STAT or b.get("error_occurred"):
            continue
        name = b["run_name"].replace("/manual_time", "").replace("/real_time", "")
        parts = name.split("/")
        wl = parts[0] + "/" + parts[1]
        n = int(parts[2].split(":")[1])
        who = parts[3]
        t = int(parts[4].split(":")[1])
        res[(wl, n, who, t)] = (b["ns/obj"], b["bytes_per_second"] / 1e9, b.get("best_ns/obj"), b["bytes_per_obj"])
        if wl not in order:
            order.append(wl)
        if who not in PEERS + ["tarn", "memref"]:
            PEERS.append(who)
    return data.get("context", {}), res, order


def machine():
    model, cores = "unknown", os.cpu_count()
    try:
        with open("/proc/cpuinfo") as f:
            for line in f:
                if line.startswith("model name"):
                    model = line.split(":", 1)[1].strip()
                    break
    except OSError:
        pass
    return model, cores


def cell(v):
    return "–" if v is None else f"{v[0]:.2f} ({v[1]:.1f})"


def best_peer(res, wl, n):
    peers = [(res[(wl, n, p, 1)][0], p) for p in PEERS if (wl, n, p, 1) in res]
    return min(peers) if peers else (None, None)


def sizes(res, wl):
    return sorted({k[1] for k in res if k[0] == wl})


def table(res, order):
    out = ["| workload | N | threads | tarn ns/obj | tarn GB/s | " + " | ".join(PEERS) + " | memref | best peer / tarn | tarn / memref |",
           "|---|---:|---:|---:|---:|" + "---:|" * len(PEERS) + "---:|---:|---:|"]
    for wl in order:
        for n in sizes(res, wl):
            for t in (1, 2):
                tarn = res.get((wl, n, "tarn", t))
                if tarn is None:
                    continue
                peers = [cell(res.get((wl, n, p, 1))) if t == 1 else "–" for p in PEERS]
                mem = res.get((wl, n, "memref", t))
                bp, _ = best_peer(res, wl, n)
                vs_peer = f"{bp / tarn[0]:.2f}x" if bp else "–"
                vs_mem = f"{tarn[1] / mem[1] * 100:.0f} %" if mem else "–"
                out.append(f"| {wl} | {n:,} | {t} | {tarn[0]:.2f} | {tarn[1]:.1f} | " + " | ".join(peers) +
                           f" | {cell(mem)} | {vs_peer} | {vs_mem} |")
    return out


def targets(res, order):
    """Each target judged twice: on the medians, and on the fastest single call of each
    contender (what the code does when the machine leaves it alone)."""
    def mark(ok):
        return "met" if ok else "**missed**"

    def ns(v, k):
        return v[0] if k == 0 else v[2]

    out = ["| target | workload | N | medians | | best calls | |", "|---|---|---:|---|---|---|---|"]

    def line(target, wl, n, judge):
        cells = []
        for k in (0, 1):
            text, ok = judge(k)
            cells += [text, mark(ok)]
        out.append(f"| {target} | {wl} | {n:,} | " + " | ".join(cells) + " |")

    for wl in judged(order):
        for n in sizes(res, wl):
            tarn = res.get((wl, n, "tarn", 1))
            peers = [(p, res[(wl, n, p, 1)]) for p in PEERS if (wl, n, p, 1) in res]
            if tarn and peers:
                def judge(k, tarn=tarn, peers=peers):
                    bp, who = min((ns(v, k), p) for p, v in peers)
                    return f"tarn {ns(tarn, k):.2f}, {who} {bp:.2f} ns/obj", ns(tarn, k) <= bp
                line("no slower than the fastest peer", wl, n, judge)
        n = 1000000
        tarn, mem = res.get((wl, n, "tarn", 1)), res.get((wl, n, "memref", 1))
        tol = MEMORY_TOLERANCE.get(wl, 0.10)
        if tarn and mem:
            def judge(k, tarn=tarn, mem=mem, tol=tol):
                r = ns(mem, k) / ns(tarn, k)
                return f"{tarn[3] / ns(tarn, k):.1f} of {mem[3] / ns(mem, k):.1f} GB/s = {r * 100:.0f} %", r >= 1 - tol
            line(f"within {tol * 100:.0f} % of the memory reference", wl, n, judge)
    n = 100000
    s = res.get(("tarnAdd_mama_32f/3x3", n, "tarn", 1))
    x = res.get(("tarnAdd_mama_32f_L/3x3", n, "tarn", 1))
    if s and x:
        def judge(k, x=x):
            r = ns(x, k) / ns(s, k)
            return f"{ns(x, k):.2f} vs {ns(s, k):.2f} ns/obj = {r:.2f}x", r <= 1.2
        line("within 1.2x of LayoutS", "tarnAdd_mama_32f_L/3x3", n, judge)
    # LayoutP with packed streams against the structure-of-arrays loops over the same streams.
    wl = "tarnAdd_mama_32f_P/3x3"
    for m in sizes(res, wl):
        x = res.get((wl, m, "tarn", 1))
        peers = [(p, res[(wl, m, p, 1)]) for p in PEERS if (wl, m, p, 1) in res]
        if x and peers:
            def judge(k, x=x, peers=peers):
                bp, who = min((ns(v, k), p) for p, v in peers)
                return f"tarn {ns(x, k):.2f}, {who} {bp:.2f} ns/obj = {ns(x, k) / bp:.2f}x", ns(x, k) <= 1.3 * bp
            line("within 1.3x of the stream-by-stream loop", wl, m, judge)
    # The element-wise families' scaling target.
    for wl in (w for w in order if w.startswith("tarnAdd_")):
        one, two = res.get((wl, n, "tarn", 1)), res.get((wl, n, "tarn", 2))
        m1, m2 = res.get((wl, n, "memref", 1)), res.get((wl, n, "memref", 2))
        if one and two:
            def judge(k, one=one, two=two, m1=m1, m2=m2):
                r = ns(one, k) / ns(two, k)
                mr = f"; memref {ns(m1, k) / ns(m2, k):.2f}x" if m1 and m2 else ""
                return f"{r:.2f}x{mr}", r >= 1.7
            line("2 threads at least 1.7x", wl, n, judge)
    return out


def chart(res, order, out_dir):
    ns = sorted({k[1] for k in res})
    dat = os.path.join(out_dir, "chart.dat")
    with open(dat, "w") as f:
        for n in ns:
            f.write(f"# N={n}\n")
            for wl in order:
                def gb(who, t=1):
                    v = res.get((wl, n, who, t))
                    return f"{v[1]:.3f}" if v else "NaN"
                peers = [res[(wl, n, p, 1)][1] for p in PEERS if (wl, n, p, 1) in res]
                label = wl.replace("tarnAdd_", "").replace("/", " ")
                f.write(f'"{label}" {gb("tarn")} {gb("tarn", 2)} {max(peers) if peers else "NaN"} {gb("memref")}\n')
            f.write("\n\n")
    gp = os.path.join(out_dir, "chart.gp")
    panels = []
    has_memref = any(k[2] == "memref" for k in res)
    for i, n in enumerate(ns):
        memref = (f', \\\n     "" index {i} using 5 title "memory reference (1 thread)"' if has_memref else "")
        panels.append(f"""
set title "N = {n:,} objects"
plot "{dat}" index {i} using 2:xtic(1) title "tarn, 1 thread", \\
     "" index {i} using 3 title "tarn, 2 threads", \\
     "" index {i} using 4 title "best peer (1 thread)"{memref}
""")
    with open(gp, "w") as f:
        f.write(f"""set terminal pngcairo size 1700,{420 * len(ns) + 80} font "sans,10"
set output "{os.path.join(out_dir, 'chart.png')}"
set multiplot layout {len(ns)},1 title "tarn: bytes read + written per second (GB/s, higher is better)"
set style data histogram
set style histogram cluster gap 1
set style fill solid 0.85 border -1
set boxwidth 0.9
set ylabel "GB/s"
set yrange [0:*]
set grid ytics
set key outside right top vertical
set termoption noenhanced
set xtics rotate by -25 scale 0
""" + "".join(panels) + "unset multiplot\n")
    subprocess.run(["gnuplot", gp], check=True)
    os.remove(gp)
    os.remove(dat)


def main():
    src, out_dir = sys.argv[1], sys.argv[2]
    ctx, res, order = load(src)
    model, cores = machine()
    lines = ["# tarn benchmark results", "",
             f"Machine: {model}, {cores} logical cores; taken {ctx.get('date', '?')}, "
             f"load average at start {', '.join(f'{x:.2f}' for x in ctx.get('load_avg', []))}.", "",
             f"{'Medians' if STAT == 'median' else 'Minima'} of the repetitions. Each cell is ns/obj (GB/s); GB/s counts bytes read plus bytes "
             "written per object (LayoutL includes its table pointers). Peers run on one thread. "
             "`best peer / tarn` above 1 means tarn is faster than every peer (2-thread rows compare "
             "with the 1-thread peers); `tarn / memref` is tarn's throughput as a share of the "
             "memory reference on the same number of threads.", "",
             "## Targets", "",
             "Judged on the medians and on the fastest single call of each contender; the second "
             "is what the code does when the other jobs on the machine leave it alone.", ""] + targets(res, order) + ["", "## All workloads", ""] + table(res, order) + [""]
    os.makedirs(out_dir, exist_ok=True)
    with open(os.path.join(out_dir, "results.md"), "w") as f:
        f.write("\n".join(lines))
    chart(res, order, out_dir)


if __name__ == "__main__":
    main()
