#!/usr/bin/env bash
# Installs what Quintara needs to build, run and test on Debian 12 (run as root or with sudo).
set -euo pipefail
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends \
  g++ cmake ninja-build ccache pkg-config \
  qt6-base-dev qt6-base-dev-tools libqt6charts6-dev qt6-charts-dev libgl-dev \
  libsqlcipher-dev sqlcipher libssl-dev libcurl4-openssl-dev \
  libgtest-dev libgmock-dev libbenchmark-dev \
  xvfb xauth poppler-utils python3-aiosmtpd fonts-dejavu-core >/dev/null
