# Shared by the scripts of this folder; to be sourced.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The folder that the settings file lives in; the programs never create it.
shared_folder="/Users/Shared/KT7R4"

say() { printf '==> %s\n' "$*"; }
die() { printf 'error: %s\n' "$*" >&2; exit 1; }

# Runs a command as root, through sudo where this user is none.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "needs root: run as root or install sudo ($*)"
    fi
}

has_display() { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }
