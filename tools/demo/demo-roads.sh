# shellcheck shell=bash
# What the operator does in the editors: a tour of every page and dialog, and the main job in each. Sourced by demo.sh.

# All that the jobs must change in the machine file.
expected_changes='configurations.[Production 生产].modes.[Standard 6 pass].passCount: 6 -> 12
configurations.[Production 生产].modes.[Standard 6 pass].smallDotCompensation.0: 0.25 -> 2.5
factorySchemes.[1440X1440_Copy]: added (configIndex 4, speed 2, direction 3, lampLL 1)
factorySchemes.[720X1200_Copy]: added (configIndex 2, speed 2, direction 3, lampLL 1)
factorySchemes.[Banner standard].inkCut.0: 95 -> 92
factorySchemes.[Banner standard].speed: 1 -> 2
factorySchemes.[Foam board]: removed
factorySchemes.[P-45]: added (configIndex 1, speed -1, direction -1, lampLL 1)
userSchemes.[Light box 2]: added (configIndex 1, speed 0, direction 3, lampLL 1)
userSchemes.[My banner]: removed
userSchemes.[户外灯箱]: added (configIndex 1, speed 0, direction 3, lampLL 1)'

# tour TAG: takes a picture of everything and changes nothing in the machine file.
tour() {
    tour_print_modes "$1"
    tour_factory_schemes "$1"
    tour_user_schemes "$1"
    shoot "host-$1"
}

# job: does one piece of work in each editor and saves it.
job() {
    edit_print_mode
    edit_factory_schemes
    edit_user_schemes
    shoot host-saved
}

tour_print_modes() {
    open_editor IDC_PRINT_MODES
    select_row IDC_LIST_MODE 1
    shoot "printmodes-common-$1"
    press_key ctrl+Next
    until_true "the data page" is_gone ComboBox IDC_CMB_PASS
    shoot "printmodes-data-$1"
    press_key ctrl+Prior
    until_true "the common page" is_there ComboBox IDC_CMB_PASS
    click Button IDC_BTN_ADD_CFG
    shoot_dialog Edit IDC_EDIT_CFG_YDPI "printmodes-configuration-$1"
    close_editor IDCANCEL
}

# Row 6 of the pass counts is 12.
edit_print_mode() {
    say "Setting 12 passes and a small dot compensation of 2.5 in the second mode of the second configuration"
    open_editor IDC_PRINT_MODES
    select_row IDC_LIST_MODE 1
    choose IDC_CMB_PASS 6
    until_true "12 passes" text_is ComboBox IDC_CMB_PASS 12
    type_into IDC_EDIT_SMALL 2.5
    shoot printmodes-edited
    close_editor IDOK
}

tour_factory_schemes() {
    open_editor IDC_FACTORY_SCHEMES
    select_row IDC_LIST_SCHEME 1
    shoot_scheme_pages factory "$1" common mode eclosion ink-multiple ink-cut lamps small-format
    open_menu IDC_LIST_SCHEME 1
    shoot "factory-menu-$1"
    press_key Down
    press_key Return
    shoot_dialog ListBox IDC_LIST_CFG "factory-copy-$1"
    close_editor IDCANCEL
}

tour_user_schemes() {
    open_editor IDC_USER_SCHEMES
    select_row IDC_LIST_SCHEME 0
    shoot_scheme_pages preset "$1" common eclosion ink-multiple ink-cut lamps small-format
    select_row IDC_LIST_SCHEME "$(own_user_row)"
    shoot_scheme_pages user "$1" common eclosion ink-multiple ink-cut lamps small-format
    click Button IDC_BTN_ADD_SCHEME
    shoot_dialog ComboBox IDC_CMB_SOURCE "user-add-scheme-$1"
    shoot_custom_eclosion "$1"
    close_editor IDCANCEL
}

# The user's own schemes are listed below a divider. The colour set-up of the first one does not fit this machine.
first_own_row() { awk -F '\t' '$1 == "row" && $6 ~ /^-+$/ { print $3 + 1 }' "$windows"; }
own_user_row() { echo $(($(first_own_row) + 1)); }

scheme_rows() { awk -F '\t' -v id="$(id_of IDC_LIST_SCHEME)" '$1 == "row" && $2 == id' "$windows" | wc -l; }
list_row_gone() { ! list_row "$1" "$2"; }

# shoot_custom_eclosion TAG: the custom type, row 9 on this machine, opens the dialog.
shoot_custom_eclosion() {
    press_key ctrl+Tab
    open_drop_down IDC_CMB_ELC_TYPE
    click_row ComboLBox "$drop_down_id" 9
    shoot_dialog msctls_trackbar32 IDC_SLIDER_ECLO_RANGE "user-custom-eclosion-$1"
}

