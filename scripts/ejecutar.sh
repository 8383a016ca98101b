#!/usr/bin/env bash
# Installs what the project needs, builds it, creates the demo installation when there is none,
# and opens the program on it. With no display it renders the screens offscreen to PNG files.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
carpeta=${PRODUCTOS_BUILD:-build-release}
cmake -S . -B "$carpeta" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF
cmake --build "$carpeta" -j2 --target productos productos-demo
demo=${PRODUCTOS_DEMO:-$PWD/demo}
if [ ! -f "$demo/productos.ini" ]; then
  "$carpeta/tools/demo/productos-demo" "$demo"
fi
export PRODUCTOS_CARPETA="$demo"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$carpeta/app/productos"
fi
capturas="$demo/capturas"
mkdir -p "$capturas"
# A screen of the size the forms are designed for.
pantalla="$capturas/pantalla-1024x768.json"
echo '{"screens": [{"name": "Pantalla", "x": 0, "y": 0, "width": 1024, "height": 768,
  "logicalDpiX": 96, "logicalDpiY": 96, "dpr": 1}]}' > "$pantalla"
QT_QPA_PLATFORM="offscreen:configfile=$pantalla" PRODUCTOS_CAPTURAS="$capturas" \
  "$carpeta/app/productos"
echo "No hay pantalla: las capturas de las pantallas del programa están en $capturas"
ls -1 "$capturas"
