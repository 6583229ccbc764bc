#!/usr/bin/env bash
# measure.sh <build folder>: runs the benchmarks and prints one figure a line: name, value, unit, goal.
set -u
programs=$1/bench
cd "$(dirname "$0")/.." || exit 1

# A display and a sound server of our own: windows are painted and the synthesiser plays as on a real machine.
ended=()
cleanup() { kill "${ended[@]}" 2>/dev/null; }
trap cleanup EXIT
if command -v jackd >/dev/null; then
  export JACK_NO_AUDIO_RESERVATION=1 JACK_DEFAULT_SERVER=tonarix-measure
  jackd -r -n tonarix-measure -d dummy -r 48000 -p 256 >/dev/null 2>&1 &
  ended+=($!)
  # A period of a third of a millisecond, which takes real-time threads where they are allowed.
  if chrt -f 1 true 2>/dev/null; then realtime=-R; else realtime=-r; fi
  jackd $realtime -S -n tonarix-slider -d dummy -r 48000 -p 16 >/dev/null 2>&1 &
  ended+=($!)
fi
if [ -z "${DISPLAY:-}" ]; then
  exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1280x800x24 2>/dev/null & echo $!; wait)
  read -r -u "$display" server
  read -r -u "$display" number
  ended+=("$server")
  export DISPLAY=:$number
fi
export QT_QPA_PLATFORM=xcb
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
  XDG_RUNTIME_DIR=$(mktemp -d)
  export XDG_RUNTIME_DIR
fi

"$programs/program_figures"
"$programs/mat_wahl"
"$programs/onset_error"
"$programs/sheet"
"$programs/hover"
JACK_DEFAULT_SERVER=tonarix-slider "$programs/slider_to_port" 0.333
JACK_DEFAULT_SERVER=tonarix-slider "$programs/key_to_port" 0.333

# What a bare Debian 12 downloads for running: everything the packages need, less what every system has.
status=$(mktemp)
cache=$(mktemp -d)
mkdir -p "$cache/partial"
fetched() {
  apt-get -o Dir::State::status="$status" -o Dir::Cache::archives="$cache" -o Debug::NoLocking=1 \
    --no-install-recommends --print-uris -y install "$@" 2>/dev/null | awk '/^\x27/ {print $2, $3}' | sort
}
standard=$(apt-cache dumpavail | awk '/^Package:/ {p = $2} /^Priority: (required|important|standard)/ {print p}' |
  grep -vE '^(exim4|bsd-mailx|systemd-sysv)')
running=$(awk '$1 == "run" {print $2}' packaging/packages.txt)
# shellcheck disable=SC2086
comm -13 <(fetched $standard) <(fetched $running) |
  awk '{sum += $2} END {printf "%-28s %10.1f %-6s goal <= 60\n", "download_mb", sum / 1e6, "MB"}'
rm -rf "$status" "$cache"
