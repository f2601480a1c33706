#!/usr/bin/env bash
# What showing a video costs: the release build of the workbench plays a file of 1280 x 720 at
# 25 pictures a second with ten figures drawn over it.
#   bench/stream.sh [cpu]          processor seconds in 20 s, against ffmpeg decoding the same file
#                                  to BGRA at the same speed
#   bench/stream.sh memory [M]     resident memory after 1 and after M (10) minutes
# BUILD names the release build's folder; it is build/release, built when missing.
# QT_QPA_PLATFORM chooses what is drawn to; by default nothing is shown.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
root=$PWD
. tools/prepare.sh

mode=${1:-cpu}
minutes=${2:-10}
seconds=20
goal=1.5
tolerance=5 # percent
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}

install_missing ffmpeg
if [ -z "${BUILD:-}" ]; then
    # shellcheck disable=SC2086
    install_missing $BUILD_PACKAGES
    build_preset release
fi
workbench=${BUILD:-$root/build/release}/bin/rules-workbench

work=$(mktemp -d)
child=
finish() {
    [ -z "$child" ] || kill "$child" 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT
video=$work/moving.mp4

make_video() {
    ffmpeg -nostdin -loglevel error -f lavfi -i testsrc2=size=1280x720:rate=25 -t 30 \
        -c:v libx264 -preset medium -pix_fmt yuv420p -g 50 "$video"
}

# start_workbench: plays the file; returns when all figures are drawn.
start_workbench() {
    cd "$work"
    "$workbench" --template "$root/examples/perimeter/template.json" \
        --config "$root/examples/perimeter/config.json" --source "$video" \
        --replay "$root/bench/stream/figures.jsonl" &
    child=$!
    cd "$root"
    until [ -s "$work/drawn.png" ]; do
        kill -0 "$child" 2>/dev/null || { echo "The workbench ended early" >&2; exit 1; }
        sleep 0.2
    done
}

start_ffmpeg() {
    ffmpeg -nostdin -loglevel error -stream_loop -1 -re -i "$video" \
        -f rawvideo -pix_fmt bgra -y /dev/null &
    child=$!
}

stop_child() {
    kill "$child"
    wait "$child" 2>/dev/null || true
    child=
}

# Ticks of the processor that the child has used by itself so far, all its threads together.
used_ticks() { sed 's/.*) //' "/proc/$child/stat" | awk '{ print $12 + $13 }'; }

# measure: processor seconds of the child over the next 20 s, after 3 s to settle.
measure() {
    sleep 3
    local before
    before=$(used_ticks)
    sleep "$seconds"
    awk -v b="$before" -v a="$(used_ticks)" -v hz="$(getconf CLK_TCK)" \
        'BEGIN { printf "%.2f", (a - b) / hz }'
}

resident() { awk '/^VmRSS:/ { print $2 }' "/proc/$child/status"; }

compare_processor() {
    start_ffmpeg
    local theirs ours
    theirs=$(measure)
    stop_child
    start_workbench
    ours=$(measure)
    stop_child
    awk -v o="$ours" -v t="$theirs" -v s="$seconds" -v g="$goal" 'BEGIN {
        printf "workbench %.2f s, ffmpeg %.2f s of processor time in %d s: ratio %.2f (goal %.1f)\n",
               o, t, s, o / t, g
        exit !(o <= g * t)
    }'
}

compare_memory() {
    start_workbench
    sleep 60
    local early late
    early=$(resident)
    sleep $(((minutes - 1) * 60))
    late=$(resident)
    stop_child
    awk -v e="$early" -v l="$late" -v m="$minutes" -v p="$tolerance" 'BEGIN {
        change = 100 * (l - e) / e
        printf "resident after 1 minute %d kB, after %d minutes %d kB: %+.1f %% (goal within %d %%)\n",
               e, m, l, change, p
        exit !(change <= p && change >= -p)
    }'
}

make_video
case $mode in
cpu) compare_processor ;;
memory) compare_memory ;;
*) echo "Usage: bench/stream.sh [cpu | memory [MINUTES]]" >&2; exit 2 ;;
esac
