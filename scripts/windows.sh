# shellcheck shell=bash
# Read by the scripts that build for Windows or run the build under Wine.

# Adds to `options` where CMake finds wxWidgets, which is built first if need be.
use_wxwidgets() {
    local folder
    folder=$(scripts/build-wxwidgets | tail -n 1)
    options+=(-D "wxWidgets_DIR=$folder/lib/cmake/wxWidgets")
}

# Lets Wine work in that folder, filled first if need be, and in a session of its own: one that somebody
# started without a display could not show windows.
use_wine() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
    [[ -d $WINEPREFIX ]] || fill_wine_prefix
    if ! timeout 60 wineserver --wait; then
        echo "A program that was started earlier still runs under Wine in $WINEPREFIX." >&2
        return 1
    fi
}

# Under another name at first, so that what an interruption leaves is not taken for whole.
fill_wine_prefix() {
    local new=$WINEPREFIX.new
    rm -rf -- "$new"
    mkdir -p -- "$new"
    if ! WINEDEBUG='' WINEPREFIX=$new timeout 300 wineboot --init >"$new/log" 2>&1 ||
        ! WINEPREFIX=$new timeout 60 wineserver --wait; then
        tail -n 20 "$new/log" >&2
        echo "Wine could not be set up in $WINEPREFIX." >&2
        return 1
    fi
    mv -T -- "$new" "$WINEPREFIX"
}
