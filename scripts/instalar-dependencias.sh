#!/usr/bin/env bash
# Installs, from the Debian archive, everything the project needs to build and test: Qt with its
# SQLite, ODBC and PostgreSQL drivers, unixODBC with the SQLite ODBC driver, the PostgreSQL server
# (the tests start a throwaway one), the build tools, the test and benchmark libraries, and a
# font for offscreen rendering. Does nothing when all is there; runs apt-get update only when a
# package is missing. Safe to run again and again.
set -euo pipefail

paquetes=(
  # build
  cmake ninja-build g++ pkg-config
  # Qt 6 and its database drivers
  qt6-base-dev qt6-base-dev-tools libgl-dev
  libqt6sql6-sqlite libqt6sql6-odbc libqt6sql6-psql
  # Qt's own texts in Spanish, for the standard dialogs
  qt6-translations-l10n
  # the demo's GIF pictures
  libgif-dev
  # the Debian package (cpack -G DEB finds its dependencies with dpkg-shlibdeps)
  dpkg-dev
  # the engines behind them
  libsqlite3-dev libpq-dev
  unixodbc unixodbc-dev odbcinst libsqliteodbc odbc-postgresql
  postgresql postgresql-contrib
  # tests: Google Test and Benchmark, a virtual display, a font for offscreen screens,
  # runuser (the PostgreSQL server of the tests runs as the postgres user when we are root)
  libgtest-dev libbenchmark-dev xvfb fonts-dejavu-core util-linux
)

faltan=()
for p in "${paquetes[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    faltan+=("$p")
  fi
done

if [ "${#faltan[@]}" -eq 0 ]; then
  exit 0
fi

echo "Installing: ${faltan[*]}"
if [ "$(id -u)" -eq 0 ]; then
  como_root=()
elif command -v sudo >/dev/null 2>&1; then
  como_root=(sudo)
else
  echo "These packages are missing and installing them needs root: ${faltan[*]}" >&2
  exit 1
fi
export DEBIAN_FRONTEND=noninteractive
"${como_root[@]}" apt-get update
"${como_root[@]}" apt-get install -y --no-install-recommends "${faltan[@]}"
