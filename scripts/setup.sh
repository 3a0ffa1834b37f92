#!/usr/bin/env bash
# Installs what the project needs on a fresh Debian 12 machine: the compiler, CMake,
# GoogleTest, Google Benchmark and the JSON library of the host tools. Packages already
# present are left alone, so a second run costs nothing.
set -euo pipefail

packages=(g++ cmake make googletest libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev pkgconf binutils ccache)
missing=()
for p in "${packages[@]}"; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
fi
