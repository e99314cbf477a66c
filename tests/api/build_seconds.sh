#!/bin/bash
# build_seconds.sh BUILD [--budget]: what compiling took when BUILD was built, in seconds by module, the longest first;
# with --budget it fails where a build of the library or a module takes too long.
# The seconds are those of ninja's log, so build with nothing else running and without a compiler cache.  How fast the
# machine was is seen from yardstick.cpp, compiled three times among the rest: the budget is for a machine that takes
# 2.7 s for it, and grows with the yardstick.  Exit status 77: nothing to judge.
set -eu
cd "$1"
awk -v judge="${2-}" '
    NR > 1 { took[$4] = ($2 - $1) / 1000 }  # the last time counts
    END {
        for (file in took) {
            seconds = took[file]
            if (file ~ /yardstick/) stick[++sticks] = seconds
            else if (match(file, /zmvip_[sv][34]\.dir\/src\/.*\.cpp\.o$/)) {
                build = substr(file, RSTART + 6, 2)
                module = substr(file, RSTART + 17, RLENGTH - 23)
                builds[build] += seconds; all[module] += seconds; cell[module, build] = seconds
            } else if (file ~ /\.o$/) all[file] += seconds
        }
        printf "%8s %8s %8s %8s\n", "all", "s3", "v3", "v4"
        order = "sort -rn"
        for (module in all)
            printf "%8.1f %8.1f %8.1f %8.1f  %s\n", all[module], cell[module, "s3"], cell[module, "v3"], cell[module, "v4"],
                   module | order
        close(order)
        printf "%8s %8.1f %8.1f %8.1f  the library\n", "", builds["s3"], builds["v3"], builds["v4"]
        if (sticks != 3) { print "no yardstick was built"; exit 77 }
        middle = stick[1] + stick[2] + stick[3]
        least = most = stick[1]
        for (i in stick) { if (stick[i] < least) least = stick[i]; if (stick[i] > most) most = stick[i] }
        middle -= least + most
        scale = middle / 2.7
        printf "yardstick: %.1f s; budget: %.0f s a build, %.0f s a module\n", middle, 200 * scale, 15 * scale
        for (build in builds) compiled += builds[build]
        if (scale < 0.2 || compiled < 10 * scale) { print "this came from a compiler cache"; exit 77 }
        if (!judge) exit
        for (build in builds) if (builds[build] > 200 * scale) { print "over the budget: " build; over = 1 }
        for (key in cell) if (cell[key] > 15 * scale) { split(key, part, SUBSEP)
            printf "over the budget: %s in %s, %.1f s\n", part[1], part[2], cell[key]; over = 1 }
        exit over
    }' .ninja_log
