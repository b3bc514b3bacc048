# shellcheck shell=bash
# A scripted operator: real mouse and keyboard input through the X server to programs of a Wine virtual desktop.
# Controls are given as CLASS NAME, where NAME stands in a resource.h. A control must be in reach (visible and enabled),
# so a dialog that a modal one disabled is never touched. Source it; do not run it. Set build_bin and shots before.

windows=$build/windows.tsv
patience=60

# look: makes a new list of all windows.
look() { (cd "$build_bin" && wine WindowProbe.exe | tr -d '\r') >"$windows"; }

# until_true WHAT COMMAND...: looks again until the command is true; gives up after $patience seconds.
until_true() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until look && "$@"; do
        [ "$SECONDS" -lt "$end" ] || give_up "$what"
    done
}

give_up() {
    import -window root "$shots/gave-up.png" || true
    die "waited $patience s for: $1 (see $shots/gave-up.png and $windows)"
}

# id_of NAME
id_of() {
    case $1 in
    IDOK) echo 1 ;;
    IDCANCEL) echo 2 ;;
    *) awk -v name="$1" '$1 == "#define" && $2 == name { print $3; exit }' \
        "$project/resources/resource.h" "$project/refhost/program/resource.h" ;;
    esac
}

# place_of CLASS NAME: "LEFT TOP RIGHT BOTTOM" of the first such control in reach; false if there is none.
place_of() {
    awk -F '\t' -v class="$1" -v id="$(id_of "$2")" '
        $1 == "window" && $2 == id && $3 == class && $4 ~ /^ve/ { print $5; found = 1; exit }
        END { exit !found }
    ' "$windows"
}

# state_of CLASS NAME and text_of CLASS NAME
state_of() { field_of 4 "$@"; }
text_of() { field_of 6 "$@"; }
field_of() {
    awk -F '\t' -v field="$1" -v class="$2" -v id="$(id_of "$3")" '
        $1 == "window" && $2 == id && $3 == class && $4 ~ /^ve/ { print $field; exit }
    ' "$windows"
}

# row_of CLASS NAME INDEX: "STATE<tab>PLACE" of a row of the first such list in reach.
row_of() {
    awk -F '\t' -v class="$1" -v id="$2" -v row="$3" '
        $1 == "window" { inside = $2 == id && $3 == class && $4 ~ /^ve/ }
        $1 == "row" && inside && $3 == row { print $4 "\t" $5; found = 1; exit }
        END { exit !found }
    ' "$windows"
}

list_row() { row_of ListBox "$(id_of "$1")" "$2" >/dev/null; }
list_row_selected() { row_of ListBox "$(id_of "$1")" "$2" | grep -q '^ves'; }
text_is() { [ "$(text_of "$1" "$2")" = "$3" ]; }
is_there() { place_of "$@" >/dev/null; }
is_gone() { ! is_there "$@"; }
# is_visible CLASS NAME: also true for a disabled control.
is_visible() {
    awk -F '\t' -v class="$1" -v id="$(id_of "$2")" '
        $1 == "window" && $2 == id && $3 == class && $4 ~ /^v/ { found = 1; exit }
        END { exit !found }
    ' "$windows"
}
# The drop-down list of every combo box has this id.
drop_down_id=1000
drop_down_row() { row_of ComboLBox "$drop_down_id" "$1" >/dev/null; }

# click_at LEFT TOP RIGHT BOTTOM [BUTTON]
click_at() { xdotool mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2)) click "${5:-1}"; }

# click CLASS NAME
click() {
    until_true "control $2" is_there "$1" "$2"
    # shellcheck disable=SC2046
    click_at $(place_of "$1" "$2")
}

# click_row CLASS ID INDEX [BUTTON]: clicks a row that the last look found.
click_row() {
    local row
    row=$(row_of "$1" "$2" "$3")
    # shellcheck disable=SC2086
    click_at ${row#*$'\t'} "${4:-1}"
}

# select_row LIST-NAME INDEX
select_row() {
    until_true "row $2 of $1" list_row "$1" "$2"
    click_row ListBox "$(id_of "$1")" "$2"
    until_true "row $2 of $1 to be selected" list_row_selected "$1" "$2"
}

# open_menu LIST-NAME INDEX: opens the context menu of a row.
open_menu() {
    until_true "row $2 of $1" list_row "$1" "$2"
    click_row ListBox "$(id_of "$1")" "$2" 3
    until_true "a menu" menu_open
}
menu_open() { grep -q '^window[^#]*#32768' "$windows"; }

# open_drop_down COMBO-NAME
open_drop_down() {
    click ComboBox "$1"
    until_true "the drop-down list of $1" drop_down_row 0
}

# choose COMBO-NAME INDEX: picks a row of the drop-down list.
choose() {
    open_drop_down "$1"
    until_true "row $2 of the drop-down list of $1" drop_down_row "$2"
    click_row ComboLBox "$drop_down_id" "$2"
    until_true "the drop-down list of $1 to close" drop_down_closed
}
drop_down_closed() { ! drop_down_row 0; }

# type_into EDIT-NAME TEXT: replaces the text. xdotool puts a character that the keyboard lacks on a spare key for a
# moment. A busy program may notice that too late and miss the character, so each new attempt types more slowly.
type_into() {
    local delay
    click Edit "$1"
    for delay in 20 200; do
        enter_text "$2" "$delay"
        ! soon text_is Edit "$1" "$2" || return 0
    done
    enter_text "$2" 1000
    until_true "$2 in $1" text_is Edit "$1" "$2"
}

# enter_text TEXT DELAY: with a delay in milliseconds between keys.
enter_text() {
    xdotool key --delay 20 ctrl+Home ctrl+shift+End
    xdotool type --delay "$2" "$1"
}

# soon COMMAND...: false if the command does not become true within 20 looks.
soon() {
    local looks
    for ((looks = 0; looks < 20; ++looks)); do
        ! { look && "$@"; } || return 0
    done
    return 1
}

press_key() { xdotool key --delay 20 "$1"; }

# shoot NAME: takes a picture of the front dialog, as soon as two pictures in a row are equal.
shoot() {
    local picture=$shots/$1.png previous='' current=none end=$((SECONDS + patience)) place
    look
    place=$(front_place)
    until [ "$current" = "$previous" ] || [ "$SECONDS" -ge "$end" ]; do
        previous=$current
        import -window root -crop "$place" +repage "$picture"
        current=$(convert "$picture" RGB:- | cksum)
    done
    say "Screenshot: ${picture#"$project/"}"
}

# front_place: WIDTHxHEIGHT+X+Y of the window in front.
front_place() {
    awk -F '\t' '$1 == "window" && $4 == "ves" && $3 != "Button" && !place { split($5, at, " "); place = 1
        printf "%dx%d+%d+%d\n", at[3] - at[1], at[4] - at[2], at[1], at[2] }' "$windows"
}
