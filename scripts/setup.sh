#!/usr/bin/env bash
# Installs what the project needs on a fresh Debian 12 machine: the compiler, CMake,
# GoogleTest, Google Benchmark, the JSON library of the host tools, SQLite, PostgreSQL (the
# server for the tests, libpq for the store), CLI11 and fmt for the pay run, Debian's Python
# with pybind11, setuptools, venv and pytest for the Python module, clang and its runtime for
# the libFuzzer targets, and gcovr for the coverage report.
# Packages already present are left alone, so a second run costs nothing.
set -euo pipefail

packages=(g++ cmake make googletest libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev pkgconf binutils
          ccache libsqlite3-dev postgresql libpq-dev libcli11-dev libfmt-dev
          python3 python3-dev python3-venv python3-setuptools python3-pybind11 pybind11-dev python3-pytest
          clang libclang-rt-14-dev gcovr)
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
