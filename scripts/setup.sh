# Sourced by the commands at the top: installs the Debian packages that are missing and sets what builds share.
desk_packages=(
    build-essential ccache clang-format cmake git ninja-build pkg-config
    qt6-base-dev qt6-multimedia-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    qt6-translations-l10n
    libqt6sql6-sqlite libpugixml-dev libcurl4-openssl-dev libsqlite3-dev qcoro-qt6-dev sqlite3
    libgl-dev libgtest-dev libgmock-dev xauth xvfb
    python3-aiosmtpd python3-pyftpdlib
    fonts-dejavu-core fonts-noto-cjk fonts-noto-core fonts-noto-mono
)
desk_missing=()
for package in "${desk_packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || desk_missing+=("$package")
done
if [ "${#desk_missing[@]}" -gt 0 ]; then
    echo "Installing: ${desk_missing[*]}"
    as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${desk_missing[@]}" >/dev/null
fi
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
export CCACHE_INODECACHE=true # the precompiled headers are hashed once, not for every file
export LC_ALL=C.UTF-8
