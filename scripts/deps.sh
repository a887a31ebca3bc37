#!/usr/bin/env bash
# Installs the Debian packages the build needs, and only those that are missing,
# so that a second run is quiet and quick.
set -euo pipefail

# Xvfb, xauth and a CJK font: the desktop program's screenshots and benchmark run under a
# virtual X server, and Chinese captions must render as text rather than boxes.
# dpkg-dev, file, help2man, lintian and desktop-file-utils: scripts/package.sh builds the
# Debian package (dependencies, manual pages) and checks it.
packages=(cmake ninja-build g++ pkg-config qt6-base-dev qt6-serialport-dev
          libcli11-dev libgtest-dev xvfb xauth fonts-wqy-microhei
          dpkg-dev file help2man lintian desktop-file-utils "$@")

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if ((${#missing[@]})); then
    echo "installing: ${missing[*]}"
    sudo_cmd=()
    [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
fi
