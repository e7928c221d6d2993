# shellcheck shell=bash disable=SC2034  # others use what is set here
# Sourced by ./run and ./check: installs the Debian packages that are missing, and says which and why.

# The compiler, the build and the libraries that the program is made of. libqt6svg6 brings the plugin that draws icons.
build_packages="g++ cmake ninja-build ccache libsqlite3-dev qt6-base-dev qt6-svg-dev libqt6svg6 fonts-liberation"
# Tests: the frameworks, a display that nobody sees, a reader of PDF files, the stock shell of the store.
test_packages="libgtest-dev libgmock-dev xvfb xauth poppler-utils sqlite3"
# What ./check --all uses besides: the benches' framework, the readers of the code, and those of the package.
review_packages="clang clang-format clang-tidy libbenchmark-dev
  dpkg-dev lintian appstream desktop-file-utils x11-utils"

# missing_packages package...: those that aren't installed, on one line.
missing_packages() {
  local installed
  installed=" $(dpkg-query --show --showformat '${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
  local package
  for package in "$@"; do
    [[ $installed == *" installed:$package "* ]] || printf '%s ' "$package"
  done
}

# need_packages purpose package...: returns when all are there; ends the script when they can't be had.
need_packages() {
  local purpose=$1
  shift
  if ! command -v dpkg-query >/dev/null; then
    echo "This isn't Debian, so nothing is installed for you. For $purpose you need what Debian calls: $*" >&2
    return 0
  fi
  local missing
  missing=$(missing_packages "$@")
  [[ -n $missing ]] || return 0

  local as_root=()
  if [[ $EUID -ne 0 ]]; then
    command -v sudo >/dev/null || give_up "$purpose" "$missing" "you aren't root, and there is no sudo"
    as_root=(sudo)
    echo "Installing with sudo, so it may ask for your password."
  fi
  echo "Installing packages for $purpose: $missing"
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Acquire::Retries=2
    -o Acquire::http::Timeout=30 -o Dpkg::Use-Pty=0)
  # Lists that can't be refreshed may still be good enough, so only the installation itself decides.
  "${apt[@]}" update || echo "The package lists could not be refreshed; trying with those that are here." >&2
  # shellcheck disable=SC2086  # a list of names
  "${apt[@]}" install --yes --no-install-recommends $missing >/dev/null ||
    give_up "$purpose" "$missing" "apt-get failed (see above; is the network there?)"
}

give_up() {
  echo "Not installed: $3. For $1 these packages are needed; install them and try again:" >&2
  echo "  apt-get install $2" >&2
  exit 1
}
