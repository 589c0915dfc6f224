#!/usr/bin/env bash
# Installs the given Debian packages that are not installed yet. Runs `apt-get update` only
# when something is missing, so on a prepared machine it costs a few dpkg queries.
set -euo pipefail

missing=()
for pkg in "$@"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$pkg")
    fi
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing missing packages: ${missing[*]}"
sudo=()
if [[ $(id -u) -ne 0 ]]; then
    sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
apt_opts=(-y -q -o DPkg::Lock::Timeout=600)
"${sudo[@]}" apt-get "${apt_opts[@]}" update
"${sudo[@]}" apt-get "${apt_opts[@]}" install "${missing[@]}"
