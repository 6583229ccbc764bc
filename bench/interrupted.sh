#!/usr/bin/env bash
# interrupted.sh <build folder>: what is left of an exercise whose program is killed, asked to end, or loses its display.
set -u
interrupted=$1/bench/interrupted

# 1,000 kills at random moments, in virtual time and with real files.
"$interrupted" || exit 1

# The running program, in a window. It prints each task it has done; after the third its end begins.
folder=$(mktemp -d)
export temp=$folder/protocols
trap 'rm -rf "$folder"' EXIT
failed=0

# interrupt <name> <how>: runs until the third task, then <how> (which sees $program and $server); prints the time to the end.
interrupt() {
  local begun ended task tasks=0
  exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1280x800x24 2>/dev/null & echo $!; wait)
  read -r -u "$display" server
  read -r -u "$display" number
  mkdir -p "$folder/$1"
  exec {output}< <(DISPLAY=:$number QT_QPA_PLATFORM=xcb exec env --default-signal=INT "$interrupted" --window "$folder/$1" 2>/dev/null & echo $!; wait)
  read -r -u "$output" program
  while read -r -u "$output" task && [ "$task" -lt 3 ]; do :; done
  begun=$(date +%s%N)
  eval "$2"
  while kill -0 "$program" 2>/dev/null; do read -r -t 0.01 -u "$output" task; done
  ended=$(date +%s%N)
  kill "$server" 2>/dev/null
  for protocol in "$temp"/*.xml; do tasks=$(grep -c '<lesson ' "$protocol"); done
  printf '%-28s %10d ms     protocol %s, %s tasks; kept for the next start: %s\n' "ended_by_$1" $(((ended - begun) / 1000000)) \
    "$([ -e "$protocol" ] && echo written || echo missing)" "$tasks" "$(ls "$folder/$1" | grep -c '^kept-')"
  [ "$tasks" -ge 3 ] || failed=1
  rm -rf "$temp"
}
interrupt sigterm 'kill -TERM $program'
interrupt sighup 'kill -HUP $program'
interrupt sigint 'kill -INT $program'
interrupt lost_display 'kill -KILL $server'
exit $failed
