# Sourced by the two commands: installs what is missing and builds. Debian 12 and what descends from it.

# What building and running take.
corvane_packages=(
  g++ cmake ninja-build pkg-config ccache mold
  libexpat1-dev librsvg2-dev libqpdf-dev libfontconfig-dev liblcms2-dev libboost-dev libcli11-dev nlohmann-json3-dev
  qtbase5-dev libqt5gui5 libqt5svg5-dev qttranslations5-l10n
  libgtest-dev libgmock-dev libbenchmark-dev libgettextpo-dev libx11-dev libxtst-dev
  fonts-dejavu-core fonts-ipafont-gothic
)
# What the check takes beside it: the other compiler with its tools, an X server, and what others made to look at files.
corvane_check_packages=(
  clang clang-format clang-tidy libclang-rt-dev llvm python3
  xvfb xauth
  gettext lintian desktop-file-utils appstream man-db file
  qpdf mupdf-tools ghostscript poppler-utils
)

install_packages() {
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "installing: ${missing[*]}" >&2
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "these packages are missing, and installing them needs root: ${missing[*]}" >&2; return 1; }
    as_root=(sudo)
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build PRESET [TARGET...]: quiet unless it fails or takes part in a terminal session.
build() {
  local preset=$1
  shift
  (cd "$root" && cmake --preset "$preset" >/dev/null && cmake --build --preset "$preset" ${1:+--target "$@"} >&2)
}
