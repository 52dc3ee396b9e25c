# shellcheck shell=bash
# Finds the LLVM tools our static checks are written for. Sourced after say.sh.

# What another version formats or finds differently is no mistake of ours, so the checks are bound to this one.
llvmVersion=14

# Prints the tool's name; without the right version the stage ends with 77, "could not be run".
findLlvmTool() {
    local name
    for name in "$1-$llvmVersion" "$1"; do
        if [[ $("$name" --version 2>/dev/null) == *"version $llvmVersion."* ]]; then
            printf '%s\n' "$name"
            return
        fi
    done
    note "$1 $llvmVersion is not here." >&2
    return 77
}
