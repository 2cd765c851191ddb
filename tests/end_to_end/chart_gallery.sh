#!/usr/bin/env bash
# The gallery draws every chart, and its texts are texts in the PDFs, also the turned ones.
set -euo pipefail

out=$(mktemp -d)
trap 'rm -r "$out"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

"$1" "$out"
types="line area scatter total_column percent_column clustered_column total_bar percent_bar clustered_bar pie"
for chart in $types axis_stacked axis_dates data_labels free_labels; do
    for resolution in 72 300; do
        [[ -s "$out/${chart}_$resolution.png" ]] || fail "no picture of $chart at $resolution dots per inch"
    done
done
for resolution in 72 300; do
    pdftotext "$out/gallery_$resolution.pdf" "$out/text"
    for text in "Clustered bar" "Meter Reading" "Day again" "2026-11-05" "75.00%" "Thu" "a note on the plot" "highest"; do
        grep -qF "$text" "$out/text" || fail "no \"$text\" in the PDF at $resolution dots per inch"
    done
    pictures=$(pdfimages -list "$out/gallery_$resolution.pdf" | tail -n +3 | wc -l)
    ((pictures == 0)) || fail "$pictures bitmaps in the PDF at $resolution dots per inch"
done

# A text is as high at 300 dots per inch as at 72.
height_of_title() {
    pdftotext -bbox "$out/gallery_$1.pdf" "$out/boxes"
    sed -n 's/.*yMin="\([0-9.]*\)" xMax="[0-9.]*" yMax="\([0-9.]*\)">Scatter<.*/\1 \2/p' "$out/boxes" |
        awk '{ printf "%.0f", $2 - $1 }'
}
[[ -n $(height_of_title 72) && $(height_of_title 72) == $(height_of_title 300) ]] ||
    fail "the title is $(height_of_title 72) points high at 72 dots per inch, $(height_of_title 300) at 300"
! "$1" "$out/text/no_folder" 2>/dev/null || fail "a folder that cannot be is no error"
echo "the gallery was drawn"
