#!/bin/bash
# plot.sh BENCH BUILD OUT: times a choice of functions with the program BENCH and draws OUT/speed.svg and, for narrow
# screens, OUT/speed-narrow.svg: the time of each in BUILD over that of memcpy for as many bytes.  Half a minute.
set -euo pipefail
bench=$1 build=$2 out=$3

members="Copy_8u_C1R Copy_8u_C3P3R CopyReplicateBorder_8u_C1R Convert_8u32f_C1R Mirror_8u_C1R Transpose_8u_C1R SwapChannels_8u_C3R
    Add_8u_C1RSfs Mul_8u_C1RSfs Add_32f_C1R Sqrt_32f_C1R And_8u_C1R Threshold_8u_C1R ThresholdAdaptiveBox_8u_C1R AlphaComp_8u_AC4R
    Sum_8u_C1R MinMax_8u_C1R NormDiff_L2_8u_C1R CountInRange_8u_C1R Histogram_8u_C1R LUT_8u_C1R
    FilterBoxBorder_8u_C1R FilterBoxBorder_32f_C1R FilterMinBorder_8u_C1R FilterMedianBorder_8u_C1R FilterBorder_8u_C1R
    FilterSobelVertBorder_8u16s_C1R ResizeNearest_8u_C1R ResizeLinear_8u_C1R ResizeCubic_8u_C1R Remap_8u_C1R WarpAffineLinear_8u_C1R"
wanted=$(tr -s ' \n' '|' <<<"$members")
said=$("$bench" --size=1920x1080 --benchmark_filter="^zmvi(${wanted%|})/($build|memcpy)$" --benchmark_min_time=0.03 \
         --benchmark_out="$out/speed.json" --benchmark_out_format=json 2>&1) || { echo "$said" >&2; exit 1; }

# Name and ratio, the fastest first.
awk -F'"' '
    $2 == "run_name" { split($4, part, "/") }
    $2 == "aggregate_name" { aggregate = $4 }
    $2 == "real_time" && aggregate == "median" { sub(/^: */, "", $3); time[part[1], part[2]] = $3 + 0; names[part[1]] }
    END { for (name in names) if ((name, "'"$build"'") in time)
              printf "%s %.3f\n", substr(name, 5), time[name, "'"$build"'"] / time[name, "memcpy"] }
' "$out/speed.json" | sort -k2g >"$out/speed.tsv"
[[ $(wc -l <"$out/speed.tsv") -eq $(wc -w <<<"$members") ]] || { echo "plot.sh: not every function was timed" >&2; exit 1; }

# draw FILE WIDTH ROW SHIFT SETTINGS NAMES LABELS: bars of a table whose rows are that high; what differs where screens are
# narrow: there names stand above the bars, not left of them.
rows=$(wc -l <"$out/speed.tsv")
draw() {
    gnuplot <<END
set terminal svg size $2,$((rows * $3 + 70)) dynamic noenhanced font "DejaVu Sans,14" background rgb "#fbfbf9"
set output "$1"
set rmargin 3
set logscale x
set xrange [0.2:200]
set yrange [$rows - 0.4:-0.8]
set xtics nomirror (0.5, 1, 2, 5, 10, 20, 50, 100)
set border 1
$5
set xlabel "time over memcpy's ($build, 1920 x 1080)"
set arrow from 1, graph 0 to 1, graph 1 nohead lw 2 lc rgb "#c0392b" front
plot "$out/speed.tsv" using (0.2):0:(0.2):2:(\$0 - 0.4 + $4):(\$0 + 0.4)$6 with boxxyerror fill solid lc rgb "#a9c4de" notitle, \
     "" using 2:(\$0 + $4 / 2):(sprintf("%.2f", \$2)) with labels left offset 0.5 notitle$7
END
    sed -i 's|</desc>|&<style>@media (prefers-color-scheme: dark) { rect { fill: #1b1b1d } text { fill: #f2f2f4 } path[stroke=black] { stroke: #f2f2f4 } }</style>|' "$1"
}
draw "$out/speed.svg" 900 24 0 'set lmargin 34; set ytics scale 0' ':ytic(1)' ''
draw "$out/speed-narrow.svg" 328 44 0.45 'set lmargin 1; unset ytics' '' ', "" using (0.2):($0 - 0.2):1 with labels left notitle'
