#!/usr/bin/env bash
# Installs the Debian package given as $1 (as root) and checks what a terminal gets: the
# program and its tools on the PATH in /usr/bin, the help pages and the default picture in
# /usr/share/productos, the menu entry and its icon; then creates a demo installation with the
# installed tool and starts the installed program offscreen on it, which must render its screens.
set -euo pipefail
paquete=$(realpath "$1")
export DEBIAN_FRONTEND=noninteractive
apt-get install -y --no-install-recommends "$paquete" > /dev/null
falta=0
for f in /usr/bin/productos /usr/bin/productos-demo /usr/bin/productos-esquema \
  /usr/bin/productos-abrir /usr/share/productos/defecto.gif \
  /usr/share/productos/ayuda/A_Productos.html /usr/share/productos/ayuda/A_ProductosElaborados.html \
  /usr/share/productos/ayuda/A_Buscar.html /usr/share/productos/ayuda/A_SubProductos.html \
  /usr/share/applications/productos.desktop /usr/share/icons/hicolor/scalable/apps/productos.svg; do
  if [ ! -e "$f" ]; then
    echo "FALTA: $f" >&2
    falta=1
  fi
done
[ "$(command -v productos)" = /usr/bin/productos ] || { echo "productos no está en el PATH" >&2; falta=1; }
grep -q '^Exec=productos-abrir$' /usr/share/applications/productos.desktop || falta=1
obra=$(mktemp -d)
trap 'rm -rf "$obra"' EXIT
productos-demo "$obra/demo" > /dev/null
PRODUCTOS_CARPETA="$obra/demo" PRODUCTOS_CAPTURAS="$obra/capturas" QT_QPA_PLATFORM=offscreen \
  productos 2> "$obra/errores.txt" || { cat "$obra/errores.txt" >&2; falta=1; }
capturas=$(find "$obra/capturas" -name '*.png' 2>/dev/null | wc -l)
# Every screen of the form and both dialogs: ten pictures.
if [ "$capturas" -lt 10 ]; then
  echo "El programa instalado ha escrito solo $capturas capturas de 10" >&2
  falta=1
fi
if [ -s "$obra/demo/Errores.log" ]; then
  echo "El programa instalado ha registrado errores:" >&2
  cat "$obra/demo/Errores.log" >&2
  falta=1
fi
[ "$falta" -eq 0 ] && echo "Paquete instalado y probado: $paquete"
exit "$falta"
