# shellcheck shell=bash
# Pictures of the windows at the end of form scripts. To be sourced after setup.sh, under
# `set -euo pipefail`.
# shellcheck source=tools/setup.sh
: "${logs:?setup.sh comes first}"

readonly programs=$PWD/build/release/bin

# The offscreen platform's own screen is smaller than the main form at twice its size.
describe_screen() {
    cat <<'SCREEN'
{ "screens": [ { "name": "offscreen", "x": 0, "y": 0, "width": 2560, "height": 1600 } ] }
SCREEN
}

# play SCRIPT FACTOR PICTURE SCRATCH [OPTION...]
play() {
    local script=$1 factor=$2 picture=$3 scratch=$4
    shift 4
    describe_screen >"$scratch/screen.json" &&
        make_application_folder "$scratch/application" "$programs" &&
        cp samples/*.qvb "$scratch/application" &&
        QT_QPA_PLATFORM=offscreen:configfile=$scratch/screen.json QT_SCALE_FACTOR=$factor \
            timeout 300 "$programs/form_script" --window --folder "$scratch/application" \
            --picture "$picture" "$@" "$script" >/dev/null
}

# take_picture SCRIPT FACTOR PICTURE [OPTION...]: the options are form_script's. Fails where the script
# does, or leaves no picture.
take_picture() {
    local script=$1 factor=$2 picture=$3 scratch status=0
    shift 3
    scratch=$(mktemp -d)
    rm -f "$picture"
    play "$script" "$factor" "$picture" "$scratch" "$@" || status=$?
    rm -rf "$scratch"
    if ((status == 0)) && [[ ! -s $picture ]]; then
        complain "$script has left no $picture"
        status=1
    fi
    return "$status"
}

# given FOLDER SCRIPT...: their full names, counted from the folder.
given() {
    (cd "$1" && shift && realpath -e -- "$@")
}
