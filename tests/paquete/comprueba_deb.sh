#!/usr/bin/env bash
# Builds the Debian package of a build tree with cpack, checks it with
# lintian (no error allowed), looks for the desktop integration in it and
# runs the unpacked programs, which must find their data relative to
# themselves.
#   comprueba_deb.sh BUILD_DIR
set -euo pipefail
build="$1"
tmp="$(mktemp -d)"
trap 'rm -rf "$tmp"' EXIT
cpack --config "$build/CPackConfig.cmake" -G DEB -B "$tmp" > "$tmp/cpack.log" 2>&1 || { cat "$tmp/cpack.log"; exit 1; }
deb="$(ls "$tmp"/*.deb)"
lintian --fail-on error --no-tag-display-limit "$deb"
dpkg-deb -f "$deb" Depends | grep -q 'libqt6widgets6' || { echo "sin dependencias de bibliotecas"; exit 1; }
contenido="$(dpkg-deb -c "$deb")"
for f in ./usr/bin/vedrano ./usr/bin/vedrano-cli \
         ./usr/share/applications/es.vedrano.Vedrano.desktop \
         ./usr/share/metainfo/es.vedrano.Vedrano.metainfo.xml \
         ./usr/share/mime/packages/vedrano.xml \
         ./usr/share/icons/hicolor/scalable/apps/es.vedrano.Vedrano.svg \
         ./usr/share/icons/hicolor/48x48/apps/es.vedrano.Vedrano.png \
         ./usr/share/man/man1/vedrano.1.gz ./usr/share/man/man1/vedrano-cli.1.gz \
         ./usr/share/doc/vedrano/copyright ./usr/share/doc/vedrano/changelog.gz \
         ./usr/share/vedrano/Datos/VDRDAT1.DAT "./usr/share/vedrano/Archivo/Inicial.ls1"; do
  grep -qF " $f" <<<"$contenido" || { echo "falta en el paquete: $f"; exit 1; }
done
# Unpacked anywhere, the programs use their own data, never the build's.
dpkg-deb -x "$deb" "$tmp/raiz"
cli="$tmp/raiz/usr/bin/vedrano-cli"
"$cli" --version | grep -q '^vedrano-cli '
[ "$("$cli" lista Estrellas | wc -l)" -gt 1000 ]
"$cli" dibuja --ancho 64 --alto 48 --salida "$tmp/cielo.png"
QT_QPA_PLATFORM=offscreen "$tmp/raiz/usr/bin/vedrano" --version | grep -q '^vedrano '
echo "paquete correcto: $(basename "$deb")"
