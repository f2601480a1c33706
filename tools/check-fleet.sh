#!/usr/bin/env bash
# Runs what docs/fleet.md shows of GNU parallel, over two ssh servers of its own on the loopback
# address, and compares the answers with those of one rulesctl. $1 is the program's folder.
set -euo pipefail
bin=$(readlink -f "${1:-build/release/bin}")
cd "$(dirname "$(readlink -f "$0")")/.."
template=$PWD/examples/perimeter/template.json
work=$(mktemp -d)
servers=()
finish() {
    for server in "${servers[@]}"; do kill "$server" 2>/dev/null || true; done
    rm -rf "$work"
}
trap finish EXIT

# Servers with keys of their own: the user's configuration is neither read nor changed.
ssh-keygen -q -t ed25519 -N '' -f "$work/host"
ssh-keygen -q -t ed25519 -N '' -f "$work/user"
cp "$work/user.pub" "$work/authorized"
chmod 600 "$work/authorized"
[ "$(id -u)" -ne 0 ] || mkdir -p /run/sshd
for port in 22221 22222; do
    printf '%s\n' "Port $port" "ListenAddress 127.0.0.1" "HostKey $work/host" "StrictModes no" \
        "AuthorizedKeysFile $work/authorized" "PidFile none" "UsePAM no" \
        "PasswordAuthentication no" "MaxStartups 100" > "$work/sshd-$port"
    "$(command -v sshd || echo /usr/sbin/sshd)" -D -e -f "$work/sshd-$port" 2>"$work/log-$port" &
    servers+=($!)
done
ssh="ssh -F none -i $work/user -o StrictHostKeyChecking=no -o LogLevel=ERROR \
 -o UserKnownHostsFile=$work/known -o IdentitiesOnly=yes"
for port in 22221 22222; do
    for _ in $(seq 50); do
        $ssh -p $port 127.0.0.1 true 2>/dev/null && break
        sleep 0.2
    done
    $ssh -p $port 127.0.0.1 true || { cat "$work/log-$port" >&2; exit 1; }
done
hosts="$ssh -p 22221 127.0.0.1,$ssh -p 22222 127.0.0.1"

mkdir "$work/cameras"
for number in $(seq -w 400); do
    config=$(tr -d '\n' < examples/perimeter/config.json)
    printf '%s\n' "$config" > "$work/cameras/$number.json"
    printf '{"id": "camera %s", "config": %s}\n' "$number" "$config"
done > "$work/lines"
echo 'no object' >> "$work/lines"

"$bin/rulesctl" check --template "$template" --jsonl < "$work/lines" > "$work/expected"
parallel --will-cite --pipe -k --block 100k --sshlogin "$hosts" \
    "$bin/rulesctl" check --template "$template" --jsonl < "$work/lines" > "$work/answers"
# A part of the input counts its own lines.
diff <(head -n 400 "$work/expected") <(head -n 400 "$work/answers")
[ "$(wc -l < "$work/answers")" -eq 401 ]
tail -n 1 "$work/answers" | grep -q '^{"id":null,"line":[0-9]*,"status":"unreadable"'

"$bin/rulesctl" check --template "$template" --config "$work/cameras" \
    > "$work/expected" 2>/dev/null
find "$work/cameras" -name '*.json' | sort |
    parallel --will-cite -k -n 100 --sshlogin "$hosts" \
        "$bin/rulesctl" check --template "$template" --config {} > "$work/answers" 2>/dev/null
cmp "$work/expected" "$work/answers"
for port in 22221 22222; do
    # Each was asked twice whether it is there.
    [ "$(grep -c 'Accepted publickey' "$work/log-$port")" -gt 2 ] ||
        { echo "No job went to $port" >&2; exit 1; }
done
echo "Two machines answered as one does."
