#!/usr/bin/env bash
# Installs the Debian packages the build, the program and the test suite need, when they are missing.
set -euo pipefail

packages=(
    cmake ninja-build g++ ccache pkg-config
    qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
    qtkeychain-qt6-dev qt6-networkauth-dev libgl-dev
    python3 python3-fonttools python3-dateutil
    radicale xvfb xauth
)
# The machine may carry its own Node.js; Debian's npm is the fallback.
command -v npm >/dev/null 2>&1 || packages+=(npm)

missing=()
for p in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$p" 2>/dev/null || true)
    [ "$status" = "installed" ] || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi
echo "Installing missing packages: ${missing[*]}"
$sudo apt-get update -qq
$sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
