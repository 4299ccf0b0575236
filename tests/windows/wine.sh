# A Windows of our own to try programs under. To be sourced.

# Apart from that of the user, kept between runs because making it takes half a minute.
export WINEPREFIX=${KELVO_WINE_PREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/kelvo-wine}
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# No offer to install what a browser or a .NET program would need.
export WINEDLLOVERRIDES="mscoree,mshtml="

if [ ! -e "$WINEPREFIX/system.reg" ]; then
    mkdir -p "$WINEPREFIX"
    wine wineboot -i >/dev/null 2>&1 || true
    wineserver -w
fi
