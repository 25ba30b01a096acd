#!/usr/bin/env bash
# Installs what is missing, builds Vandorel (dev preset: every outside host on loopback)
# and starts it. Without a display it runs under Qt's offscreen platform and says so.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake --preset dev >/dev/null
cmake --build --preset dev --target vandorel -j"$(nproc)"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
  echo "No display found: running under the offscreen platform (no tray icon or windows will show)."
  export QT_QPA_PLATFORM=offscreen
fi
exec ./build/dev/src/app/vandorel "$@"
