# Installs Debian packages that are missing, and says so. Sourced by ./run and ./test.

build_packages=(build-essential cmake lld ninja-build pkg-config
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-multimedia-dev qt6-webengine-dev
  libjpeg-dev libpng-dev libtag1-dev libcli11-dev nlohmann-json3-dev zlib1g-dev)
run_packages=(libqt6svg6 qt6-image-formats-plugins qt6-qpa-plugins qt6-translations-l10n fonts-dejavu-core
  gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-plugins-ugly gstreamer1.0-plugins-bad
  gstreamer1.0-libav)
display_packages=(xvfb xauth xdotool x11-utils at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi ffmpeg
  libid3tag0-dev zlib1g-dev)
test_packages=(libgtest-dev libgmock-dev locales python3 python3-mutagen clang)
check_packages=(clang-format-14 clang-tidy-14 libclang-rt-14-dev git)

install_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing: ${missing[*]}"
  local root=()
  [ "$(id -u)" -eq 0 ] || root=(sudo)
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}