edit_factory_schemes() {
    say "Changing speed and ink cut of a factory scheme, adding one, deleting one, copying one to two configurations"
    open_editor IDC_FACTORY_SCHEMES
    select_row IDC_LIST_SCHEME 1
    choose IDC_CMB_SPEED 3
    go_to_page ink-cut
    press_key Tab
    press_key Left
    press_key Left
    press_key Left
    until_true "92 per cent" text_is Edit IDC_EDIT_INK_CUT_FIRST 92
    shoot factory-edited
    click Button IDC_BTN_ADD_SCHEME
    until_true "the new scheme" list_row_selected IDC_LIST_SCHEME 9
    select_row IDC_LIST_SCHEME 8
    click Button IDC_BTN_DEL_SCHEME
    until_true "the scheme to go" list_row_gone IDC_LIST_SCHEME 9
    copy_to_configurations 1 2 4
    close_editor IDOK
}

# copy_to_configurations ROW CONFIGURATION...
copy_to_configurations() {
    local configuration
    open_menu IDC_LIST_SCHEME "$1"
    press_key Down
    press_key Return
    until_true "the copy dialog" dialog_open ListBox IDC_LIST_CFG
    for configuration in "${@:2}"; do
        select_row IDC_LIST_CFG "$configuration"
    done
    click Button IDOK
    until_true "the copy dialog to close" editor_open
}

edit_user_schemes() {
    local last
    say "Adding a user scheme from a preset and one from it, changing direction and a lamp, deleting an older one"
    open_editor IDC_USER_SCHEMES
    select_row IDC_LIST_SCHEME 0
    add_user_scheme 户外灯箱
    choose IDC_CMB_DIRECTION 3
    go_to_page lamps
    click Button IDC_CHECK_LPRINT_LLIGHT
    shoot user-edited
    # A source is copied as the host has it. Selecting another scheme stores what was changed.
    last=$(($(scheme_rows) - 1))
    select_row IDC_LIST_SCHEME 0
    select_row IDC_LIST_SCHEME "$last"
    add_user_scheme "Light box 2"
    last=$(($(scheme_rows) - 1))
    select_row IDC_LIST_SCHEME "$(first_own_row)"
    click Button IDC_BTN_DEL_SCHEME
    until_true "the scheme to go" list_row_gone IDC_LIST_SCHEME "$last"
    close_editor IDOK
}

# add_user_scheme NAME: from the selected scheme.
add_user_scheme() {
    local rows
    rows=$(scheme_rows)
    click Button IDC_BTN_ADD_SCHEME
    until_true "the dialog for a new scheme" dialog_open ComboBox IDC_CMB_SOURCE
    type_into IDC_EDIT_NAME "$1"
    click Button IDOK
    until_true "the new scheme" list_row_selected IDC_LIST_SCHEME "$rows"
}

# Each page of the scheme editors has a label that no other has.
declare -A page_label=(
    [common]=IDC_STATIC_SPEED [mode]=IDC_STATIC_PRINT_MODE [eclosion]=IDC_STATIC_DOT_MODE
    [ink-multiple]=IDC_CMB_INK_MUL_FIRST [ink-cut]=IDC_STATIC_PERCENT_FIRST [lamps]=IDC_STATIC_LPRINT
    [small-format]=IDC_STATIC_SMALL_MODE
)
page_shown() { is_visible Static "${page_label[$1]}" || is_visible ComboBox "${page_label[$1]}"; }

# shoot_scheme_pages EDITOR TAG PAGE...: steps through the pages by keys, back to the first one.
shoot_scheme_pages() {
    local editor=$1 tag=$2 page
    shift 2
    for page; do
        until_true "the $page page" page_shown "$page"
        shoot "$editor-$page-$tag"
        press_key ctrl+Tab
    done
    until_true "the $1 page" page_shown "$1"
}

# go_to_page PAGE: steps through the pages by keys.
go_to_page() {
    local steps=0
    until look && page_shown "$1"; do
        [ $((steps += 1)) -le 7 ] || give_up "the $1 page"
        press_key ctrl+Tab
    done
}

# shoot_dialog CLASS NAME PICTURE: waits for a dialog over the editor that has such a control, and cancels it.
shoot_dialog() {
    until_true "the dialog with $2" dialog_open "$1" "$2"
    shoot "$3"
    click Button IDCANCEL
    until_true "the dialog with $2 to close" editor_open
}

dialog_open() { is_there "$1" "$2" && ! editor_open; }
# All editors have these controls, and no dialog over them does.
editor_open() { is_there Button IDC_BTN_ADD_MODE && is_there ListBox IDC_LIST_CFG; }
editor_closed() { ! editor_open; }

# open_editor BUTTON: with the second configuration selected.
open_editor() {
    click Button "$1"
    until_true "the editor of $1" editor_open
    select_row IDC_LIST_CFG 1
}

# close_editor BUTTON
close_editor() {
    click Button "$1"
    until_true "the editor to close" editor_closed
}
