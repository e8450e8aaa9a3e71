#!/usr/bin/env bash
# Whether an executable for Linux is hardened as it is to be shipped: check-hardening.sh EXECUTABLE
set -euo pipefail
executable=$1
headers=$(readelf --wide --file-header --program-headers "$executable")
dynamic=$(readelf --wide --dynamic "$executable")
symbols=$(readelf --wide --dyn-syms "$executable")
failures=0

# expect WHAT TEXT PATTERN: the text has a line of that pattern.
expect() {
    if ! grep -qE "$3" <<<"$2"; then
        echo "$executable: $1"
        failures=$((failures + 1))
    fi
}
refuse() {
    if grep -qE "$3" <<<"$2"; then
        echo "$executable: $1"
        failures=$((failures + 1))
    fi
}

expect "is loaded at the same address every time" "$headers" '^ *Type: +DYN '
expect "is no program of its own" "$dynamic" 'FLAGS_1.* PIE'
expect "leaves its tables of addresses writable" "$headers" '^ *GNU_RELRO '
expect "leaves its tables of functions writable" "$dynamic" 'FLAGS_1.* NOW'
expect "has a stack that can be run" "$headers" '^ *GNU_STACK .* RW +0x'
refuse "has memory that can be both written and run" "$headers" '^ *LOAD .* RWE '
refuse "writes into its own code when it is loaded" "$dynamic" 'TEXTREL'
refuse "looks for libraries in folders of its own choice" "$dynamic" 'R(UN)?PATH'
expect "does not guard its stack" "$symbols" ' __stack_chk_fail'
expect "does not guard its buffers" "$symbols" ' __[a-z]+_chk'
[[ $failures -eq 0 ]]
