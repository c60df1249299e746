# shellcheck shell=bash
# What ./run, ./test and the scripts of tools/ share: packages, logged steps and builds.
# To be sourced under `set -euo pipefail`; goes to the project's folder.

unset CDPATH
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
readonly logs=$PWD/build/logs

# Qt and the tests need a UTF-8 locale; a bare machine has none set.
if [[ $(locale charmap 2>/dev/null) != UTF-8 ]]; then
    export LC_ALL=C.UTF-8
fi

say() { printf '%s\n' "$*"; }

complain() { printf '%s: %s\n' "${0##*/}" "$*" >&2; }

fail() {
    complain "$@"
    exit 1
}

# logged NAME TITLE COMMAND...
# Says TITLE and runs the command with its output in build/logs/NAME.log. When it fails: shows the
# end of the log and returns the command's status. In a function given as COMMAND `set -e` has no
# effect, so its steps are joined by &&.
logged() {
    local log=$logs/$1.log title=$2 status=0
    shift 2
    mkdir -p "$logs"
    say "$title"
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if ((status != 0)); then
        tail -n 40 "$log" >&2
        complain "failed with status $status: $title (whole output: $log)"
    fi
    return "$status"
}

# packages_in SECTION...: the packages that packages.txt lists under these headings.
packages_in() {
    awk -v wanted=" $* " '
        { sub(/#.*/, "") }
        /^\[/ { gsub(/[][ \t]/, ""); listed = index(wanted, " " $0 " "); next }
        listed && NF { print $1 }' packages.txt | LC_ALL=C sort -u
}

# missing_packages SECTION...: those of them that this machine doesn't have.
missing_packages() {
    local packages installed
    mapfile -t packages < <(packages_in "$@")
    # For a package that it never heard of dpkg-query fails, after telling about all the others.
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null) || true
    LC_ALL=C comm -23 <(printf '%s\n' "${packages[@]}") \
        <(sed -n 's/^installed //p' <<<"$installed" | LC_ALL=C sort -u)
}

apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --yes --quiet \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=600 "$@"
}

install_packages() {
    # A source that can't be reached is no failure yet: the lists may still be good enough.
    apt_get update || true
    apt_get install --no-install-recommends "$@"
}

can_sudo() {
    command -v sudo >/dev/null || return 1
    sudo -n true 2>/dev/null && return
    [[ -t 0 ]] && sudo -v -p "Password for installing packages: "
}

# need_packages SECTION...: installs what is missing of these sections of packages.txt; says nothing
# and starts no package manager when nothing is.
need_packages() {
    if ! command -v dpkg-query >/dev/null; then
        complain "this is no Debian system; going on as if it had all that packages.txt lists"
        return
    fi
    local missing as_root=()
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} == 0)); then
        return
    fi
    if ((EUID != 0)); then
        if ! can_sudo; then
            fail "packages are missing, and installing them takes root or sudo. As root, type:
    apt-get update && apt-get install --no-install-recommends ${missing[*]}"
        fi
        as_root=(sudo)
    fi
    logged packages "Installing packages: ${missing[*]}" install_packages "${missing[@]}"
}

# build PRESET [TARGET...]: configures and builds all or these targets.
build() {
    local preset=$1 folder=build/$1 fresh=() targets=()
    shift
    if (($# > 0)); then
        targets=(--target "$@")
    fi
    # A cache made in another place (the folder was moved or copied) can't be used again.
    if [[ -f $folder/CMakeCache.txt ]] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd -P)" "$folder/CMakeCache.txt"; then
        fresh=(--fresh)
    fi
    logged "configure-$preset" "Configuring $folder" cmake --preset "$preset" "${fresh[@]}"
    logged "build-$preset" "Building $folder" \
        cmake --build "$folder" --parallel "$(nproc)" "${targets[@]}"
}

# make_application_folder FOLDER PROGRAMS: a fresh folder for the program to work in, with nothing
# but the models from the folder PROGRAMS.
make_application_folder() {
    mkdir "$1" && cp "$2/SWQVL.exe" "$2/HWQVL.exe" "$1"
}
