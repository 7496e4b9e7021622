#!/bin/sh
# Installs Quadrelle for this account alone, below ~/.local, or takes it away again:
#   ./install.sh
#   ./install.sh remove      leaves what you made: palettes, brushes, options, unsaved work
set -eu
here=$(dirname "$(readlink -f "$0")")
case ${XDG_DATA_HOME:-} in
    /*) share=$XDG_DATA_HOME ;;
    *) share=${HOME:?}/.local/share ;;
esac
home=$share/quadrelle
command=${HOME:?}/.local/bin/quadrelle

refresh() {
    if command -v update-mime-database >/dev/null; then update-mime-database "$share/mime" || true; fi
    if command -v update-desktop-database >/dev/null; then update-desktop-database "$share/applications" || true; fi
    if command -v gtk-update-icon-cache >/dev/null; then
        gtk-update-icon-cache -q -t -f "$share/icons/hicolor" || true
    fi
}
# What lies below "share" here, by its name from there on.
shared_files() { (cd "$here/share" && find . -type f); }

remove() {
    shared_files | while IFS= read -r name; do rm -f "$share/$name"; done
    rm -rf "$home/program" "$home/licences" "$home/share"
    rm -f "$home/quadrelle" "$home/install.sh" "$home/README.txt" "$home/data/pool.bmp" "$command"
    refresh
    echo "Quadrelle is removed. What you made is still in $home."
}

# A path between the quotes of "Exec": escaped for them, and that once more as all values are.
quoted() { printf '%s' "$1" | sed 's/\\/\\\\\\\\/g; s/["`$]/\\\\&/g; s/%/%%/g'; }

install() {
    mkdir -p "$home/data" "${command%/*}" "$share/mime/packages"
    if [ "$here" != "$home" ]; then
        rm -rf "$home/program"
        cp -R "$here/program" "$here/licences" "$here/share" "$here/quadrelle" "$here/install.sh" "$here/README.txt" "$home/"
        cp "$here/data/pool.bmp" "$home/data/"
    fi
    shared_files | while IFS= read -r name; do
        mkdir -p "$(dirname "$share/$name")"
        cp "$here/share/$name" "$share/$name"
    done
    line="Exec=\"$(quoted "$home/quadrelle")\""
    while IFS= read -r entry; do
        case $entry in
            Exec=*) printf '%s\n' "$line" ;;
            *) printf '%s\n' "$entry" ;;
        esac
    done <"$here/share/applications/quadrelle.desktop" >"$share/applications/quadrelle.desktop"
    ln -sf "$home/quadrelle" "$command"
    refresh
    echo "Quadrelle is in your menu, and as $command."
}

case ${1:-} in
    "") install ;;
    remove) remove ;;
    *)
        echo "usage: install.sh [remove]" >&2
        exit 2
        ;;
esac
