# shellcheck shell=bash
# Qt built from Debian's own source package, once for each set of options: sourced by the scripts that say which.
#
# The result lies outside the checkout, in ${QUORVEX_CACHE:-${XDG_CACHE_HOME:-~/.cache}/quorvex}/<name>-<key>, so that
# the next clone finds it, and is linked into it as .cache/<name>, where the presets look.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# fetch_source PACKAGE[=VERSION]: unpacks into $work/source. The archives that this computer installs from, as source
# archives, in a list and folders of our own: nothing in /etc/apt is changed, and no root is needed.
fetch_source() {
    # The names in round brackets are apt's, not the shell's.
    # shellcheck disable=SC2016
    local line='deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)'
    local filters=('Created-By: Packages' 'Origin: Debian')
    # Sandbox: apt would fetch as the user _apt, who may not write into our folder.
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

# Options that every build of ours shares.
# shellcheck disable=SC2034  # used by the scripts that source this file
qt_common_options=(
    -DQT_BUILD_EXAMPLES=OFF
    -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_BENCHMARKS=OFF
    -DFEATURE_network=OFF
    -DFEATURE_dbus=OFF
    -DFEATURE_sql_mysql=OFF
    -DFEATURE_sql_psql=OFF
    -DFEATURE_sql_odbc=OFF
    -DFEATURE_sql_oci=OFF
    -DFEATURE_sql_db2=OFF
    -DFEATURE_sql_ibase=OFF
)

# provide_qt NAME WHAT MINUTES FUNCTION KEY_TEXT...: runs the function unless the cache has its result. It finds the
# folder to work in as $work and the final folder as $prefix, and stages into $work/stage$prefix. What the result
# depends on beside Qt's version stands in the texts.
provide_qt() {
    local name=$1 what=$2 minutes=$3 function=$4 home=~ cache log status
    shift 4
    cache=${QUORVEX_CACHE:-${XDG_CACHE_HOME:-$home/.cache}/quorvex}
    qt_version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
    prefix=$cache/$name-$qt_version-$(printf '%s\n' "$@" | sha256sum | head -c 12)

    mkdir -p "$cache"
    exec 9>"$cache/$name.lock"
    if [[ ! -d $prefix ]] && ! flock --nonblock 9; then
        printf 'Waiting for another build of %s\n' "$what"
        flock 9
    fi
    if [[ ! -d $prefix ]]; then
        # Only the holder of the lock builds, so these are what a killed build left.
        rm -rf "$cache/$name"-build.*
        work=$(mktemp -d "$cache/$name-build.XXXXXX")
        trap 'rm -rf "$work"' EXIT
        log=$cache/$name-build.log
        printf 'Building %s (Qt %s), about %s minutes; log: %s\n' "$what" "$qt_version" "$minutes" "$log"
        # In a subshell of its own, since "set -e" does not hold within a condition.
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
        mv "$work/stage$prefix" "$prefix"
    fi
    mkdir -p "$root/.cache"
    ln -sfn "$prefix" "$root/.cache/$name"
}
