#pragma once

// The keys of the texts that every part of the application family shares, and the captions that
// pictures are drawn with. Nothing includes this file; lupdate reads it, since the code hands most
// keys on in variables. A new key goes here, then run the target "update-texts".

#include <QtGlobal>

namespace TextKeys {

// Column headers are buttons too: keep them short.
constexpr const char *Columns[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "name"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "size"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "type"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "date_modified"),
    //: The folder that a file lay in; header of a column and title of a row
    QT_TRANSLATE_NOOP("QuarvoTRS", "path"),
    //: The type of a folder, where a file has its extension
    QT_TRANSLATE_NOOP("QuarvoTRS", "folder"),
};

// Titles and values in the pane beside the list.
constexpr const char *Facts[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "file_status"),
    //: A status: the file is still on the card
    QT_TRANSLATE_NOOP("QuarvoTRS", "filter_bar_widget_existing_files"),
    //: A status: the file was deleted
    QT_TRANSLATE_NOOP("QuarvoTRS", "filter_bar_widget_delete_files"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "resolution"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "iso_speed"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "camera_brand"),
    //: Of a camera
    QT_TRANSLATE_NOOP("QuarvoTRS", "model"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "white_balance"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "exposure_time"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "focal_length"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "software"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "frame_rate"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "bit_rate"),
    //: Of a lens
    QT_TRANSLATE_NOOP("QuarvoTRS", "f_number"),
};

constexpr const char *Actions[] = {
    //: Tooltip of the mark that leads to the file's folder
    QT_TRANSLATE_NOOP("QuarvoTRS", "view_in_path"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "select_all"),
    //: A button and a menu entry
    QT_TRANSLATE_NOOP("QuarvoTRS", "preview"),
    //: A menu entry
    QT_TRANSLATE_NOOP("QuarvoTRS", "recover"),
    //: Closes an explanation
    QT_TRANSLATE_NOOP("QuarvoTRS", "got_it"),
};

constexpr const char *Recoverability[] = {
    //: Stands before a level in a tooltip
    QT_TRANSLATE_NOOP("QuarvoTRS", "recoverability_label"),
    //: Title of a row
    QT_TRANSLATE_NOOP("QuarvoTRS", "recoverability_label_list"),
    //: A level, in a small label on a card
    QT_TRANSLATE_NOOP("QuarvoTRS", "recoverability_high"),
    //: A level, in a small label on a card
    QT_TRANSLATE_NOOP("QuarvoTRS", "recoverability_medium"),
    //: The level is not known yet, in a small label on a card
    QT_TRANSLATE_NOOP("QuarvoTRS", "recoverability_assessing"),
};

constexpr const char *Places[] = {
    //: The place of files that were found by their contents and have lost their names
    QT_TRANSLATE_NOOP("QuarvoTRS", "reconstructed_files_label"),
    //: All files, arranged by date
    QT_TRANSLATE_NOOP("QuarvoTRS", "time_nav_root_all_time"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "time_nav_root_unknown_time"),
};

constexpr const char *Pages[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "scanning"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "scandataview_scanning_hint"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "file_not_found"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "scandataview_file_not_found_hint"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_loading_title"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_loading_desc"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "filter_empty_title"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "filter_empty_desc"),
};

// A search found nothing. The tips of the first page carry their numbers, those of the second get
// theirs from the program.
constexpr const char *SearchHints[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "scandataview_search_no_result"),
    //: Keep the number and the link; the link's words are those of reconstructed_files_label
    QT_TRANSLATE_NOOP("QuarvoTRS", "missing_original_filenames"),
    //: Keep the number
    QT_TRANSLATE_NOOP("QuarvoTRS", "scandataview_search_hint_wait_scan"),
    //: Keep the number
    QT_TRANSLATE_NOOP("QuarvoTRS", "scandataview_search_hint_use_filter"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_search_empty_title"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_search_empty_desc"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_search_empty_tip1"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_search_empty_tip2"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_search_empty_tip3"),
};

// The dialog that explains where files without names are.
constexpr const char *HowToFind[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "how_to_find_in_reconstructed"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "reconstructed_tip_intro"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "click_reconstructed"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "search_dialog_text2"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "search_dialog_text3"),
};

// Captions in the drawn window of that dialog. A caption may be about twice as wide as the English
// one, "Search by name" half as wide again. The window also shows reconstructed_files_label,
// select_all, preview and recover, and the categories Photo, Video, Audio and Document.
constexpr const char *HowToFindPicture[] = {
    QT_TRANSLATE_NOOP("HowToFindPicture", "SD card"),
    QT_TRANSLATE_NOOP("HowToFindPicture", "All files"),
    QT_TRANSLATE_NOOP("HowToFindPicture", "Deleted files"),
    QT_TRANSLATE_NOOP("HowToFindPicture", "Search by name"),
};

// What a photo shows; small labels in a row.
constexpr const char *Scenes[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_title"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_landscape"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_beach"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_cityscape"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_hotel"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_aerial"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_children"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_pet"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_birthday"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_dinner"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_performance"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_exhibition"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_sports"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_graduation"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_wedding_dress"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_bouquet"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_food"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_meeting_room"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_presentation"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_whiteboard"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_product"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_selfie"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_group_photo"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_id_photo"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_paper_document"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_identity_document"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "ai_tags_chat_screenshot"),
};

constexpr const char *Units[] = {
    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_Bytes"), QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_KB"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_MB"),    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_GB"),
    QT_TRANSLATE_NOOP("QuarvoTRS", "SizeUnit_TB"),
};

} // namespace TextKeys
