# shellcheck shell=bash disable=SC2034 # the lists are used by the scripts that source this
# The Debian packages each job needs, and a function that installs the missing ones.
# Sourced by the scripts; it is not run by itself.

# The core, its command line and their tests.
core_packages=(
  cmake ninja-build g++ ccache python3
  libgtest-dev libgmock-dev nlohmann-json3-dev libcli11-dev
)

# The editor. libqt6svg6 brings the plugins that draw the icons, and without both sets of
# gstreamer plugins the audio player of Qt ends the program when it is made.
editor_packages=(
  qt6-base-dev qt6-svg-dev libqt6svg6 qt6-multimedia-dev
  gstreamer1.0-plugins-base gstreamer1.0-plugins-good
  fonts-liberation fonts-dejavu-core fontconfig
)

# Tests that read a printed page back.
print_test_packages=(poppler-utils)

# A virtual display that can be looked at from elsewhere.
virtual_display_packages=(xvfb xauth openbox x11vnc xdotool imagemagick)

format_packages=(clang-format-14)
tidy_packages=(clang-tidy-14)

# llvm-14 has the symbolizer, which puts names into the stack of a finding.
fuzz_packages=(clang-14 libclang-rt-14-dev llvm-14)

# preset_packages PRESET: prints what it takes to build and test that preset.
preset_packages() {
  case $1 in
    core) echo "${core_packages[@]}" ;;
    fuzz) echo "${core_packages[@]}" "${fuzz_packages[@]}" ;;
    *)
      echo "${core_packages[@]}" "${editor_packages[@]}" "${print_test_packages[@]}"
      ;;
  esac
}

# install_missing PACKAGE...: installs those that are not there. Says nothing if all are.
install_missing() {
  if ! command -v dpkg-query > /dev/null; then
    echo "This is no Debian system. What Debian calls by these names must be there: $*" >&2
    return 0
  fi

  local missing=() package
  for package in "$@"; do
    if [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2> /dev/null) != installed ]]; then
      missing+=("$package")
    fi
  done
  if ((${#missing[@]} == 0)); then
    return 0
  fi

  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo > /dev/null; then
      echo "These packages are missing, and there is no sudo to install them with." >&2
      echo "Please run this as root:  apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi

  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get -qq update < /dev/null
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq -o Dpkg::Use-Pty=0 install -y --no-install-recommends "${missing[@]}" \
    < /dev/null > /dev/null
}
