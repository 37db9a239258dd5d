#!/usr/bin/env bash
# Installs the program as its users do, from the Debian package and as a portable folder, and starts
# what is installed.   InstallTest.sh SOURCE_DIR BUILD_DIR
set -euo pipefail
source_dir=$1
build_dir=$2
PATH=$PATH:/usr/sbin:/sbin

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}

for tool in dpkg-shlibdeps file Xvfb xdotool xclip desktop-file-validate appstreamcli; do
    command -v "$tool" >/dev/null || {
        echo "skipped: there is no $tool here"
        exit 77
    }
done

work=$(mktemp -d)
root=$work/root
portable=$work/portable
display_server=
program=
clean_up() {
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    [ -z "$display_server" ] || kill "$display_server" 2>/dev/null || true
    chmod -R u+w "$work"
    rm -rf "$work"
}
trap clean_up EXIT
chmod 755 "$work"

# No folder is closed to root: then a user without rights takes the tests' place.
as_user=()
user=$(id -un)
if [ "$(id -u)" -eq 0 ]; then
    user=nobody
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
fi

mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -noreset 3>"$work/display" 2>"$work/xvfb.log" &
display_server=$!
DISPLAY=:$(head -1 "$work/display")

wait_for() { # SECONDS COMMAND...
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.05
    done
}

at_desk() { # COMMAND... of a user who has just logged in
    "${as_user[@]}" env -i PATH=/usr/bin:/bin DISPLAY="$DISPLAY" HOME="$home" \
        XDG_RUNTIME_DIR="$home/run" "$@"
}

window() { at_desk xdotool search --onlyvisible --name "^Tensarix v$version " >/dev/null 2>&1; }

# Waits for what "Copy All" gives; a figure of the first section is in the store alone.
copied() {
    at_desk timeout 1 xclip -o -selection clipboard 2>/dev/null | tr '\r' '\n' |
        grep -q "^$1"$'\t'"$2 "
}

# Starts PROGRAM in the new home NAME, looks at the first section, and ends the program.
use() { # PROGRAM NAME
    home=$work/$2
    mkdir -p "$home/run"
    chmod 700 "$home/run"
    chown -R "$user" "$home"
    at_desk "$1" 2>"$work/$2.log" &
    program=$!
    wait_for 20 window || fail "$1 shows no window: $(cat "$work/$2.log")"
    at_desk xdotool search --onlyvisible --name "^Tensarix v$version " windowfocus --sync
    # From below: what compares, two ways to travel, "Exit", "Copy All".
    at_desk xdotool key alt+d shift+F10 Up Up Up Up Up Return
    wait_for 5 copied A "$first_area" || fail "$1 doesn't show the figures of the first section"
    at_desk xdotool key ctrl+x
    wait "$program" || fail "$1 ended with $?: $(cat "$work/$2.log")"
    program=
    [ -s "$home/.config/Tensarix/Tensarix.ini" ] || fail "$1 saved no settings"
}

outside_admin() { find "$root" -mindepth 1 -path "$root/var" -prune -o -print | sort; }

admin() { # dpkg in the empty root
    dpkg --root="$root" --log="$work/dpkg.log" --force-not-root --force-bad-path \
        --force-depends "$@" >"$work/dpkg.out" 2>&1 || fail "dpkg $*: $(cat "$work/dpkg.out")"
}

# The package

cpack --config "$build_dir/CPackConfig.cmake" -B "$work" >"$work/cpack.log" 2>&1 ||
    fail "no package: $(cat "$work/cpack.log")"
package=$(echo "$work"/tensarix_*.deb)
release=$(dpkg-deb -f "$package" Version)
version=${release%.*} # as the window tells it
# Its column A as the table shows it.
first_area=$(awk -F, 'NR == 2 { printf "%.2f", $4 }' "$source_dir/data/sections/W.csv")

metainfo=$source_dir/package/org.tensarix.tensarix.metainfo.xml
desktop-file-validate "$source_dir/package/tensarix.desktop" || fail "the desktop entry"
appstreamcli validate --no-net "$metainfo" >"$work/metainfo.log" ||
    fail "the metainfo: $(cat "$work/metainfo.log")"
newest=$(dpkg-parsechangelog -l "$source_dir/package/changelog" -S Version)
[ "$newest" = "$release" ] || fail "the changelog ends with $newest, the package is $release"
[ "$(grep -m1 -o '<release version="[^"]*"' "$metainfo")" = "<release version=\"$release\"" ] ||
    fail "the metainfo's newest release is not $release"
if command -v apt-get >/dev/null; then
    apt-get install -s --no-install-recommends "$package" >"$work/apt.log" 2>&1 ||
        fail "apt would not install it: $(cat "$work/apt.log")"
fi

mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
touch "$root/var/lib/dpkg/status"
admin --install "$package"
[ -s "$root/usr/lib/tensarix/guide/guide.md" ] || fail "the package has no guide"
[ "$(find "$root/usr" -type f -perm /111)" = "$root/usr/lib/tensarix/tensarix" ] ||
    fail "the package should have one program: $(outside_admin)"
chmod a-w "$root/usr/lib/tensarix"
outside_admin >"$work/before"
use "$root/usr/bin/tensarix" system
outside_admin | diff "$work/before" - || fail "the program wrote where it is installed"
data=$work/system/.local/share/Tensarix/Tensarix
[ -f "$data/BoltInputData.dat" ] || fail "no data files in $data"

chmod u+w "$root/usr/lib/tensarix"
admin --purge tensarix
[ -z "$(outside_admin)" ] || fail "removal leaves $(outside_admin)"
[ -f "$data/BoltInputData.dat" ] || fail "removal took the user's data files"

# The portable folder

cmake --install "$build_dir" --prefix "$portable" >"$work/install.log" || fail "cmake --install"
chown -R "$user" "$portable"
use "$portable/tensarix" home
[ -f "$portable/BoltInputData.dat" ] || fail "the data files are not beside the program"
[ ! -e "$work/home/.local" ] || fail "a portable program left $(find "$work/home/.local")"
echo "The package and the portable folder hold"
