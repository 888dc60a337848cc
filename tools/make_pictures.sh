#!/usr/bin/env bash
# Draws the pictures of the documentation with the program itself: one of each dial, and the lettering.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
mkdir -p docs/images
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT

# The dial, the sheet (width x height, and the origin from its corner, metres), what is set.
pictures='
M_Light        1.2x1.25  .62,.4   txt_Definition=0.2 ck_Sustilare=1 ck_Orizzonte=1
M_Inclinati    1.4x1.4   .7,.4    txt_Definition=0.2 ck_Triangolo=1 OptZenital=1 txtReclinZ=20
M_Proiettivo   1.4x1.4   .7,.4    OptZenital=1 txtReclinZ=20 ck_Triangolo=1
M_nProiettivo  1.4x1.4   .7,.4    OptZenital=1 txtReclinZ=20 ck_Triangolo=1
M_Frinter      1.4x1.4   .7,.4    ck_Triangolo=1
mnuVertSph     1.2x1.3   .6,.25   ckArabi=1 ck_Lemniscate=1 ck_Triangolo=1 ck_Sustilare=1
mnuUni         1.2x1.3   .6,.25   ckArabi=1 ck_Lemniscate=1 ck_Triangolo=1 ck_Italiche=1 ckAlt=1
mnuDia         2.2x2.2   1.1,1.1  ckRomani=1
M_Param        1.4x1.3   .7,.25   txt_Definition=1 ck_Triangolo=1
M_CILINDRICI   1.4x1.3   .7,.25   txt_Definition=1 ck_Triangolo=1
M_Parabolico   1.4x1.3   .7,.25   txt_Definition=1
mnuCircp       1.4x1.3   .7,.25   txt_Definition=1 ck_Triangolo=1
mnuCCs         1.2x1.2   .6,.25   ckArabi=1 ck_Lemniscate=1 ck_Sustilare=1 ck_Triangolo=1
mnuChapeau     1.0x.75   .5,.05   ck_Orizzonte=1 ck_Lemniscate=1
mnuFontana_H3  2.4x2.2   1.2,.5   x1txt=-1.2 x2txt=1.2 y1txt=.4 y2txt=-1.6 ckArabi=1
mnuBifvert     1.2x1.3   .6,.25   ck_Orizzonte=1
mnucatenaria   1.2x1.3   .6,.25   ck_Lemniscate=1
mnuBall        1.2x1.2   .6,.25   ckArabi=1 ck_Lemniscate=1
mnuBall_v      1.2x1.3   .6,.3    ckArabi=1 ck_Lemniscate=1
mnuCorncil     3.4x2     1.7,.6   Ck_DayLightCurves=1 ckArabi=1
mnuCorncon     2x2       1,.6     Ck_DayLightCurves=1 ckArabi=1
mnuCorn_flat   1.2x1.3   .6,.3    Ck_DayLightCurves=1 ckArabi=1
mnuCorn_flat2  1.2x1.3   .6,.3    Ck_DayLightCurves=1 ckArabi=1
mnuConoAntico  3.4x2.4   1.3,1    ck_Orizzonte=1
'
while read -r dial size shift assignments; do
  [ -n "$dial" ] || continue
  # shellcheck disable=SC2086 # the assignments are words of their own
  ./dialwright run "$dial" $assignments --folder "$settings" --quiet --size "$size" --shift "$shift" \
    -o "docs/images/$dial.png"
done <<<"$pictures"
./dialwright lettering --folder "$settings" --size .8x.2 --shift .02,.02 -o docs/lettering.svg

# The guide's wall.
wall=(txtDecl=-14.57 TxtStilo=.1 x1txt=-.3 x2txt=.3 y1txt=.05 y2txt=-.4 ckArabi=1)
paper=(--true --folder "$settings" --quiet --size .7x.6 --shift .35,.1)
./dialwright run 7 "${wall[@]}" ckFrame=1 ck_Triangolo=1 ck_Lemniscate=1 "${paper[@]}" -o docs/images/guide.png
./dialwright shadow 7 "${wall[@]}" "${paper[@]}" --date 2026-03-21 --time 10:00 -o docs/images/guide-shadow.png

# The pages of the dials.
python3 -B tools/make_dial_pages.py build/release/bin/dialwright
