#!/usr/bin/env bash
# class.sh <build folder> [programs] [kills]: nothing that was earned is lost. A class saves at the bell, and programs
# are killed while they save. Prints one figure a line: name, value, unit, goal; fails when a goal is missed.
set -u
programs=$1/bench
failed=0
"$programs/crowd" "${2:-30}" || failed=1
"$programs/kills" "${3:-1000}" || failed=1
exit $failed
