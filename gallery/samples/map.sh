# The map of the README, drawn layer upon layer. "./dev demo" reads this file; it brings run_windows, windows_path, $bin,
# $samples and $root.

map_layer() { printf '%s' "$(windows_path "$samples/east-china/$1.wkt")"; }

run_windows "$bin/gallery.exe" --out "$(windows_path "$root/out/map.png")" --size 760x1060 \
    --draw "$(map_layer graticule)" --type 2 --color '#B9C2CC' \
    --draw "$(map_layer coast)" --type 0 --width 2 --color '#24507A' \
    --draw "$(map_layer rivers)" --type 0 --width 3 --color '#3C8DC8' \
    --draw "$(map_layer canal)" --type 1 --width 2 --color '#2E9E8E' \
    --draw "$(map_layer other-railways)" --type 4 --width 2 --color '#7A4A2C' \
    --draw "$(map_layer railway)" --type 101 --width 7
