# Shared by ./demo and ./test: where the project lies, and that its packages are installed.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
python=/usr/bin/python3

say() {
    printf '\n== %s\n' "$*"
}

# The packages of these lists, files in scripts/, that are not installed.
missing_packages() {
    local package
    (cd "$root/scripts" && cat "$@") | grep -v '^#' | while read -r package; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            printf '%s ' "$package"
    done
}

# Installs what is missing of packages.txt and of further lists. Asks first when a person sits there.
ensure_packages() {
    local yes=$1 missing answer as_root=
    missing=$(missing_packages packages.txt "${@:2}")
    if [ -z "$missing" ]; then
        return
    fi
    say "These Debian packages are missing: $missing"
    if [ "$yes" != yes ] && [ -t 0 ] && [ -z "${CI:-}" ]; then
        read -r -p "Install them now? [Y/n] " answer
        case "$answer" in
            [nN]*) echo "Nothing was changed."; exit 1 ;;
        esac
    fi
    if [ "$(id -u)" != 0 ]; then
        as_root=sudo
    fi
    export DEBIAN_FRONTEND=noninteractive
    # shellcheck disable=SC2086  # the list is words on purpose
    $as_root apt-get install -y -q --no-install-recommends $missing ||
        { $as_root apt-get update -q && $as_root apt-get install -y -q --no-install-recommends $missing; }
}

parse_arguments() {
    yes=no
    local argument
    for argument in "$@"; do
        case "$argument" in
            -y | --yes) yes=yes ;;
            *) echo "usage: $(basename "$0") [--yes]" >&2; exit 2 ;;
        esac
    done
}

# Builds a preset: all of it, or the targets that follow.
build() {
    local preset=$1 targets=("${@:2}")
    say "Building ($preset)"
    (cd "$root" && cmake --preset "$preset" --log-level=WARNING &&
        cmake --build --preset "$preset" --target "${targets[@]:-all}")
}
