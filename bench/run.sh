#!/bin/sh
# Builds and runs the benchmark suite, then writes docs/benchmarks/results.md and chart.png.
#
#   bench/run.sh                      the whole suite, medians of 5 repetitions
#   REPS=9 MIN_TIME=0.5 bench/run.sh  steadier numbers on a quiet machine
#   bench/run.sh --benchmark_filter=mama_32f/3x3   any further Google Benchmark flags
#
# Run as root it installs the Debian packages below that are missing. The build directory is separate from the test build (TARN_BENCH_BUILD).
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
build=${TARN_BENCH_BUILD:-$root/build-bench}
out=$root/docs/benchmarks
reps=${REPS:-5}
min_time=${MIN_TIME:-0.2}

missing=""
for p in cmake ninja-build clang libomp-dev libstdc++-12-dev python3 libbenchmark-dev libeigen3-dev libglm-dev liblapacke-dev libopenblas-dev gnuplot-nox; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing="$missing $p"
done
if [ -n "$missing" ]; then
  if [ "$(id -u)" = 0 ]; then
    apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
  else
    echo "run.sh: missing packages:$missing (install them, or run as root)" >&2
    exit 1
  fi
fi

(cd "$root" && cmake --preset default -B "$build" -DTARN_BUILD_BENCH=ON -DTARN_BUILD_TESTS=OFF \
  -DTARN_BUILD_EXAMPLES=OFF >/dev/null)
cmake --build "$build" -j2 --target tarn_bench

mkdir -p "$out"
json=$build/results.json
"$build/bench/tarn_bench" --benchmark_repetitions="$reps" --benchmark_min_time="$min_time" \
  --benchmark_report_aggregates_only=true --benchmark_out="$json" --benchmark_out_format=json "$@"
python3 "$root/bench/report.py" "$json" "$out"
echo "run.sh: wrote $out/results.md and $out/chart.png"
