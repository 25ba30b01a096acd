#!/usr/bin/env bash
# Installs what building, running and testing Vandorel needs on Debian 12 / Ubuntu,
# and nothing when it is all there already.
set -euo pipefail

packages=(
  cmake ninja-build g++ pkg-config git clang-format
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-svg-dev
  libicu-dev bootstrap-icons
  xvfb xauth x11-utils trayer xdotool dbus dbus-x11 xdg-utils libglib2.0-bin libglib2.0-dev desktop-file-utils
  imagemagick fonts-dejavu-core fonts-noto-color-emoji fonts-noto-cjk
  dpkg-dev lintian appstream
  at-spi2-core python3-pyatspi
  clang libclang-rt-14-dev python3
)

missing=()
for pkg in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed" || missing+=("$pkg")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
