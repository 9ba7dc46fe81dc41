#!/usr/bin/env bash
# Installs what Quintara needs to build, run, test and measure on Debian 12 (run as root or with
# sudo). Every package is named here: nothing may rely on what a machine happens to have, so
# scripts/check-fresh.sh runs the tests in a root that has only these.
set -euo pipefail
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi

packages=(
  # build
  g++ cmake ninja-build ccache pkg-config git ca-certificates
  # Qt 6: widgets, printing, charts (the charts' CMake package needs the OpenGL one)
  qt6-base-dev qt6-base-dev-tools libqt6opengl6-dev libqt6charts6-dev qt6-charts-dev libgl-dev
  qt6-qpa-plugins
  # the data file, mail
  libsqlcipher-dev sqlcipher libssl-dev libcurl4-openssl-dev openssl
  # bank statements in OFX (libofx7 brings the DTDs its parser needs)
  libofx-dev
  # printed pages are laid out in Arial's metrics: Liberation is its metric-compatible twin
  fonts-liberation2 fonts-dejavu-core fontconfig
  # tests and benchmarks
  libgtest-dev libgmock-dev libbenchmark-dev poppler-utils python3 python3-aiosmtpd xvfb xauth
  # lint
  clang-format clang-tidy
  # the sanitizer run (scripts/sanitize.sh): clang and its libFuzzer for the fuzz targets
  clang libclang-rt-14-dev
)

$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${packages[@]}" >/dev/null
