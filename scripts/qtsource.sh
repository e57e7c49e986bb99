# shellcheck shell=bash
# Builds Qt from Debian's own source package, once for each set of options. Sourced by the scripts that define the
# options.
#
# The result lies outside the checkout, in ${QUORVEX_CACHE:-${XDG_CACHE_HOME:-~/.cache}/quorvex}/<name>-<key>, so that
# the next clone finds it. It is linked as .cache/<name>, where the presets look. The environment variables
# QUORVEX_QT_WINDOWS and QUORVEX_QT_TSAN can name the folder of a finished build instead. Each result contains a file
# with its Qt version, compiler and options; a result with other contents of that file is refused.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# fetch_source PACKAGE[=VERSION]: unpacks into $work/source. Uses the source archives of this computer's package
# archives, in a separate list and separate folders, so that /etc/apt stays unchanged and no root rights are needed.
fetch_source() {
    # The names in parentheses are apt's, not the shell's.
    # shellcheck disable=SC2016
    local line='deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)'
    local filters=('Created-By: Packages' 'Origin: Debian')
    # Without this setting apt would fetch as the user _apt, who may not write into this folder.
    local apt=(apt-get -q
        -o "Dir::Etc::SourceList=$work/apt/sources.list" -o Dir::Etc::SourceParts=-
        -o "Dir::State::Lists=$work/apt/lists" -o "Dir::Cache=$work/apt/cache"
        -o "APT::Sandbox::User=$(id -un)")
    if [[ ! -d $work/apt ]]; then
        mkdir -p "$work"/apt/{lists/partial,cache/archives/partial} "$work/source"
        apt-get indextargets --format "$line" "${filters[@]}" | sort -u >"$work/apt/sources.list"
        if [[ ! -s $work/apt/sources.list ]]; then
            as_root apt-get update
            apt-get indextargets --format "$line" "${filters[@]}" | sort -u >"$work/apt/sources.list"
        fi
        [[ -s $work/apt/sources.list ]] || fail "apt knows no Debian archive to fetch sources from"
        "${apt[@]}" update
    fi
    (cd "$work/source" && "${apt[@]}" source "$1")
}

# build_qt OPTION of cmake...: fetches, builds and stages Qt for $prefix below $work/stage.
build_qt() {
    fetch_source "qt6-base=$qt_version"
    cmake -S "$(echo "$work"/source/qt6-base-*/)" -B "$work/build" -G Ninja -Wno-dev \
        -DCMAKE_INSTALL_PREFIX="$prefix" "$@"
    cmake --build "$work/build" --parallel "$(jobs_count)"
    DESTDIR=$work/stage cmake --install "$work/build"
}

# Options of all Qt builds of the project.
# shellcheck disable=SC2034  # used by the scripts that source this file
qt_common_options=(
    -DQT_BUILD_EXAMPLES=OFF
    -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_BENCHMARKS=OFF
    -DFEATURE_network=OFF
    -DFEATURE_dbus=OFF
    -DFEATURE_xml=OFF
    -DFEATURE_sql_mysql=OFF
    -DFEATURE_sql_psql=OFF
    -DFEATURE_sql_odbc=OFF
    -DFEATURE_sql_oci=OFF
    -DFEATURE_sql_db2=OFF
    -DFEATURE_sql_ibase=OFF
)

# The file at the top of a Qt build with its description.
qt_description_name=quorvex-qt.txt

# describe_qt KEY_TEXT...: prints one line for each property that the result depends on.
describe_qt() {
    printf '%s\n' "Qt $qt_version" "$@"
}

# check_qt FOLDER: fails unless the folder holds the build that would be made here.
check_qt() {
    local found=$1/$qt_description_name
    [[ -f $found ]] || fail "$1 is no finished build of Qt: it has no $qt_description_name"
    diff --unified=0 --label "$found" "$found" --label "wanted here" - <<<"$qt_description" >&2 ||
        fail "$1 is another build of Qt than this checkout needs"
}

# provide_qt NAME WHAT MINUTES FUNCTION KEY_TEXT...: runs the function unless its result exists. The function works in
# $work, builds for the final folder $prefix, and stages into $work/stage$prefix. The texts state all inputs of the
# result except Qt's version.
provide_qt() {
    local name=$1 what=$2 minutes=$3 function=$4 home=~ cache log status given began=$SECONDS
    shift 4
    cache=${QUORVEX_CACHE:-${XDG_CACHE_HOME:-$home/.cache}/quorvex}
    qt_version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
    qt_description=$(describe_qt "$@")
    given=${name^^}
    given=QUORVEX_${given//-/_}
    mkdir -p "$root/.cache"
    if [[ -n ${!given:-} ]]; then
        check_qt "${!given}"
        ln -sfn "$(cd "${!given}" && pwd -P)" "$root/.cache/$name"
        printf '%s: taken from %s\n' "$what" "${!given}"
        return
    fi
    prefix=$cache/$name-$qt_version-$(sha256sum <<<"$qt_description" | head -c 12)

    mkdir -p "$cache"
    exec 9>"$cache/$name.lock"
    if [[ ! -d $prefix ]] && ! flock --nonblock 9; then
        printf 'Waiting for another build of %s\n' "$what"
        flock 9
    fi
    if [[ -d $prefix ]]; then
        check_qt "$prefix"
        printf '%s: built before\n' "$what"
    else
        # Only the holder of the lock builds, so these folders were left by a killed build.
        rm -rf "$cache/$name"-build.*
        work=$(mktemp -d "$cache/$name-build.XXXXXX")
        trap 'rm -rf "$work"' EXIT
        log=$cache/$name-build.log
        printf 'Building %s (Qt %s), about %s minutes; log: %s\n' "$what" "$qt_version" "$minutes" "$log"
        # In a subshell, since "set -e" has no effect within a condition.
        set +e
        (
            set -e
            "$function"
        ) >"$log" 2>&1
        status=$?
        set -e
        if ((status != 0)); then
            tail -n 40 "$log" >&2
            fail "step '$what' failed (exit $status)"
        fi
        printf '%s\n' "$qt_description" >"$work/stage$prefix/$qt_description_name"
        mv "$work/stage$prefix" "$prefix"
        cp "$work/build/.ninja_log" "$cache/$name-build.ninja_log"
        printf '%s: built in %d s\n' "$what" $((SECONDS - began))
    fi
    ln -sfn "$prefix" "$root/.cache/$name"
}
