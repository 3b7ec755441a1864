# shellcheck shell=bash
# The fuzzers of fuzz/: building, running, telling what they found. Sourced by script/test.

fuzz_targets=(agentdecoder colortexts companion connectionmessage settings versions)
fuzz_jobs=2

# fuzz_one TARGET SECONDS: runs one fuzzer, starting from its seeds; false when it found something.
# An input that breaks it is kept in build/fuzz/found.
fuzz_one() {
    local target=$1 seconds=$2 result=0
    local log=$scratch/$target.log found=$root/build/fuzz/found corpus=$scratch/corpus-$target
    # A window keeps so much that looking for leaks after each input would be all there is time for;
    # script/test asan looks for them.
    local leaks=1
    if [ "$target" = settings ]; then
        leaks=0
    fi
    mkdir -p "$found" "$corpus" "$scratch/tmp-$target"
    # TMPDIR, because the fuzzers never end in a way that lets them tidy up.
    TMPDIR=$scratch/tmp-$target nice -n 19 "${apart[@]}" "$root/build/fuzz/fuzz/fuzz_$target" \
        -max_total_time="$seconds" -detect_leaks="$leaks" -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 \
        -artifact_prefix="$found/$target-" "$corpus" "$root/fuzz/corpus/$target" \
        >"$log" 2>&1 || result=$?
    local runs
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    if [ "$result" -eq 0 ] && [ "${runs:-0}" -gt 0 ]; then
        printf '%-18s %9s inputs in %s s, %s of them new to its seeds, nothing broken\n' "$target" \
            "$runs" "$seconds" "$(find "$corpus" -type f | wc -l)"
        return
    fi
    {
        printf '\n== %s found something\n' "$target"
        grep -vE '^(#[0-9]+|stat::|INFO:|NEW_FUNC)' "$log" | tail -n 60
        printf '== The input: %s\n' "$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)"
    } >&2
    return 1
}

# fuzz SECONDS: builds all targets and runs each for that long.
fuzz() {
    local seconds=$1 target result=0
    [[ $seconds =~ ^[1-9][0-9]*$ ]] || fail "not a number of seconds: $seconds"
    ensure_packages "${build_packages[@]}" clang libclang-rt-14-dev llvm iproute2 \
        fonts-dejavu-core
    build fuzz
    make_scratch
    throw_away_home
    export QT_QPA_PLATFORM=offscreen QT_ACCESSIBILITY=0
    export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:quarantine_size_mb=32
    export LSAN_OPTIONS=suppressions=$root/tests/lsan.supp:print_suppressions=0
    export UBSAN_OPTIONS=print_stacktrace=1
    set_apart # the window listens on one port
    step "Fuzzing: ${#fuzz_targets[@]} targets, $seconds s each, $fuzz_jobs at once"
    lock building
    local running=()
    for target in "${fuzz_targets[@]}"; do
        if [ "${#running[@]}" -ge "$fuzz_jobs" ]; then
            wait "${running[0]}" || result=1
            running=("${running[@]:1}")
        fi
        fuzz_one "$target" "$seconds" &
        running+=($!)
    done
    for pid in "${running[@]}"; do
        wait "$pid" || result=1
    done
    unlock
    return "$result"
}
