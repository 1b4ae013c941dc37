# shellcheck shell=bash
# Read by the scripts that build for Windows or run the build under Wine.

# Adds the place of wxWidgets to `options`, for CMake. Builds wxWidgets first if it is missing.
use_wxwidgets() {
    local folder
    folder=$(scripts/build-wxwidgets | tail -n 1)
    options+=(-D "wxWidgets_DIR=$folder/lib/cmake/wxWidgets")
}

# Prepares that folder for Wine, and starts a new session in it: a session that was started without a display
# cannot show windows.
use_wine() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
    export LC_ALL=C.UTF-8  # without a locale of UTF-8, Wine creates no file with an accent in its name
    [[ -d $WINEPREFIX ]] || fill_wine_prefix
    if ! timeout 60 wineserver --wait; then
        echo "A program that was started earlier still runs under Wine in $WINEPREFIX." >&2
        return 1
    fi
}

# Under another name first, so that an interrupted attempt is not used later.
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
