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
programa="$carpeta/app/productos"

# Renders the screens of the installation $1 on a screen of $2 (WIDTHxHEIGHT) into folder $3.
capturar() {
  local ancho=${2%x*} alto=${2#*x}
  mkdir -p "$3"
  local pantalla="$3/pantalla.json"
  echo "{\"screens\": [{\"name\": \"Pantalla\", \"x\": 0, \"y\": 0, \"width\": $ancho,
    \"height\": $alto, \"logicalDpiX\": 96, \"logicalDpiY\": 96, \"dpr\": 1}]}" > "$pantalla"
  PRODUCTOS_CARPETA="$1" QT_QPA_PLATFORM="offscreen:configfile=$pantalla" \
    PRODUCTOS_CAPTURAS="$3" "$programa"
  rm -f "$pantalla"
}

# The screens at the sizes of the suite's terminals; the forms are designed at 1024x768.
for tamano in 800x600 1024x768 1366x768 1920x1080; do
  capturar "$demo" "$tamano" "$capturas/$tamano"
done
echo "No hay pantalla: las capturas de las pantallas del programa están en $capturas"
ls -1 "$capturas"/*

# The README's pictures come from the same run: terminal T1 at the design's size, also with
# the demo's "Noche" scheme (number 4).
if [ -d docs ] && [ -f README.md ]; then
  declare -A copias=(
    [01-inicio]=inicio [03-productos-siguiente]=productos [06-elaborados]=elaborados
    [07-elaborados-modificar]=elaborados-modificar [08-elaborados-cantidad]=elaborados-cantidad
    [09-buscar]=buscar [10-subproductos]=subproductos)
  for captura in "${!copias[@]}"; do
    cp "$capturas/1024x768/$captura.png" "docs/${copias[$captura]}.png"
  done
  noche=$(mktemp -d)
  "$carpeta/tools/demo/productos-demo" --esquema 4 "$noche/demo" > /dev/null
  capturar "$noche/demo" 1024x768 "$noche/capturas"
  cp "$noche/capturas/04-productos-modificar.png" docs/productos-noche.png
  rm -rf "$noche"
  echo "Las capturas del README (docs/) están al día."
fi
