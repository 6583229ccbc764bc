# Sourced by run, check and measure: installs what is missing and builds a preset.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1

# need <kind>...: makes sure that the packages of these kinds are installed.
need() {
  local wanted missing=() package
  wanted=$(awk -v kinds=" $* " '$1 !~ /^#/ && index(kinds, " " $1 " ") {print $2}' packaging/packages.txt)
  for package in $wanted; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
    if ! command -v sudo >/dev/null || ! { [ -t 0 ] || sudo -n true 2>/dev/null; }; then
      echo "These Debian packages are missing, and installing them needs root. Please run:" >&2
      echo "  apt-get install --no-install-recommends ${missing[*]}" >&2
      exit 1
    fi
  fi
  echo "Installing: ${missing[*]}"
  { "${as_root[@]}" apt-get update -qq &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null; } || {
    echo "The installation failed. The program needs these Debian packages: ${missing[*]}" >&2
    exit 1
  }
}

# build <preset> [target...]: configures once, then builds what has changed; quiet unless something fails.
build() {
  local preset=$1 log
  shift
  log=$(mktemp)
  if ! { { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
         cmake --build "build/$preset" ${*:+--target "$@"}; } >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    exit 1
  fi
  rm -f "$log"
}
