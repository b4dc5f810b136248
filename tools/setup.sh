# Sourced by ./demo and ./check: what both need before they can start.
# Expects `root`, the project's folder, and `me`, the name for messages.

# Reason, then the packages. Nothing more than these and what they depend on is installed.
package_groups() {
    cat <<'GROUPS'
to build|build-essential cmake ninja-build pkg-config
the windows and their tools|qtbase5-dev qtbase5-private-dev qttools5-dev qttools5-dev-tools
to read WebP, TIFF and more|qt5-image-formats-plugins
to play the animations|librlottie-dev
to render the pictures|librsvg2-bin pngquant
to read file systems|libtsk-dev
to read and write a photo's metadata|libexiv2-dev
to read and write videos|libavformat-dev libavcodec-dev libavutil-dev libswscale-dev
to take frames from videos|libffmpegthumbnailer-dev
to make the sample card|dosfstools mtools
so that texts are visible|fonts-open-sans fonts-noto-core fonts-noto-cjk
for Qt's own words in other languages|qttranslations5-l10n
for the benchmarks|libbenchmark-dev python3
for tests with other file systems|e2fsprogs exfatprogs
for tests on a screen without a compositor|xvfb
GROUPS
}

say() { printf '%s\n' "$*" >&2; }
fail() {
    say "$me: $*"
    exit 1
}

is_installed() { dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null | grep -q '^ii'; }

# install_packages [GROUPS]: what package_groups lists, or another function like it.
install_packages() {
    local groups=${1:-package_groups}
    local all missing=() lines=() reason packages package lacking log="$root/build/setup.log"
    all=$("$groups" | cut -d'|' -f2 | tr '\n' ' ')
    [ -z "${QUARVO_SKIP_SETUP:-}" ] || return 0
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null \
        || fail "no apt here; install the like of these and set QUARVO_SKIP_SETUP=1: $all"

    while IFS='|' read -r reason packages; do
        lacking=()
        for package in $packages; do
            is_installed "$package" || lacking+=("$package")
        done
        [ ${#lacking[@]} -eq 0 ] && continue
        missing+=("${lacking[@]}")
        lines+=("  ${lacking[*]} ($reason)")
    done < <("$groups")
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null \
            || fail "not root and no sudo; have these installed: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing what is missing:"
    for reason in "${lines[@]}"; do say "$reason"; done
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0)
    mkdir -p "$root/build"
    if ! { "${apt[@]}" update && "${apt[@]}" install --yes --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        grep -m 1 '^E: ' "$log" >&2 || tail -n 3 "$log" >&2
        fail "apt could not install these (is this Debian 12, with a network?); its words are in ${log#"$root"/}: ${missing[*]}"
    fi
}

# Names on a card are not ASCII; without a UTF-8 locale Qt would lose them.
use_utf8() {
    [ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8
}

# logged NAME COMMAND...: quiet when it works; what it said when it does not.
logged() {
    local name=$1 log="$root/build/$1.log"
    shift
    mkdir -p "$root/build"
    "$@" >"$log" 2>&1 && return 0
    grep -E -A 12 'error|Error|FAILED' "$log" | head -n 60 >&2
    fail "$name failed; the whole story is in ${log#"$root"/}"
}

# build PRESET [TARGET...]: everything when no target is named.
build() {
    local preset=$1 folder="$root/build/$1" targets=()
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    if [ ! -f "$folder/build.ninja" ]; then
        # a folder that another machine or an interrupted run has left behind
        rm -rf "$folder/CMakeCache.txt" "$folder/CMakeFiles"
        (cd "$root" && logged "configure-$preset" cmake --preset "$preset")
    fi
    if ! cmake --build "$folder" "${targets[@]}" -- -n 2>/dev/null | grep -q 'no work to do'; then
        say "Building ($preset) …"
        logged "build-$preset" cmake --build "$folder" "${targets[@]}"
    fi
}
