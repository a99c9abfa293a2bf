#!/usr/bin/env bash
# What the compiler does not refuse: includes against the direction of the folders, and braces in a co_await expression.
# Prints each line that is wrong; exit code 1 when there is one.
set -euo pipefail
cd "$(dirname "$0")/.."
bad=0

# Every folder is on the include path, so only this keeps the arrows of ARCHITECTURE.md. The rank of a folder must be
# above that of what it includes; folders of one rank do not know each other.
grep -rnE --include='*.h' --include='*.cpp' '^ *# *include' src simulators | awk -F: '
BEGIN {
    split("platform 0 look 0 app/log 1 support 2 app/language 3 store 4 device/protocol 5 device 6 recorders/data 7 " \
          "app/shell 7 recorders 8 users 8 events 8 intelligent 8 decoders 8 screens 8 emap 8 tooling 8 system 8 " \
          "app 9", words, " ")
    for (i = 1; i in words; i += 2)
        rank[words[i]] = words[i + 1]
}
function room(path,    parts) {
    split(path, parts, "/")
    return (parts[1] "/" parts[2]) in rank ? parts[1] "/" parts[2] : parts[1]
}
function allowed(file, from, header,    to, windows) {
    to = room(header)
    windows = file ~ /\/ui\// || from == "app/shell"
    if (from == to)
        return windows || from == "look" || header !~ /\/ui\//
    if (header == "look/tables/StatusRoles.h") # numbers by which models speak to the tables
        return 1
    if (to == "look")
        return windows
    if (header ~ /\/ui\//)
        return windows && rank[to] < rank[from]
    return to in rank && from in rank && rank[to] < rank[from]
}
{
    header = $3
    quoted = header ~ /"/
    gsub(/.*include *["<]|[">].*/, "", header)
    if ($1 ~ /^simulators\//)
        wrong = quoted && header !~ /^simulators\//
    else if ($1 ~ /device\/protocol\// && header ~ /Socket|QNetwork|QTcp|QUdp|QHostInfo|HttpClient|curl|socket\.h/)
        wrong = 1
    else
        wrong = quoted && header ~ /\// && !allowed($1, room(substr($1, 5)), header)
    if (wrong)
        print $1 ":" $2 ": must not include " header
    bad += wrong
}
END { exit bad > 0 }' || bad=1

# GCC 12 destroys a braced temporary inside a co_await expression twice: name the value first.
git ls-files -- '*.cpp' '*.h' | xargs perl -0777 -ne '
    while (/co_await(?:[^;{]*|[^;\n]*)[A-Za-z0-9_>]\{/g) {
        my $line = 1 + substr($_, 0, $-[0]) =~ tr/\n//;
        print "$ARGV:$line: a brace inside a co_await expression\n";
        $bad = 1;
    }
    END { exit $bad }' || bad=1
exit $bad
