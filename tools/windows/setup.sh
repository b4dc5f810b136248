# Sourced after tools/setup.sh by what builds for Windows.

# debian_source PACKAGE: unpacks Debian's sources into the current folder, though the machine may
# know only where its binary packages come from.
debian_source() {
    local lists file
    lists=$(mktemp -d)
    mkdir -p "$lists/parts" "$lists/state/partial"
    for file in /etc/apt/sources.list.d/*.sources; do
        [ -f "$file" ] && sed 's/^Types:.*/Types: deb-src/' "$file" >"$lists/parts/$(basename "$file")"
    done
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -f "$file" ] && sed -n 's/^deb /deb-src /p' "$file" >"$lists/parts/$(basename "$file" .list).list"
    done
    local apt=(apt-get -qq -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$lists/parts"
        -o Dir::State::lists="$lists/state" -o APT::Sandbox::User=root)
    "${apt[@]}" update && "${apt[@]}" source "$1"
    local status=$?
    rm -rf "$lists"
    return $status
}

# For install_packages: what a Windows build needs beside the native one.
windows_package_groups() {
    cat <<'GROUPS'
to build for Windows|g++-mingw-w64-x86-64-posix dpkg-dev perl xz-utils
to play the animations there|libstb-dev rapidjson-dev
to see what Microsoft's compiler would mind|clang
to run what was built|wine wine64 xvfb xauth
GROUPS
}

# start_wine BUILD [NAME]: one Windows for all tests of a build, started before them: the first
# program would otherwise start it and be taken for running as long as it does.
start_wine() {
    export WINEPREFIX="$1/${2:-wine}" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
    mkdir -p "$WINEPREFIX" "$1/fonts"
    # without a display Qt takes its fonts from one folder
    ln -sf /usr/share/fonts/truetype/open-sans/*.ttf /usr/share/fonts/opentype/noto/NotoSansCJK-*.ttc \
        /usr/share/fonts/truetype/noto/NotoSans{,Arabic,Devanagari,Thai}-{Regular,Bold}.ttf "$1/fonts"
    wineboot --init >"$root/build/wine.log" 2>&1 </dev/null || fail "Wine does not start; see build/wine.log"
    # the families that Windows has and Wine lacks; its own choice for them may well be a serif
    cat >"$WINEPREFIX/fonts.reg" <<'FONTS'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Segoe UI"="Open Sans"
"Segoe UI Semibold"="Open Sans Semibold"
"Yu Gothic UI"="Noto Sans CJK JP"
"Malgun Gothic"="Noto Sans CJK KR"
"Microsoft JhengHei UI"="Noto Sans CJK TC"
FONTS
    wine regedit /S "Z:$WINEPREFIX/fonts.reg" >>"$root/build/wine.log" 2>&1 </dev/null || true
    wineserver --persistent=900 >/dev/null 2>&1 </dev/null || true
}
