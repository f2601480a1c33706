#!/usr/bin/env bash
# check-hardening.sh BUILD_FOLDER: reads off the built plug-in and program, and off the commands
# that built them, that they are hardened. Prints what is missing; 1 when something is.
set -euo pipefail
build=$1
plugin=$build/bin/IntelligentRulesUI.so
program=$build/bin/rules-workbench
commands=$build/compile_commands.json
missing=0

miss() {
    echo "missing: $*"
    missing=1
}
# has FILE PATTERN OPTION...: whether readelf with these options prints a line like that.
has() {
    local file=$1 pattern=$2
    shift 2
    # Read to the end: a reader that leaves early is a failure under pipefail.
    readelf -W "$@" "$file" | grep -E "$pattern" >/dev/null
}

for file in "$plugin" "$build"/bin/*kq*.so "$program"; do
    name=$(basename "$file")
    has "$file" 'GNU_RELRO' -l || miss "$name: read-only relocations"
    has "$file" 'BIND_NOW' -d || miss "$name: binding at the start"
    has "$file" 'GNU_STACK.* RW ' -l || miss "$name: a stack that cannot be executed"
    # An empty part is the current folder.
    paths=$(readelf -W -d "$file" | sed -n 's/.*(RU*N*PATH).*\[\(.*\)\]/\1/p')
    [[ :$paths: =~ ^:+$|^(:'$ORIGIN'[^:]*)+:$ ]] ||
        miss "$name: run paths beside itself; it has $paths"
    has "$file" 'TEXTREL' -d && miss "$name: code that needs no changes when loaded"
    has "$file" 'UND __stack_chk_fail' --dyn-syms || miss "$name: stack protector"
done
has "$program" 'FLAGS_1.* PIE' -d || miss "rules-workbench: position independence"

# Only the two entry functions of a Qt plug-in may leave it.
exports=$(readelf -W --dyn-syms "$plugin" |
    awk '/ (GLOBAL|WEAK) / && !/ UND / { sub(/@.*/, "", $NF); print $NF }' | sort)
[[ $exports =~ ^qt_plugin_instance$'\n'qt_plugin_query_metadata(_v2)?$ ]] ||
    miss "IntelligentRulesUI.so: hidden symbols; it exports $(echo $exports)"

# What leaves no mark in the files: each source of the module, the host and the workbench.
sources=$(grep -E '"command": .* -c [^ ]*/(plugin|scene|tabel|Protocol|draw|host|workbench)/' "$commands")
[ "$(wc -l <<<"$sources")" -gt 100 ] || miss "the commands of the sources"
for option in -fstack-protector-strong -fstack-clash-protection -D_FORTIFY_SOURCE=2 -O[23] \
    -fvisibility=hidden -fvisibility-inlines-hidden; do
    without=$(grep -Evc -e " $option( |\$)" <<<"$sources" || true)
    [ "$without" -eq 0 ] || miss "$option in $without commands"
done
[ $missing -eq 0 ] && echo "Hardened: $(basename "$plugin"), $(basename "$program")"
exit $missing
