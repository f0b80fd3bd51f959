#!/usr/bin/env bash
# Installs the Debian packages that VEDRANO needs to build, run and test,
# when any of them is missing. Run as root (or with sudo available).
# Extra package names given as arguments are installed the same way.
set -euo pipefail

PAQUETES=(
  build-essential cmake pkg-config python3
  qt6-base-dev qt6-multimedia-dev qt6-tools-dev libgl-dev
  libgtest-dev libgmock-dev libbenchmark-dev liberfa-dev
  xvfb xauth poppler-utils
  fonts-urw-base35 qt6-translations-l10n qt6-svg-dev
  desktop-file-utils appstream lintian dpkg-dev fakeroot file
  "$@"
)

faltan=()
for p in "${PAQUETES[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || faltan+=("$p")
done
if [ ${#faltan[@]} -gt 0 ]; then
  echo "Instalando: ${faltan[*]}"
  sudo_=""
  [ "$(id -u)" -eq 0 ] || sudo_="sudo"
  $sudo_ apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_ apt-get install -y -qq --no-install-recommends "${faltan[@]}"
fi
