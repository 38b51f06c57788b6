# What the project needs of the system, by Debian's and Ubuntu's package names. Sourced by every
# script that builds.
# shellcheck shell=bash disable=SC2034

build_packages=(g++ cmake ninja-build pkg-config gettext libfox-1.6-dev libpango1.0-dev libsqlite3-dev
  libxml2-dev)
test_packages=(appstream binutils desktop-file-utils dpkg-dev file fonts-dejavu-core libbenchmark-dev libboost-dev
  libgtest-dev librsvg2-bin libx11-dev libxml2-utils libxtst-dev lintian locales make man-db mandoc openbox
  poppler-utils python3 sqlite3 valgrind x11-utils xauth xvfb)
# The cases of the decimal conformance test come with Python's own tests, in a package named after its version.
case $(. /etc/os-release 2>/dev/null && echo "$VERSION_CODENAME") in
  noble) test_packages+=(libpython3.12-testsuite) ;;
  *) test_packages+=(libpython3.11-testsuite) ;;
esac
tour_packages=(fonts-dejavu-core libx11-dev libxtst-dev xvfb)
package_packages=(dpkg-dev file)
bench_packages=(libbenchmark-dev libboost-dev python3 xauth xvfb)
fuzz_packages=(clang libclang-rt-dev)
coverage_packages=(gcovr)
lint_packages=(clang clang-format clang-tidy cppcheck python3)

# need PACKAGE...: makes sure that they are installed; stops with their names where that cannot be done here.
need() {
  local package missing=() as_root=()
  if command -v dpkg-query >/dev/null; then
    for package in "$@"; do
      [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
  else
    missing=("$@")
  fi
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  if ! command -v apt-get >/dev/null || { [ ${#as_root[@]} -gt 0 ] && ! command -v sudo >/dev/null; }; then
    echo "Please install what these Debian packages hold, then run this again: ${missing[*]}" >&2
    exit 2
  fi
  echo "Installing ${missing[*]}" >&2
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update -qq && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    echo "Installing the packages failed; the whole log is $log" >&2
    exit 2
  fi
  rm -f "$log"
}

# build PRESET [CMAKE ARGUMENTS]: configures once, or anew with arguments, and builds, saying nothing unless it fails.
build() {
  local preset=$1 log
  shift
  log=$root/build/$preset.log
  mkdir -p "$root/build"
  if ! {
    { [ $# -eq 0 ] && [ -f "$root/build/$preset/build.ninja" ] || (cd "$root" && cmake --preset "$preset" "$@"); } &&
      (cd "$root" && cmake --build --preset "$preset")
  } >"$log" 2>&1; then
    grep -E -A5 'error:|CMake Error|undefined reference' "$log" | head -n 40 >&2 || tail -n 40 "$log" >&2
    echo "The build failed; the whole log is build/$preset.log" >&2
    exit 2
  fi
}
