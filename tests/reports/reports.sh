# For the scripts beside this file: makes all reports in a fresh application folder, $folder, which
# goes with the script.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d "${TMPDIR:-/tmp}/arbolith reports.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
folder=$scratch/folder
readonly here scratch folder
# What a program keeps for itself goes with the rest.
export HOME=$scratch

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# need PROGRAM ...: ends the test as skipped where one isn't installed.
need() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null || { printf 'no %s here\n' "$program" && exit 77; }
    done
}

# make_reports BIN: with the programs of the folder BIN.
make_reports() {
    mkdir "$folder"
    cp "$1/SWQVL.exe" "$1/HWQVL.exe" "$here/../../samples/ten-stands.qvb" "$folder"
    "$1/form_script" --folder "$folder" "$here/reports.script"
}
