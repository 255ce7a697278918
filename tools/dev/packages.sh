# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154 # need() reads the lists by the names of their groups; dev names python
#
# What the commands of ./dev need of the machine.

# Debian main packages by what needs them; a command installs its own groups and no others.
packages_build=(
    g++ cmake ninja-build pkgconf ccache
    qt6-base-dev qt6-svg-dev qt6-l10n-tools libicu-dev tzdata librsvg2-bin
    libxcb1-dev libxcb-sync-dev libxcb-xfixes0-dev libxcb-xinput-dev libxcb-xkb-dev
    libxcb-xtest0-dev
    libxkbcommon-dev libxkbcommon-x11-dev libfontconfig-dev
    libwayland-dev libwayland-bin plasma-wayland-protocols
    libgtest-dev libgmock-dev libbenchmark-dev
)
packages_desktop=(
    xvfb x11-xkb-utils x11-xserver-utils openbox xfwm4 i3-wm picom xfce4-panel xfconf
    dbus-daemon at-spi2-core orca util-linux
    mousepad featherpad xterm xclip
    bubblewrap sway xwayland foot grim waybar weston qt6-wayland libglib2.0-bin
    python3 python3-gi python3-xlib gir1.2-gtk-3.0
    fonts-inter fonts-noto-mono fonts-dejavu-core fonts-tlwg-loma-ttf fonts-droid-fallback
)
# The whole desktops of Wayland, each in a sandbox of its own.
packages_desktops=(
    bubblewrap dbus-daemon xwayland pipewire
    gnome-shell gjs gnome-settings-daemon dconf-gsettings-backend libglib2.0-bin
    xdg-desktop-portal xdg-desktop-portal-gnome gnome-shell-extension-appindicator
    gir1.2-gtk-4.0 foot
    kwin-wayland
)
# What reads the files that the desktop and the user get beside the program.
packages_metadata=(
    desktop-file-utils appstream flatpak-builder codespell man-db python3-yaml libglib2.0-bin systemd
    git xz-utils
)
packages_package=(build-essential debhelper lintian git xz-utils)
packages_roots=(debootstrap util-linux git xz-utils)
packages_soak=(
    gnome-text-editor xfce4-terminal qterminal emacs-gtk
    libreoffice-writer libreoffice-gtk3 python3-uno chromium firefox-esr
    parcellite copyq
)
packages_lint=(clang-format clang-tidy git)
packages_fuzz=(clang libclang-rt-dev)
packages_coverage=(gcovr)
packages_valgrind=(valgrind)
packages_cppcheck=(cppcheck)
packages_clazy=(clazy)

# What the groups are called for, on a system whose packages have other names.
commands_build=(c++ cmake ninja pkg-config wayland-scanner rsvg-convert)
commands_metadata=(
    desktop-file-validate appstreamcli flatpak-builder codespell man gapplication systemd-analyze
    git xz
)
commands_package=(dpkg-buildpackage dh lintian git xz)
commands_roots=(debootstrap unshare git xz)
commands_desktop=(
    Xvfb setxkbmap xkbcomp xrandr openbox xfwm4 i3 picom xfce4-panel xfconf-query
    dbus-daemon orca prlimit mousepad featherpad xterm xclip
    bwrap sway Xwayland foot grim waybar weston gdbus
)
commands_desktops=(bwrap Xwayland pipewire gnome-shell gjs gsettings foot kwin_wayland)
commands_lint=(clang-format clang-tidy run-clang-tidy git)
commands_fuzz=(clang++)
commands_coverage=(gcovr)
commands_valgrind=(valgrind)
commands_cppcheck=(cppcheck)
commands_clazy=(clazy-standalone)

is_installed() {
    [[ $(dpkg-query --show --showformat '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# install_packages PACKAGE...
install_packages() {
    local package missing=() as_root=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]} > 0)) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            fail "missing packages: ${missing[*]} (to have them installed, be root or install sudo)"
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update --quiet --quiet
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --quiet --quiet --no-install-recommends "${missing[@]}" ||
        fail "could not install: ${missing[*]}"
}

# need GROUP...: has the machine what the groups call for, or fails naming what it lacks. Libraries
# are looked for by CMake, which names them too.
need() {
    local group item list missing=()
    for group in "$@"; do
        if command -v apt-get >/dev/null; then
            list="packages_${group}[@]"
            install_packages "${!list}"
        fi
        list="commands_${group}[@]"
        for item in "${!list}"; do
            command -v "$item" >/dev/null || missing+=("$item")
        done
        [[ $group != desktop ]] || "$python" -c 'import gi, Xlib' 2>/dev/null ||
            missing+=("$python with the modules gi and Xlib")
    done
    ((${#missing[@]} == 0)) || fail "this machine lacks: $(printf '%s, ' "${missing[@]}" | sed 's/, $//')"
}
