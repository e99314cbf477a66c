#!/bin/bash
# house_rules.sh SOURCE: the house rules that a search of the text can hold.
set -u
cd "$1" || exit 1
broken=0

# rule SENTENCE FOUND: fails when something was found.
rule() {
    [ -z "$2" ] && return
    echo "$1:"
    echo "$2"
    broken=1
}

mapfile -t texts < <(find . \( -path ./build -o -path ./out -o -path ./.git \) -prune -o -type f -print | grep -vE '\.png$')
[ "${#texts[@]}" -gt 30 ] || { echo "no project here"; exit 1; }

rule "Only src/kernels/simd*.h name instruction sets" \
    "$(grep -rnE '_mm[0-9]*_|\b__m(64|128|256|512)|mmintrin|x86intrin|__builtin_ia32|\b__(SSE|SSSE|AVX|FMA|BMI)[0-9A-Z_]*__' src |
       grep -vE '^src/kernels/simd[a-z_]*\.h:')"
rule "Nothing relaxes floating point" \
    "$(grep -nE -e '-f(fast-math|unsafe-math|associative-math|reciprocal-math|finite-math)|-Ofast|-ffp-contract=(on|fast)' \
            -e 'pragma.*(fast_math|FP_CONTRACT)|optimize *\(' $(find src zmvcore cmake CMakeLists.txt CMakePresets.json -type f))"
rule "src/ allocates nothing, throws nothing, prints nothing" \
    "$(grep -rnE '\b(malloc|calloc|realloc|aligned_alloc|throw|printf|std::(vector|string|function|cout|cerr))\b' src)"
rule "Areas do not include one another, nor kernels and core an area: what two share goes to src/kernels" "$(
    grep -rnE '#include "[a-z]+/' src/*/ | grep -vE '^src/([a-z]+)/[^:]*:[0-9]+:#include "(\1|core|kernels)/')"
rule "Only src/kernels/rounding.h sets the control word" \
    "$(grep -rnE 'RoundingControl [a-z]+[({]|mxcsr' src | grep -v '^src/kernels/rounding.h:')"
rule "No mutable static data in src/" \
    "$(grep -rnE '\b(static|thread_local) ' src | grep -vE 'static (constexpr|const|inline|ZMV_INLINE|void|_*assert|auto|[A-Za-z_0-9:<>, ]+[&*]? [a-zA-Z_]+\()|static_assert')"
# Whoever reads this has this folder and a Debian system, no more.
rule "Nothing names a path outside of the project and the system" \
    "$(grep -nE "(^|[\"' (=:])/[a-z]+/[a-z.]" "${texts[@]}" |
       grep -vE "[\"' (=:]/(usr|tmp|lib64|sys|proc|dev|bin|etc|opt|var|where|path)/|^[^:]*:[0-9]+: *//")"
rule "Nothing refers to a numbered part of a document that is not here" \
    "$(grep -niE '\b(part|issue|chapter|section) #?[0-9]+(\.[0-9]+)?\b' "${texts[@]}")"
# A link of a document leads to a file that is here.
rule "Links lead somewhere" "$(
    for page in $(find . -name '*.md' -not -path './build/*'); do
        grep -oE '\]\([^)# ]+' "$page" | sed 's/^](//' | grep -vE '^[a-z]+:' | while read -r link; do
            [ -e "$(dirname "$page")/$link" ] || echo "$page: $link"
        done
    done)"
exit $broken
