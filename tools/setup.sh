# shellcheck shell=bash
# What ./run and ./check share: the list of Debian packages, their installation, and the build.
#
# Sourced, never run. Expects `set -euo pipefail`. Everything said goes to standard error, so that the output of the
# program stays alone on standard output.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/release

# libgtest-dev is needed to run because the release preset configures the tests as well.
run_packages=(
  g++ cmake ninja-build qt6-base-dev libgtest-dev
  libhunspell-dev hunspell-de-de libqt6svg6 breeze-icon-theme fonts-dejavu-core qt6-translations-l10n
  xdg-utils
)
# Without it Qt reaches a Wayland desktop only through its X server.
[[ -z ${WAYLAND_DISPLAY:-} ]] || run_packages+=(qt6-wayland)
# shellcheck disable=SC2034 # read by the scripts that source this
check_packages=(git python3 clang-format clang-tidy poppler-utils)

say() { printf '%s\n' "$*" >&2; }

# Runs a command in silence; only a failing one shows what it said.
quietly() {
  local log status=0
  log=$(mktemp)
  "$@" >"$log" 2>&1 </dev/null || status=$?
  ((status == 0)) || cat "$log" >&2
  rm -f "$log"
  return "$status"
}

# Prints those of the named packages that are not installed.
missing_packages() {
  local installed
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p') || true
  comm -23 <(printf '%s\n' "$@" | sort -u) <(sort -u <<<"$installed")
}

as_root() {
  if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

may_become_root() {
  ((EUID == 0)) || { command -v sudo >/dev/null && sudo -v; }
}

# Makes sure that the named packages are installed, or says what the user has to install, and ends.
require_packages() {
  local missing
  mapfile -t missing < <(missing_packages "$@")
  ((${#missing[@]} > 0)) || return 0
  if ! command -v apt-get >/dev/null || ! may_become_root; then
    say "Es fehlen Pakete, und hier fehlt das Recht, sie einzurichten. Bitte mit Verwalterrechten ausführen:"
    say "  apt-get install ${missing[*]}"
    exit 1
  fi
  say "Fehlende Pakete werden eingerichtet: ${missing[*]}"
  # A source that cannot be reached does no harm as long as another one has the packages.
  quietly as_root apt-get -q -o DPkg::Lock::Timeout=120 update || true
  if ! quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=120 \
    install --no-install-recommends "${missing[@]}"; then
    say "Die Pakete ließen sich nicht einrichten. Bitte von Hand nachholen: apt-get install ${missing[*]}"
    exit 1
  fi
}

# Brings the named targets (or all) up to date. Silent when there is nothing to do; a failing step shows its errors.
build_release() {
  if [[ ! -f $build/build.ninja ]]; then
    say "Tessik wird übersetzt; das erste Mal dauert es einige Minuten."
  fi
  if [[ ! $build/build.ninja -nt $root/CMakePresets.json ]]; then
    quietly cmake -S "$root" --preset release || return
  fi
  # What is generated from the forms comes first and by itself: ninja would not see in the same run that it is new, and
  # objects of two states would be linked together.
  quietly cmake --build "$build" --target tessik_ui_autogen || return
  cmake --build "$build" --target "$@" -- --quiet | sed '/^ninja: no work to do\.$/d' >&2
}
