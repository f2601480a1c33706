#!/bin/sh
# Run by tools/check-packages.sh in a root that has nothing but Debian's base and /packages: installs
# the packages, uses them as people do, and builds and runs the client.
set -eu
export DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=/tmp
said=/tmp/said

say() { printf '== %s\n' "$*"; }
install() { apt-get install -y -qq --no-install-recommends "$@" >$said 2>&1 || fail "install $*"; }
fail() {
    cat $said
    echo "failed: $*"
    exit 1
}
# expect STATUS COMMAND...
expect() {
    wanted=$1 status=0
    shift
    "$@" >$said 2>&1 || status=$?
    [ "$status" -eq "$wanted" ] || fail "$* ended with $status, not $wanted"
}

say "Installing the programs"
install /packages/rules-workbench_*.deb /packages/intelligentrules-plugin_*.deb \
    /packages/libkqhost1_*.deb
for page in rules-workbench rulesctl; do
    [ -s /usr/share/man/man1/$page.1.gz ] || fail "$page has no manual page"
done
! dpkg -s libqt5test5 >$said 2>&1 || fail "Qt's test library came with them"

say "Running them on the examples"
for example in /usr/share/rules-workbench/examples/*/; do
    documents="--template $example/template.json --config"
    # shellcheck disable=SC2086
    expect 0 rules-workbench $documents "$example/config.json" --replay "$example/session.jsonl" \
        --result /tmp/result.json
    for command in check lint; do
        # shellcheck disable=SC2086
        expect 0 rulesctl $command $documents "$example/config.json" "$example/saved.json"
    done
    expect 0 rulesctl diff --template "$example/template.json" "$example/saved.json" /tmp/result.json
done
expect 1 rulesctl diff --template "$example/template.json" "$example/config.json" "$example/saved.json"
expect 2 rulesctl check --template "$example/template.json" --config /nowhere.json

say "Building the client from what is installed, and running it"
install /packages/intelligentrules-dev_*.deb cmake g++ make pkg-config
cd /tmp
expect 0 cmake -S /usr/share/doc/intelligentrules-dev/examples/client -B client
expect 0 cmake --build client
perimeter=/usr/share/rules-workbench/examples/perimeter
client/rules-client $perimeter/template.json $perimeter/config.json --save >/tmp/client.json 2>$said ||
    fail "the client"
expect 0 rulesctl diff --template $perimeter/template.json $perimeter/config.json /tmp/client.json
client/rules-client $perimeter/template.json /tmp/client.json --save >/tmp/again.json 2>$said ||
    fail "the client, with a result"
expect 0 rulesctl diff --template $perimeter/template.json $perimeter/config.json /tmp/again.json
# Whatever the headers include is installed, and pkg-config knows it.
find /usr/include/intelligentrules -name '*.h' -printf '#include "%P"\n' >all.cpp
echo 'int main() { return UICommonMdl::moduleFolder().isEmpty(); }' >>all.cpp
# shellcheck disable=SC2046
expect 0 g++ -std=c++17 -fPIC all.cpp -o all $(pkg-config --cflags --libs intelligentrules)
expect 0 ./all

say "Removing them"
expect 0 apt-get purge -y -qq libkqhost1
left=$(find / -xdev \( -path /packages -o -path /tmp -o -path /var/lib/dpkg -o -path /var/cache \) -prune \
    -o \( -name '*kqhost*' -o -name '*intelligentrules*' -o -name '*rules-workbench*' \) -print)
[ -z "$left" ] || fail "these stayed: $left"
