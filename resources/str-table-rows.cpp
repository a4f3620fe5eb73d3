// The message catalogue of the client family: one line a row, the key and the English source text.
// The position is the row number, which the programs of the family share: append rows, never move one.
// lupdate reads the texts from here (context "global"); the catalogs beside this file hold the translations.
// A `//:` comment is for translators and goes into every catalog. It begins with the kind of control that the text is
// on, one of those that have a width in scripts/check-catalogs, or several with "/" between, then says where the text
// stands, what its placeholders become, and what could be mistaken. Where several rows have one text, the first has the
// comment for all of them. A row without one is a message that speaks for itself.

#include "resources/str-table-rows.h"

#include <QtGlobal>

namespace StrTable {

// clang-format off
const Row kRows[kRowCount] = {
    // 0
    //: Event: what happened to the file named beside it, in the history too (participle; the file was deleted).
    {"tray_delete", QT_TRANSLATE_NOOP("global", "Deleted")},
    //: Menu item/Button: ends the link between this computer and the hub (verb).
    {"action_unlink", QT_TRANSLATE_NOOP("global", "Unlink")},
    //: Check box/Menu item in the connection settings; Ferrylink is the name of a relay service.
    {"connection_use_ferrylink", QT_TRANSLATE_NOOP("global", "Connect through Ferrylink")},
    //: Button beside a warning about the folder that was chosen.
    {"btn_choseother", QT_TRANSLATE_NOOP("global", "Choose another folder")},
    //: Button in a question: puts the files of two folders together.
    {"btn_merge", QT_TRANSLATE_NOOP("global", "Merge")},
    //: Heading/Status: title of a message box, and the state of a task that failed.
    {"err_common", QT_TRANSLATE_NOOP("global", "Error")},
    //: Message: %1 is the new file name.
    {"err_conflict", QT_TRANSLATE_NOOP("global", "File conflicts occurred. The file is now renamed as %1.")},
    {"err_inval", QT_TRANSLATE_NOOP("global", "The value is invalid. Please check it and try again.")},
    {"err_network", QT_TRANSLATE_NOOP("global", "The network is not available. Please check your connection and try again.")},
    //: Button on the last page of a wizard and of the installer (verb).
    {"finish", QT_TRANSLATE_NOOP("global", "Finish")},
    // 10
    //: Label/Column head: above the path of the folder on this computer, and of a list of such folders.
    {"title_chart_local", QT_TRANSLATE_NOOP("global", "Local folder")},
    //: Menu item in the tray menu: links this computer to the hub again.
    {"tray_relink", QT_TRANSLATE_NOOP("global", "Link again")},
    //: Menu item in the tray menu: opens the box with the version and the copyright.
    {"tray_about", QT_TRANSLATE_NOOP("global", "About")},
    //: Status, shown while the wizard signs in.
    {"msg_checkpass", QT_TRANSLATE_NOOP("global", "Checking your username and password...")},
    //: Status, shown when the test of the connection is done.
    {"msg_connectsucc", QT_TRANSLATE_NOOP("global", "Connected successfully")},
    {"msg_mergefolder", QT_TRANSLATE_NOOP("global", "The files in the two folders will be merged. Do you want to continue?")},
    //: Status, shown while the client starts.
    {"msg_startup", QT_TRANSLATE_NOOP("global", "Starting up...")},
    {"msg_summary", QT_TRANSLATE_NOOP("global", "Please review the following settings before you finish.")},
    //: Status, shown while the wizard tests the connection.
    {"msg_test_connect", QT_TRANSLATE_NOOP("global", "Testing the connection...")},
    {"msg_test_username_fail", QT_TRANSLATE_NOOP("global", "The username or password is incorrect.")},
    // 20
    //: Button beside the path of the sync folder.
    {"title_changefolder", QT_TRANSLATE_NOOP("global", "Change folder")},
    //: Heading of a warning about the folder that was chosen.
    {"title_folder_nonempty", QT_TRANSLATE_NOOP("global", "The folder is not empty")},
    //: Label beside a field with the path of a folder.
    {"title_folderpath", QT_TRANSLATE_NOOP("global", "Folder path")},
    //: Label beside the field for the identifier of a hub in the Ferrylink service.
    {"title_id", QT_TRANSLATE_NOOP("global", "Ferrylink ID")},
    //: Column head of a table of properties; stands beside "Value".
    {"title_name", QT_TRANSLATE_NOOP("global", "Name")},
    //: Column head of a table of properties; stands beside "Name".
    {"title_value", QT_TRANSLATE_NOOP("global", "Value")},
    //: Heading of the first page of a wizard, alone.
    {"title_welcome", QT_TRANSLATE_NOOP("global", "Welcome")},
    //: Menu item in the tray menu: ends the client.
    {"tray_exit", QT_TRANSLATE_NOOP("global", "Quit")},
    //: Menu item in the tray menu: opens the list of these files.
    {"tray_updatedfile", QT_TRANSLATE_NOOP("global", "Recently updated files")},
    //: Event: what happened to the file named beside it, in the history too (participle; the file was downloaded).
    {"tray_download", QT_TRANSLATE_NOOP("global", "Downloaded")},
    // 30
    //: Button: opens the help.
    {"btn_help", QT_TRANSLATE_NOOP("global", "Help")},
    //: Button: closes a box and takes what was entered, in the installer too.
    {"btn_ok", QT_TRANSLATE_NOOP("global", "OK")},
    //: Button: closes a box and drops what was entered, in the installer too (verb).
    {"btn_cancel", QT_TRANSLATE_NOOP("global", "Cancel")},
    //: Button: goes to the next page of a wizard and of the installer.
    {"btn_next", QT_TRANSLATE_NOOP("global", "Next")},
    //: Button: goes to the page before in a wizard and in the installer.
    {"btn_back", QT_TRANSLATE_NOOP("global", "Back")},
    //: Button on the first page of the set-up: begins with it.
    {"welcome_go", QT_TRANSLATE_NOOP("global", "Get started")},
    //: Label in the about box, beside the version number.
    {"version", QT_TRANSLATE_NOOP("global", "Version")},
    {"use_ferry_link", QT_TRANSLATE_NOOP("global", "Connect through Ferrylink")},
    //: Status, shown while the client looks through the folders.
    {"msg_catchevent", QT_TRANSLATE_NOOP("global", "Looking for changes...")},
    //: Status in the tray.
    {"err_disconn", QT_TRANSLATE_NOOP("global", "The connection to the hub was lost. Reconnecting...")},
    // 40
    //: Event: what happened to the file named beside it, in the history too (participle; the file was uploaded).
    {"tray_upload", QT_TRANSLATE_NOOP("global", "Uploaded")},
    //: Choice: last entry of a list of filters or periods: the user sets one (verb).
    {"filter_customize", QT_TRANSLATE_NOOP("global", "Customize")},
    //: Label/Column head: beside a time of day, and when something happened to a file.
    {"time_time", QT_TRANSLATE_NOOP("global", "Time")},
    //: Choice: how the hub is reached: in the same network.
    {"conn_mode_lan", QT_TRANSLATE_NOOP("global", "Local network")},
    //: Choice: how the hub is reached: straight, without a relay.
    {"conn_mode_direct", QT_TRANSLATE_NOOP("global", "Direct connection")},
    //: Status, short, in the tray: the hub refused username or password.
    {"err_auth_short", QT_TRANSLATE_NOOP("global", "Sign-in failed")},
    //: Choice: how the hub is reached: over the Internet.
    {"conn_mode_wan", QT_TRANSLATE_NOOP("global", "Internet")},
    //: Status: stands in place of the connection type while it is being found out.
    {"conn_mode_reading", QT_TRANSLATE_NOOP("global", "Detecting the connection type...")},
    //: Choice: how the hub is reached: through the relay server of Ferrylink.
    {"conn_mode_ez", QT_TRANSLATE_NOOP("global", "Ferrylink relay")},
    {"err_autoconn_sys", QT_TRANSLATE_NOOP("global", "The Ferrylink service is not responding. Please try again later.")},
    // 50
    //: Event in a notification; %1 is a number, always more than one.
    {"files_update", QT_TRANSLATE_NOOP("global", "%1 files updated")},
    {"msg_folder_readonly", QT_TRANSLATE_NOOP("global", "You only have read access to this folder. Changes that you make on this computer will not be uploaded.")},
    //: Message of a task, and of a notification.
    {"msg_quotafull", QT_TRANSLATE_NOOP("global", "Your storage quota on the hub is used up. Please free up some space and try again.")},
    //: Label beside "Local network", "Direct connection", "Internet" or "Ferrylink relay".
    {"title_conn_mode", QT_TRANSLATE_NOOP("global", "Connection type")},
    //: Heading of a warning: nothing can be changed in the folder.
    {"title_folder_readonly", QT_TRANSLATE_NOOP("global", "Read-only folder")},
    //: Menu item/Button/Tab: opens the settings.
    {"tray_setinfo", QT_TRANSLATE_NOOP("global", "Settings")},
    //: Button in the settings of a shared folder.
    {"manage_share_change_folder", QT_TRANSLATE_NOOP("global", "Change the local folder")},
    //: Heading/Tab: the folders that the hub shares (noun; folders).
    {"manage_share_title", QT_TRANSLATE_NOOP("global", "Shared folders")},
    //: Message of the connection settings, and of a task.
    {"msg_ssl_error", QT_TRANSLATE_NOOP("global", "The SSL certificate of the hub could not be verified.")},
    //: Label beside the field for the port number of the proxy server.
    {"manage_proxy_server_port", QT_TRANSLATE_NOOP("global", "Port")},
    // 60
    //: Heading of a message box that informs.
    {"msg_info", QT_TRANSLATE_NOOP("global", "Information")},
    //: Tab of the settings: the proxy server.
    {"manage_proxy_tab_name", QT_TRANSLATE_NOOP("global", "Proxy")},
    //: Choice, first of three: none, the system's, manual.
    {"manage_proxy_chk_no_proxy", QT_TRANSLATE_NOOP("global", "Do not use a proxy server")},
    //: Choice, second of three: none, the system's, manual.
    {"manage_proxy_chk_sys_proxy", QT_TRANSLATE_NOOP("global", "Use the proxy settings of the system")},
    //: Label beside a field.
    {"manage_proxy_label_password", QT_TRANSLATE_NOOP("global", "Password")},
    //: Heading of the box in which a folder is chosen.
    {"msg_seldir", QT_TRANSLATE_NOOP("global", "Select a folder")},
    {"err_autoconn_ctrl", QT_TRANSLATE_NOOP("global", "The connection to the Ferrylink control server failed. Please try again later.")},
    {"manage_setting_not_save", QT_TRANSLATE_NOOP("global", "Your changes have not been saved. Do you want to leave this page?")},
    //: Status, short, in the tray: the user's space on the hub is used up.
    {"err_full_short", QT_TRANSLATE_NOOP("global", "Storage full")},
    //: Heading of the proxy page of the settings.
    {"manage_proxy_title", QT_TRANSLATE_NOOP("global", "Proxy settings")},
    // 70
    {"err_share_fail_enable", QT_TRANSLATE_NOOP("global", "Synchronization could not be enabled for the shared folder.")},
    {"err_share_folder_conflict", QT_TRANSLATE_NOOP("global", "This folder overlaps with a folder that is already synced. Please choose another one.")},
    //: Message: %1 is a number.
    {"err_share_limit", QT_TRANSLATE_NOOP("global", "No more than %1 shared folders can be synced.")},
    //: Status, shown while the settings are being stored.
    {"manage_setting_applying", QT_TRANSLATE_NOOP("global", "Applying the settings...")},
    {"err_invalid_port_number", QT_TRANSLATE_NOOP("global", "Please enter a port number from 1 to 65535.")},
    {"management_proxy_cancel_btn", QT_TRANSLATE_NOOP("global", "Cancel")},
    {"err_proxy_ipport_empty", QT_TRANSLATE_NOOP("global", "Please enter the address and the port of the proxy server.")},
    //: Choice, third of three: none, the system's, manual.
    {"manage_proxy_chk_manual", QT_TRANSLATE_NOOP("global", "Set up the proxy server manually")},
    {"manage_setting_no_change", QT_TRANSLATE_NOOP("global", "There are no changes to apply.")},
    //: Check box for a shared folder: it is synced.
    {"manage_share_enable", QT_TRANSLATE_NOOP("global", "Enable synchronization")},
    // 80
    //: Column head of the list of shared folders.
    {"manage_share_name", QT_TRANSLATE_NOOP("global", "Shared folder name")},
    //: Column head: whether a folder or file is synced.
    {"manage_share_status", QT_TRANSLATE_NOOP("global", "Status")},
    {"manage_share_tab_name", QT_TRANSLATE_NOOP("global", "Shared folders")},
    //: Button: takes over the changes (verb).
    {"management_proxy_apply_btn", QT_TRANSLATE_NOOP("global", "Apply")},
    //: Button: opens the network page of the system.
    {"network_management_page_btn", QT_TRANSLATE_NOOP("global", "Network settings")},
    //: Menu item/Button: opens the page on which tasks or other things are managed (verb).
    {"tray_management_page", QT_TRANSLATE_NOOP("global", "Manage")},
    //: Check box of the proxy page: the fields for username and password follow.
    {"manage_proxy_chk_account", QT_TRANSLATE_NOOP("global", "The proxy server requires sign-in")},
    //: Status, short, in the tray and of a task: an unexpected error.
    {"notify_abnormal_short", QT_TRANSLATE_NOOP("global", "Something went wrong")},
    //: Status, short, in the tray: the client or a file is being brought up to date.
    {"tray_updating", QT_TRANSLATE_NOOP("global", "Updating...")},
    //: Check box of the connection settings.
    {"manage_option_enable_ssl", QT_TRANSLATE_NOOP("global", "Encrypt data transmission with SSL")},
    // 90
    //: Label beside the field for how to reach the hub.
    {"title_ip_detail", QT_TRANSLATE_NOOP("global", "Hub name, IP address, or Ferrylink ID")},
    //: Check box of the general options.
    {"manage_option_enable_desktop_notify", QT_TRANSLATE_NOOP("global", "Show desktop notifications")},
    //: Check box of the general options.
    {"manage_option_enable_icon_overlay", QT_TRANSLATE_NOOP("global", "Show sync status icons on files and folders")},
    //: Tab of the settings.
    {"manage_option_tab_name", QT_TRANSLATE_NOOP("global", "Options")},
    //: Heading of the general page of the settings.
    {"manage_option_title", QT_TRANSLATE_NOOP("global", "General options")},
    //: Check box of the general options, and of the display settings.
    {"manage_option_use_black_white_icon", QT_TRANSLATE_NOOP("global", "Use a black-and-white icon in the system tray")},
    //: Message: %1 is the folder's name.
    {"notify_new_share", QT_TRANSLATE_NOOP("global", "The shared folder \"%1\" is available to you. You can set it to sync with this computer.")},
    //: Heading of a notification: someone has shared a folder with the user.
    {"notify_new_share_short", QT_TRANSLATE_NOOP("global", "New shared folder")},
    //: Status, short, in the tray.
    {"tray_data_checking", QT_TRANSLATE_NOOP("global", "Checking data...")},
    {"auto_setup_failed_msg", QT_TRANSLATE_NOOP("global", "Automatic setup failed. Please set up the connection manually.")},
    // 100
    //: Status: last step of the automatic set-up of the client (not of the installer).
    {"auto_setup_finishing", QT_TRANSLATE_NOOP("global", "Finishing the setup...")},
    //: Button: goes on after a warning or a question.
    {"btn_continue", QT_TRANSLATE_NOOP("global", "Continue")},
    //: Button: opens the choice of the folders and files that are synced.
    {"selective_sync", QT_TRANSLATE_NOOP("global", "Selective sync")},
    //: Message above the rules of a task's filter.
    {"black_list_desc", QT_TRANSLATE_NOOP("global", "Files and folders that match these rules will not be synced.")},
    //: Status, shown while a new version of the client is being installed.
    {"msg_upgrading", QT_TRANSLATE_NOOP("global", "Installing the update...")},
    //: Label above the list of excluded file extensions such as "tmp".
    {"file_ext_label", QT_TRANSLATE_NOOP("global", "File extensions")},
    //: Status, short: the shared folder can't be synced since a volume is mounted in it.
    {"err_share_mountpt_short", QT_TRANSLATE_NOOP("global", "Folder on a mount point")},
    //: Heading of the box about a new version of the client (noun).
    {"title_upgrade", QT_TRANSLATE_NOOP("global", "Software update")},
    //: Status: %1 is a percentage such as 42%.
    {"msg_progress", QT_TRANSLATE_NOOP("global", "Progress: %1")},
    //: Message: question; %1 is the shared folder's name.
    {"msg_shareitem_delete", QT_TRANSLATE_NOOP("global", "Stop syncing \"%1\"? The files on this computer and on the hub will be kept.")},
    // 110
    {"err_shareitem_delete", QT_TRANSLATE_NOOP("global", "The shared folder could not be removed from the list.")},
    {"auto_setup_key_configurated", QT_TRANSLATE_NOOP("global", "This setup key has already been used. Please request a new one from your administrator.")},
    {"msg_language_restart", QT_TRANSLATE_NOOP("global", "The new language takes effect after you restart the application.")},
    //: Choice/Tab: a type of item in a filter or list, and the page with the two folders of a task (noun, singular).
    {"type_folder", QT_TRANSLATE_NOOP("global", "Folder")},
    {"msg_localdiskfull", QT_TRANSLATE_NOOP("global", "The disk of this computer is full. Please free up some space and try again.")},
    //: Status, shown while the list of folders comes from the hub.
    {"selective_sync_loading", QT_TRANSLATE_NOOP("global", "Loading the folder list...")},
    //: Button/Menu item/Label: takes an entry off a list, someone's right off a file, the program off the computer
    //: (verb).
    {"btn_shareitem_delete", QT_TRANSLATE_NOOP("global", "Remove")},
    {"msg_confirm_unlink", QT_TRANSLATE_NOOP("global", "Are you sure you want to unlink this computer from the hub?")},
    //: Column head of the list of files: the folder that a file goes to.
    {"col_file_destination", QT_TRANSLATE_NOOP("global", "Destination")},
    //: Status: state of a task or a file before its transfer.
    {"label_preparing", QT_TRANSLATE_NOOP("global", "Preparing...")},
    // 120
    //: Status: state of a file.
    {"label_uploading", QT_TRANSLATE_NOOP("global", "Uploading...")},
    //: Choice of the list of languages: the one of the system.
    {"language_default", QT_TRANSLATE_NOOP("global", "System default")},
    //: Label beside the list of languages.
    {"manage_option_language", QT_TRANSLATE_NOOP("global", "Language")},
    //: Label beside a field, or a column's head: the name of a folder.
    {"folder_name", QT_TRANSLATE_NOOP("global", "Folder name")},
    //: Status: state of a file.
    {"label_downloading", QT_TRANSLATE_NOOP("global", "Downloading...")},
    //: Heading of an installer window; [ProductName] becomes a product name; "Setup" is the installer.
    {"msi_progress_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    //: Status in the tray; %1 is a number, mostly more than one.
    {"tray_syncing_file_cnt", QT_TRANSLATE_NOOP("global", "Syncing %1 files...")},
    //: Status: %1 is a file name.
    {"msg_download_downloading", QT_TRANSLATE_NOOP("global", "Downloading \"%1\"...")},
    //: Heading of a page: the folders that the user wants to sync.
    {"folder_selective_sync", QT_TRANSLATE_NOOP("global", "Folders to sync")},
    //: Button: opens further settings of a task.
    {"advanced_settings", QT_TRANSLATE_NOOP("global", "Advanced settings")},
    // 130
    //: Label beside a field: files above this size are not synced.
    {"file_max_size_label", QT_TRANSLATE_NOOP("global", "Maximum file size")},
    //: Label above the list of names of files that are not synced.
    {"block_file_name_label", QT_TRANSLATE_NOOP("global", "Excluded file names")},
    //: Heading of the table of files that are not synced.
    {"block_file_table_title", QT_TRANSLATE_NOOP("global", "Excluded files")},
    {"err_database", QT_TRANSLATE_NOOP("global", "The local database is damaged. Please unlink this computer from the hub and link it again.")},
    //: Heading of a page: which files are synced and which not (noun).
    {"file_selective_sync", QT_TRANSLATE_NOOP("global", "File filter")},
    //: Label above the list of names and extensions that are not synced (noun).
    {"file_black_list_label", QT_TRANSLATE_NOOP("global", "Exclusion list")},
    //: Message: to clear is to take the check mark away.
    {"selective_sync_remove_msg", QT_TRANSLATE_NOOP("global", "The folders that you cleared will be removed from this computer. They stay on the hub.")},
    //: Label beside a list: what happens when a file was changed on both sides.
    {"manage_option_merge_mode", QT_TRANSLATE_NOOP("global", "Conflict handling")},
    //: Status: stands in place of a list that is on its way.
    {"loading", QT_TRANSLATE_NOOP("global", "Loading...")},
    //: Label/Heading: two-way sync, upload only, download only (the way in which is synced).
    {"manage_option_sync_mode", QT_TRANSLATE_NOOP("global", "Sync mode")},
    // 140
    //: Status in the tray and of a task (participle; the task or the client was paused).
    {"tray_status_paused", QT_TRANSLATE_NOOP("global", "Paused")},
    {"msg_folder_mount_point", QT_TRANSLATE_NOOP("global", "The folder is a mount point and cannot be synced. Please choose another folder.")},
    {"col_time", QT_TRANSLATE_NOOP("global", "Time")},
    //: Message: %1 is a file name.
    {"msg_download_aborted", QT_TRANSLATE_NOOP("global", "The download of \"%1\" was canceled.")},
    //: Button: begins at once what was offered.
    {"btn_start_now", QT_TRANSLATE_NOOP("global", "Start now")},
    {"status_desc_localdisk_full", QT_TRANSLATE_NOOP("global", "Synchronization has stopped because the disk of this computer is full.")},
    {"status_desc_quotafull", QT_TRANSLATE_NOOP("global", "Synchronization has stopped because your storage quota on the hub is used up.")},
    //: Status in the tray: this computer is being linked to the hub.
    {"tray_status_linking", QT_TRANSLATE_NOOP("global", "Linking...")},
    {"btn_manage", QT_TRANSLATE_NOOP("global", "Manage")},
    //: Status/Heading, short: the user may not do this, or not use the shared folder.
    {"err_share_perm_short", QT_TRANSLATE_NOOP("global", "Permission denied")},
    // 150
    {"status_desc_perm_short", QT_TRANSLATE_NOOP("global", "Permission denied")},
    {"err_user_info_unavailable", QT_TRANSLATE_NOOP("global", "Your account information could not be retrieved from the hub.")},
    {"status_desc_abnormal_short", QT_TRANSLATE_NOOP("global", "Something went wrong")},
    //: Column head of a list, or a label beside a field: the name of this computer.
    {"col_computer_name", QT_TRANSLATE_NOOP("global", "Computer name")},
    //: Status, short, in the tray: the connection comes and goes.
    {"tray_unstable", QT_TRANSLATE_NOOP("global", "The connection is unstable")},
    //: Menu item: makes a link (URL) to the file and copies it.
    {"context_menu_share_link", QT_TRANSLATE_NOOP("global", "Get link")},
    //: Status, shown while this computer is being linked to the hub.
    {"msg_linking", QT_TRANSLATE_NOOP("global", "Linking this computer to the hub...")},
    //: Status, shown while the client tries to sync again.
    {"try_syncing", QT_TRANSLATE_NOOP("global", "Trying to sync...")},
    //: Choice: a role (noun, a person): may open and read; beside Previewer, Commenter, Editor, Manager.
    {"viewer", QT_TRANSLATE_NOOP("global", "Viewer")},
    //: Heading of a warning about the SSL certificate.
    {"title_ssl_warning", QT_TRANSLATE_NOOP("global", "Certificate warning")},
    // 160
    //: Button/Menu item: interrupts a task, or all, for a while (verb).
    {"pause_connection", QT_TRANSLATE_NOOP("global", "Pause")},
    //: Button/Menu item: goes on with a task, or all, after a pause (verb).
    {"resume_connection", QT_TRANSLATE_NOOP("global", "Resume")},
    {"unlink_connection", QT_TRANSLATE_NOOP("global", "Unlink")},
    {"col_file_status", QT_TRANSLATE_NOOP("global", "Status")},
    //: Button: opens the rules by which files are not synced (noun).
    {"black_list_btn", QT_TRANSLATE_NOOP("global", "Exclusion rules")},
    //: Column head: what was done with the file (noun).
    {"col_file_action", QT_TRANSLATE_NOOP("global", "Action")},
    //: Column head of a list of files.
    {"col_file_name", QT_TRANSLATE_NOOP("global", "File name")},
    //: Column head/Label: the size of a file.
    {"col_file_size", QT_TRANSLATE_NOOP("global", "Size")},
    //: Column head of a list: an identifier.
    {"col_id", QT_TRANSLATE_NOOP("global", "ID")},
    //: Status of a shared folder: its sync is turned off.
    {"msg_disabled", QT_TRANSLATE_NOOP("global", "Disabled")},
    // 170
    //: Status of a shared folder: its sync is turned on.
    {"msg_enabled", QT_TRANSLATE_NOOP("global", "Enabled")},
    //: Message of a question that offers to stop the sync.
    {"share_enable_remove_msg", QT_TRANSLATE_NOOP("global", "If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.")},
    //: Check box of the connection settings.
    {"title_ssl_enable", QT_TRANSLATE_NOOP("global", "Enable SSL encryption")},
    {"msg_seldir_description", QT_TRANSLATE_NOOP("global", "Select the folder on this computer that you want to sync with the hub.")},
    //: Fragment: follows the name of a folder or file in a notification: "Photos has been shared with you."
    {"msg_share_bubble_suffix", QT_TRANSLATE_NOOP("global", "has been shared with you.")},
    //: Heading of a notification: someone has shared something with the user (noun).
    {"title_bubble_sharing", QT_TRANSLATE_NOOP("global", "New share")},
    //: Heading of a notification.
    {"msg_download_done", QT_TRANSLATE_NOOP("global", "Download completed")},
    //: Heading of a notification, or the state of a file.
    {"msg_download_fail", QT_TRANSLATE_NOOP("global", "Download failed")},
    //: Heading of a page: the hub's name, version, space and so on.
    {"hub_overview", QT_TRANSLATE_NOOP("global", "Hub overview")},
    {"size_title", QT_TRANSLATE_NOOP("global", "Size")},
    // 180
    {"status_desc_hub_changed", QT_TRANSLATE_NOOP("global", "The hub at this address has changed. Please link this computer again.")},
    {"status_desc_pause", QT_TRANSLATE_NOOP("global", "Synchronization is paused.")},
    {"status_desc_ssl_verify_fail", QT_TRANSLATE_NOOP("global", "The SSL certificate of the hub is not trusted.")},
    {"status_desc_syncing", QT_TRANSLATE_NOOP("global", "Synchronization is in progress.")},
    {"status_desc_errversion_client", QT_TRANSLATE_NOOP("global", "The client is too old for the hub. Please update the client.")},
    {"wizard_conflict_backup_warning", QT_TRANSLATE_NOOP("global", "This folder is already part of a Tessaly backup task. Please choose another folder.")},
    {"desc_inactive", QT_TRANSLATE_NOOP("global", "This task is inactive because the hub cannot be reached.")},
    //: Heading of the state of a task that can't reach the hub (adjective; belongs to "task").
    {"title_inactive", QT_TRANSLATE_NOOP("global", "Inactive")},
    {"desc_cannot_download", QT_TRANSLATE_NOOP("global", "The file cannot be downloaded. Please check your connection and your permissions.")},
    {"desc_cannot_list_version", QT_TRANSLATE_NOOP("global", "The version history of this file is not available.")},
    // 190
    {"desc_cannot_share_link", QT_TRANSLATE_NOOP("global", "A link cannot be created for this item.")},
    {"err_ssl_verify_fail", QT_TRANSLATE_NOOP("global", "The SSL certificate of the hub could not be verified.")},
    //: Heading of the state of a task that waits for work (a state, noun or adjective; belongs to "task").
    {"title_standby", QT_TRANSLATE_NOOP("global", "Standby")},
    //: Label beside a list of actions: what a double click on the tray icon does.
    {"title_icon_double_clicked", QT_TRANSLATE_NOOP("global", "When the tray icon is double-clicked")},
    {"tooltip_folder_indexing", QT_TRANSLATE_NOOP("global", "The hub is indexing this folder. Please wait.")},
    {"msi_welcome_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    {"err_init_failed", QT_TRANSLATE_NOOP("global", "Initialization failed. Please restart the application.")},
    {"msi_button_back", QT_TRANSLATE_NOOP("global", "Back")},
    {"msi_ready_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    {"msi_filesinuse_dlg_description", QT_TRANSLATE_NOOP("global", "Setup cannot replace files that other applications have open.")},
    // 200
    //: Button of the installer: ends it.
    {"msi_button_exit", QT_TRANSLATE_NOOP("global", "Exit")},
    //: Button of the installer: prints the license agreement (verb).
    {"msi_button_print", QT_TRANSLATE_NOOP("global", "Print")},
    //: Message of the installer, second of two: what happens to programs that have files open.
    {"msi_filesinuse_dlg_closenone", QT_TRANSLATE_NOOP("global", "Leave the applications open. You will have to restart the computer afterward.")},
    {"msi_maintenance_dlg_repair_text", QT_TRANSLATE_NOOP("global", "Puts back missing or damaged program files, shortcuts, and registry entries.")},
    //: Check box on the installer's last page; [ProductName] becomes a product name.
    {"msi_exit_dlg_launch", QT_TRANSLATE_NOOP("global", "Launch [ProductName]")},
    {"msi_exit_dlg_text", QT_TRANSLATE_NOOP("global", "[ProductName] will keep your files safe and in sync.")},
    //: Message of the installer; Finish is its button.
    {"msi_exit_dlg_description", QT_TRANSLATE_NOOP("global", "Click Finish to close Setup.")},
    {"msi_error_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    {"msi_maintenance_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    {"msi_exit_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    // 210
    //: Message of a task; a disk drive of this computer.
    {"err_syncfolder_not_mounted", QT_TRANSLATE_NOOP("global", "The drive that holds the local folder is not connected.")},
    //: Tooltip of the installer's button; [ProductName] becomes a product name.
    {"msi_maintenance_dlg_repair_tooltip", QT_TRANSLATE_NOOP("global", "Repair [ProductName]")},
    {"msi_button_remove", QT_TRANSLATE_NOOP("global", "Remove")},
    //: Menu item: opens the list of older versions of the file.
    {"context_menu_version_browse", QT_TRANSLATE_NOOP("global", "Browse previous versions")},
    {"msi_maintenance_dlg_subtitle", QT_TRANSLATE_NOOP("global", "What would you like to do?")},
    {"msi_progress_dlg_text", QT_TRANSLATE_NOOP("global", "[ProductName] is being installed on your computer.")},
    //: Choice of the sync direction: from the hub to this computer alone, nothing is uploaded.
    {"download_only", QT_TRANSLATE_NOOP("global", "Download only")},
    {"msi_fatalerror_dlg_description1", QT_TRANSLATE_NOOP("global", "An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.")},
    {"msi_button_cancel", QT_TRANSLATE_NOOP("global", "Cancel")},
    //: Button of the installer, beside Retry: goes on although files are in use (verb).
    {"msi_button_ignore", QT_TRANSLATE_NOOP("global", "Ignore")},
    // 220
    {"msi_button_finish", QT_TRANSLATE_NOOP("global", "Finish")},
    //: Button: answers a question of the installer.
    {"msi_button_no", QT_TRANSLATE_NOOP("global", "No")},
    //: Message: an entry of a list: what the exported file holds about this computer and about the hub.
    {"msg_info_description", QT_TRANSLATE_NOOP("global", "Information about this computer and the hub that it is linked to.")},
    {"msi_maintenance_welcome_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    //: Label of the installer, before the step that is being done; a colon ends it.
    {"msi_progress_dlg_status_label", QT_TRANSLATE_NOOP("global", "Status:")},
    {"msi_button_ok", QT_TRANSLATE_NOOP("global", "OK")},
    {"btn_unlink", QT_TRANSLATE_NOOP("global", "Unlink")},
    //: Button of the installer (verb).
    {"msi_button_install", QT_TRANSLATE_NOOP("global", "Install")},
    //: Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.
    {"msi_maintenance_welcome_dlg_description", QT_TRANSLATE_NOOP("global", "Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.")},
    //: Tooltip of the installer's button; [ProductName] becomes a product name.
    {"msi_maintenance_dlg_remove_tooltip", QT_TRANSLATE_NOOP("global", "Remove [ProductName]")},
    // 230
    //: Status of a shared folder: the user may not change it (adjective; belongs to "folder").
    {"read_only", QT_TRANSLATE_NOOP("global", "Read only")},
    //: Heading of an installer page (noun).
    {"msi_eula_dlg_subtitle", QT_TRANSLATE_NOOP("global", "License agreement")},
    {"msi_button_next", QT_TRANSLATE_NOOP("global", "Next")},
    //: Message of the installer, above a list of programs; [ProductName] becomes a product name.
    {"msi_filesinuse_dlg_text", QT_TRANSLATE_NOOP("global", "These applications have files open that [ProductName] Setup needs to replace:")},
    {"msi_eula_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    //: Heading of a chart of what was transferred lately (noun).
    {"title_chart_tray", QT_TRANSLATE_NOOP("global", "Sync activity")},
    //: Label/Button of the installer: puts damaged files right (verb).
    {"msi_maintenance_dlg_repair_label", QT_TRANSLATE_NOOP("global", "Repair")},
    //: Heading of an installer page while it works; [ProductName] becomes a product name.
    {"msi_progress_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Installing [ProductName]")},
    {"err_local_sync_folder_miss", QT_TRANSLATE_NOOP("global", "The local folder is missing. It may have been moved, renamed, or deleted.")},
    {"msi_button_repair", QT_TRANSLATE_NOOP("global", "Repair")},
    // 240
    //: Button of the installer: tries once more (verb).
    {"msi_button_retry", QT_TRANSLATE_NOOP("global", "Retry")},
    //: Button: answers a question, in the installer too.
    {"msi_button_yes", QT_TRANSLATE_NOOP("global", "Yes")},
    {"msi_cancel_dlg_text", QT_TRANSLATE_NOOP("global", "Do you really want to cancel the installation of [ProductName]?")},
    {"msi_cancel_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    {"msi_eula_dlg_description", QT_TRANSLATE_NOOP("global", "Please read the agreement before you continue.")},
    {"msi_fatalerror_dlg_description2", QT_TRANSLATE_NOOP("global", "Click Finish to close Setup.")},
    {"msi_fatalerror_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    //: Message of the installer, first of two: what happens to programs that have files open.
    {"msi_filesinuse_dlg_closeall", QT_TRANSLATE_NOOP("global", "Close the applications now and reopen them when Setup is done.")},
    //: Heading of an installer page: files that other programs have open.
    {"msi_filesinuse_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Files in use")},
    {"msi_filesinuse_dlg_text2", QT_TRANSLATE_NOOP("global", "Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.")},
    // 250
    {"msi_filesinuse_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    //: Label/Button: takes another value, in the installer other features (verb).
    {"msi_maintenance_dlg_change_label", QT_TRANSLATE_NOOP("global", "Change")},
    {"msi_maintenance_dlg_change_text", QT_TRANSLATE_NOOP("global", "Choose which features are installed and where.")},
    {"msi_maintenance_dlg_change_text_disabled", QT_TRANSLATE_NOOP("global", "[ProductName] is always installed with all its features.")},
    //: Tooltip of the installer's button; [ProductName] becomes a product name.
    {"msi_maintenance_dlg_change_tooltip", QT_TRANSLATE_NOOP("global", "Change [ProductName]")},
    {"msi_maintenance_dlg_description", QT_TRANSLATE_NOOP("global", "You can change, repair, or remove the installed program.")},
    {"msi_maintenance_dlg_remove_label", QT_TRANSLATE_NOOP("global", "Remove")},
    {"msi_maintenance_dlg_remove_text", QT_TRANSLATE_NOOP("global", "Removes the program and its settings from your computer.")},
    {"msi_progress_dlg_description", QT_TRANSLATE_NOOP("global", "This may take several minutes.")},
    //: Heading of an installer page; [ProductName] becomes a product name.
    {"msi_ready_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Ready to install [ProductName]")},
    // 260
    {"msi_ready_dlg_text", QT_TRANSLATE_NOOP("global", "Tessaly can now be installed. Click Install to start or Back to check your settings.")},
    {"msi_readyremove_dlg_description", QT_TRANSLATE_NOOP("global", "Setup is about to remove the program.")},
    //: Heading of an installer page; [ProductName] becomes a product name.
    {"msi_readyremove_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Ready to remove [ProductName]")},
    {"msi_readyremove_dlg_text", QT_TRANSLATE_NOOP("global", "Click Remove to remove [ProductName] from this computer. Your synced files will be kept.")},
    {"msi_readyremove_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    {"msi_readyrepair_dlg_description", QT_TRANSLATE_NOOP("global", "Setup is about to repair the program.")},
    //: Heading of an installer page; [ProductName] becomes a product name.
    {"msi_readyrepair_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Ready to repair [ProductName]")},
    //: Message of the installer: Repair, Back, Cancel are buttons; to leave is to cancel, not to complete.
    {"msi_readyrepair_dlg_text", QT_TRANSLATE_NOOP("global", "Click Repair to start, Back to choose another action, or Cancel to leave Setup.")},
    {"msi_readyrepair_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    //: Message of the installer: the user ended it before it had installed anything (canceled, not completed).
    {"msi_userexit_dlg_description1", QT_TRANSLATE_NOOP("global", "You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.")},
    // 270
    {"msi_userexit_dlg_description2", QT_TRANSLATE_NOOP("global", "Click Finish to close Setup.")},
    {"msi_userexit_dlg_title", QT_TRANSLATE_NOOP("global", "[ProductName] Setup")},
    //: Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.
    {"msi_welcome_dlg_description", QT_TRANSLATE_NOOP("global", "This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.")},
    {"remove_btn", QT_TRANSLATE_NOOP("global", "Remove")},
    //: Label of a range of dates, before the first field; "To" stands before the second.
    {"history_from", QT_TRANSLATE_NOOP("global", "From")},
    //: Heading of an installer page; [ProductName] becomes a product name.
    {"msi_maintenance_welcome_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Welcome to [ProductName] Setup")},
    //: Heading of the installer's last page; [ProductName] becomes a product name.
    {"msi_exit_dlg_subtitle", QT_TRANSLATE_NOOP("global", "[ProductName] is now installed")},
    //: Heading of the installer's last page; [ProductName] becomes a product name; the user canceled.
    {"msi_userexit_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Setup of [ProductName] was canceled")},
    {"session_unlink_btn", QT_TRANSLATE_NOOP("global", "Unlink")},
    //: Heading of the list of what was downloaded (noun).
    {"main_download_history", QT_TRANSLATE_NOOP("global", "Download history")},
    // 280
    //: Button: links this computer to a hub that it does not know yet (verb).
    {"link_new_nas", QT_TRANSLATE_NOOP("global", "Link to a new hub")},
    //: Heading of an installer page; [ProductName] becomes a product name.
    {"msi_fatalerror_dlg_subtitle", QT_TRANSLATE_NOOP("global", "[ProductName] could not be installed")},
    //: Status of a shared folder.
    {"share_enabled", QT_TRANSLATE_NOOP("global", "Synchronization enabled")},
    //: Button: adds a sync task.
    {"session_add_btn", QT_TRANSLATE_NOOP("global", "Add task")},
    {"msi_welcome_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Welcome to [ProductName] Setup")},
    {"session_pause_btn", QT_TRANSLATE_NOOP("global", "Pause")},
    //: Choice of the installer, first of two; the user speaks.
    {"msi_eula_dlg_accept", QT_TRANSLATE_NOOP("global", "I accept the license agreement")},
    {"session_resume_btn", QT_TRANSLATE_NOOP("global", "Resume")},
    //: Button: empties the fields of a filter (verb).
    {"filter_reset", QT_TRANSLATE_NOOP("global", "Reset")},
    //: Heading of the part of a page with the folders to sync (noun, plural).
    {"selective_sync_folder_title", QT_TRANSLATE_NOOP("global", "Folders")},
    // 290
    //: Label below the product's name: a slogan.
    {"msg_sub_slogan", QT_TRANSLATE_NOOP("global", "Your files, up to date on every device.")},
    //: Message: %1 is a product name.
    {"err_hub_not_match_quay", QT_TRANSLATE_NOOP("global", "This is not the hub that %1 was linked to. Please link this computer again.")},
    {"err_user_sharing_disabled", QT_TRANSLATE_NOOP("global", "Sharing is disabled for your account.")},
    //: Message: %1 is the task's name.
    {"session_unlink_confirm_msg", QT_TRANSLATE_NOOP("global", "The task \"%1\" will stop, and its connection to the hub will be removed. The files on both sides will be kept.")},
    //: Menu item: opens the folder that a file lies in.
    {"open_contain_folder", QT_TRANSLATE_NOOP("global", "Open containing folder")},
    {"err_get_file_url", QT_TRANSLATE_NOOP("global", "The address of the file could not be retrieved from the hub.")},
    {"setup_local_folder_desc", QT_TRANSLATE_NOOP("global", "Choose the folder on this computer where your files are stored.")},
    //: Status, short, in the tray: another hub answers at this address.
    {"tray_hub_change", QT_TRANSLATE_NOOP("global", "The hub has changed")},
    //: Message: %1 is the folder's name.
    {"err_share_not_mounted", QT_TRANSLATE_NOOP("global", "The shared folder \"%1\" is not mounted on the hub.")},
    //: Choice of a list of periods, or the head of a group of events.
    {"today", QT_TRANSLATE_NOOP("global", "Today")},
    // 300
    {"err_remote_not_mounted", QT_TRANSLATE_NOOP("global", "The volume of the remote folder is not mounted on the hub.")},
    //: Label beside the path of a folder.
    {"folder_location_label", QT_TRANSLATE_NOOP("global", "Folder location")},
    //: Label beside a check box: the folder is synced to this computer (verb).
    {"sync_to_pc_label", QT_TRANSLATE_NOOP("global", "Sync to this computer")},
    {"NSIS_NOT_ADMIN_CONFIRM", QT_TRANSLATE_NOOP("global", "You are not signed in as an administrator, so some features may not be installed. Do you want to continue?")},
    //: Label below the product's name: a slogan, three verbs.
    {"msg_slogan", QT_TRANSLATE_NOOP("global", "Sync, share, and protect your files")},
    {"err_ferryconn_file_sharing", QT_TRANSLATE_NOOP("global", "File sharing through Ferrylink is disabled on the hub. Please contact your administrator.")},
    //: Choice/Heading: an entry of a list of periods, and the head of a group of events.
    {"history_yesterday", QT_TRANSLATE_NOOP("global", "Yesterday")},
    {"wizard_setup_mode_page_desc", QT_TRANSLATE_NOOP("global", "Choose how you want to set up Tessaly.")},
    //: Choice of the wizard, first of two ways to set up the client (not the installer; noun).
    {"wizard_setup_quick_mode_title", QT_TRANSLATE_NOOP("global", "Quick setup")},
    //: Label below a list; %1 and %2 are the numbers of the first and the last item shown, %3 is how many there are.
    {"history_items", QT_TRANSLATE_NOOP("global", "Items %1 to %2 of %3")},
    // 310
    {"yes", QT_TRANSLATE_NOOP("global", "Yes")},
    //: Button: closes a hint: the user has understood it.
    {"got_it", QT_TRANSLATE_NOOP("global", "Got it")},
    {"desc_no_per_or_deleted", QT_TRANSLATE_NOOP("global", "The item was deleted, or you no longer have permission to access it.")},
    {"tutorial_second_desc_2", QT_TRANSLATE_NOOP("global", "Right-click a file or folder to share it, get a link, or browse its previous versions.")},
    //: Label of a filter, beside two dates.
    {"history_date_range", QT_TRANSLATE_NOOP("global", "Date range")},
    //: Menu item of the file manager, one folder: it is no longer synced.
    {"context_menu_filter_folder", QT_TRANSLATE_NOOP("global", "Stop syncing this folder")},
    //: Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes
    //: in one style.
    {"time_hour_ago", QT_TRANSLATE_NOOP("global", "%1 hours ago")},
    {"wizard_new_sync_folder_desc", QT_TRANSLATE_NOOP("global", "Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.")},
    {"history_folder", QT_TRANSLATE_NOOP("global", "Folder")},
    //: Label: a month's name, in the head of a calendar.
    {"month_may", QT_TRANSLATE_NOOP("global", "May")},
    // 320
    //: Heading of a warning of the wizard.
    {"wizard_setup_repeat_warning_title", QT_TRANSLATE_NOOP("global", "This computer is already linked")},
    //: Event: what happened to the file named beside it, in the history too (participle; the file was renamed).
    {"history_rename", QT_TRANSLATE_NOOP("global", "Renamed")},
    {"progress_preparing", QT_TRANSLATE_NOOP("global", "Preparing...")},
    //: Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes
    //: in one style.
    {"time_day_ago", QT_TRANSLATE_NOOP("global", "%1 days ago")},
    //: Status: how long ago a file changed: less than a minute.
    {"time_just_now", QT_TRANSLATE_NOOP("global", "Just now")},
    //: Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes
    //: in one style.
    {"time_minute_ago", QT_TRANSLATE_NOOP("global", "%1 minutes ago")},
    //: Choice: a type of item in a filter or list (noun, singular).
    {"history_file", QT_TRANSLATE_NOOP("global", "File")},
    //: Choice of a list of periods: the calendar month before this one.
    {"history_last_month", QT_TRANSLATE_NOOP("global", "Last month")},
    //: Label beside the field for a word to search for.
    {"history_keyword", QT_TRANSLATE_NOOP("global", "Keyword")},
    //: Label of a range of dates, before the second field; "From" stands before the first.
    {"history_to", QT_TRANSLATE_NOOP("global", "To")},
    // 330
    {"history_delete", QT_TRANSLATE_NOOP("global", "Deleted")},
    {"history_download", QT_TRANSLATE_NOOP("global", "Downloaded")},
    //: Label/Column head: the type of an item or a file.
    {"history_type", QT_TRANSLATE_NOOP("global", "Type")},
    //: Choice of a list of periods: the calendar week before this one.
    {"history_last_week", QT_TRANSLATE_NOOP("global", "Last week")},
    {"history_upload", QT_TRANSLATE_NOOP("global", "Uploaded")},
    {"history_reset", QT_TRANSLATE_NOOP("global", "Reset")},
    //: Label: a month's name, in the head of a calendar.
    {"month_apr", QT_TRANSLATE_NOOP("global", "April")},
    //: Label: a month's name, in the head of a calendar.
    {"month_feb", QT_TRANSLATE_NOOP("global", "February")},
    //: Label: a month's name, in the head of a calendar.
    {"month_aug", QT_TRANSLATE_NOOP("global", "August")},
    //: Button: begins a search (verb).
    {"history_search", QT_TRANSLATE_NOOP("global", "Search")},
    // 340
    //: Label: a month's name, in the head of a calendar.
    {"month_oct", QT_TRANSLATE_NOOP("global", "October")},
    //: Menu item of the file manager, one folder: it is synced once more.
    {"context_menu_resume_folder", QT_TRANSLATE_NOOP("global", "Sync this folder again")},
    {"history_time", QT_TRANSLATE_NOOP("global", "Time")},
    //: Menu item of the file manager, several folders: they are no longer synced.
    {"context_menu_filter_folders", QT_TRANSLATE_NOOP("global", "Stop syncing these folders")},
    //: Status: stands in place of an empty list.
    {"history_no_data", QT_TRANSLATE_NOOP("global", "No history to show")},
    //: Menu item of the file manager, several folders: they are synced once more.
    {"context_menu_resume_folders", QT_TRANSLATE_NOOP("global", "Sync these folders again")},
    //: Fragment, first part of a menu item; the name of a hub or folder follows: "Send to Office".
    {"context_menu_sendto_prefix", QT_TRANSLATE_NOOP("global", "Send to")},
    //: Label: a month's name, in the head of a calendar.
    {"month_jan", QT_TRANSLATE_NOOP("global", "January")},
    //: Label: a month's name, in the head of a calendar.
    {"month_nov", QT_TRANSLATE_NOOP("global", "November")},
    //: Heading of the list of files that are being synced at present.
    {"tray_current_syncing", QT_TRANSLATE_NOOP("global", "Now syncing")},
    // 350
    {"history_action", QT_TRANSLATE_NOOP("global", "Action")},
    //: Label: a month's name, in the head of a calendar.
    {"month_sep", QT_TRANSLATE_NOOP("global", "September")},
    //: Choice of a filter of the history: no type of event is left out.
    {"history_all_event", QT_TRANSLATE_NOOP("global", "All events")},
    {"history_customize", QT_TRANSLATE_NOOP("global", "Customize")},
    //: Label: a month's name, in the head of a calendar.
    {"month_jul", QT_TRANSLATE_NOOP("global", "July")},
    //: Column head of the history: the day.
    {"history_date", QT_TRANSLATE_NOOP("global", "Date")},
    //: Label: a month's name, in the head of a calendar.
    {"month_jun", QT_TRANSLATE_NOOP("global", "June")},
    {"history_file_name", QT_TRANSLATE_NOOP("global", "File name")},
    //: Label: a month's name, in the head of a calendar.
    {"month_mar", QT_TRANSLATE_NOOP("global", "March")},
    //: Label: a month's name, in the head of a calendar.
    {"month_dec", QT_TRANSLATE_NOOP("global", "December")},
    // 360
    //: Column head of the history: the kind of file.
    {"history_file_type", QT_TRANSLATE_NOOP("global", "File type")},
    //: Menu item/Choice: opens the wizard that sets up the client step by step (noun); not the installer, and not
    //: "Advanced settings".
    {"advan_setup_wizard", QT_TRANSLATE_NOOP("global", "Advanced setup")},
    //: Check box below a message.
    {"dont_show_msg", QT_TRANSLATE_NOOP("global", "Do not show this message again")},
    {"wizard_setup_quick_mode_desc", QT_TRANSLATE_NOOP("global", "Start syncing in one step with the recommended settings.")},
    {"quick_mode_finish_page_desc", QT_TRANSLATE_NOOP("global", "Your home folder on the hub and the new folder on this computer are now kept identical.")},
    //: Heading of the wizard's last page: the client is set up (not the installer).
    {"quick_mode_finish_page_title", QT_TRANSLATE_NOOP("global", "Setup is complete")},
    {"tutorial_second_desc", QT_TRANSLATE_NOOP("global", "Put files into the synced folder, and they appear on the hub and on all your other computers.")},
    {"tutorial_third_desc", QT_TRANSLATE_NOOP("global", "Click the tray icon to see the sync status and the files that were changed last.")},
    //: Heading of a wizard page: quick or advanced set-up of the client (not the installer).
    {"wizard_setup_mode_page_title", QT_TRANSLATE_NOOP("global", "Setup mode")},
    //: Button: turns an offer down.
    {"no_need", QT_TRANSLATE_NOOP("global", "No, thanks")},
    // 370
    //: Heading of a tutorial page, an invitation (verb).
    {"tutorial_second_title", QT_TRANSLATE_NOOP("global", "Sync your files")},
    //: Heading of a tutorial page, an invitation (verb).
    {"tutorial_third_title", QT_TRANSLATE_NOOP("global", "Keep an eye on changes")},
    //: Button of the wizard.
    {"local_hub_search", QT_TRANSLATE_NOOP("global", "Find hubs on the local network")},
    //: Heading of a box with the state of a task.
    {"title_status_info", QT_TRANSLATE_NOOP("global", "Status information")},
    {"title_pwd", QT_TRANSLATE_NOOP("global", "Password")},
    //: Label beside a field.
    {"title_usr", QT_TRANSLATE_NOOP("global", "Username")},
    //: Menu item in the tray menu: there is a newer version of the client (noun and adjective).
    {"tray_upgrade", QT_TRANSLATE_NOOP("global", "Update available")},
    //: Screen reader: %1 is a user's name; "User" is the kind of entry.
    {"accessible_user", QT_TRANSLATE_NOOP("global", "User: %1")},
    {"err_no_connection_for_file", QT_TRANSLATE_NOOP("global", "This file does not belong to a sync task.")},
    //: Menu item in the tray menu.
    {"open_main_app", QT_TRANSLATE_NOOP("global", "Open main window")},
    // 380
    //: Choice of the wizard: what to set up next.
    {"wizard_sync_folder_new_nas", QT_TRANSLATE_NOOP("global", "Link this computer to another hub")},
    //: Choice of the wizard: what to set up next.
    {"wizard_sync_folder_new_session", QT_TRANSLATE_NOOP("global", "Sync another folder with this hub")},
    //: Heading of a wizard page.
    {"wizard_new_sync_folder_title", QT_TRANSLATE_NOOP("global", "New sync task")},
    {"wizard_setup_advan_mode_title", QT_TRANSLATE_NOOP("global", "Advanced setup")},
    {"wizard_setup_advan_mode_desc", QT_TRANSLATE_NOOP("global", "Choose the folders, the sync direction, and the filters yourself.")},
    //: Button: closes the wizard's last page.
    {"btn_done", QT_TRANSLATE_NOOP("global", "Done")},
    //: Message: %1 is a number.
    {"file_max_size_limit", QT_TRANSLATE_NOOP("global", "Files larger than %1 MB will not be synced.")},
    //: Button: opens the folder.
    {"open_folder", QT_TRANSLATE_NOOP("global", "Open folder")},
    {"wizard_invalid_sync_folder_warning", QT_TRANSLATE_NOOP("global", "This folder cannot be synced. Please choose another one.")},
    //: Tooltip of the button that searches.
    {"wizard_find_local_hub_tooltip", QT_TRANSLATE_NOOP("global", "Search the local network for hubs")},
    // 390
    {"wizard_readonly_sync_folder_warning", QT_TRANSLATE_NOOP("global", "You only have read access to this shared folder. Files will be downloaded but not uploaded.")},
    //: Message: %1 is a link; keep it as it is.
    {"more_tutorial", QT_TRANSLATE_NOOP("global", "Find more guides in the <a href=\"https://help.kelvane.example/tutorials\">tutorials</a>.")},
    {"wizard_conflict_sync_folder_warning", QT_TRANSLATE_NOOP("global", "This folder is inside or above a folder that is already synced. Please choose another folder.")},
    //: Menu item: opens the file.
    {"open_file", QT_TRANSLATE_NOOP("global", "Open file")},
    //: Message: %1 is the hub's name.
    {"wizard_setup_repeat_warning", QT_TRANSLATE_NOOP("global", "This computer is already linked to the hub \"%1\".")},
    //: Message of the wizard.
    {"wizard_create_tessaly_folder", QT_TRANSLATE_NOOP("global", "A folder named \"Tessaly\" will be created at this location.")},
    //: Message of the wizard; "link" is that of this computer to the hub, not a URL.
    {"wizard_setup_repeat_warning2", QT_TRANSLATE_NOOP("global", "If you continue, the existing link will be replaced.")},
    {"msg_err_offline", QT_TRANSLATE_NOOP("global", "The hub is offline.")},
    //: Label: the folder of the user on the hub.
    {"home_folder", QT_TRANSLATE_NOOP("global", "Home folder")},
    {"err_norvik_share_link", QT_TRANSLATE_NOOP("global", "A link cannot be created because Norvik is not available on the hub.")},
    // 400
    //: Message of a task; a button beside it confirms.
    {"err_ssl_change", QT_TRANSLATE_NOOP("global", "The SSL certificate of the hub has changed. Please confirm the new certificate.")},
    //: Heading of a wizard page (verb).
    {"wizard_set_sync_folder", QT_TRANSLATE_NOOP("global", "Set the folders to sync")},
    //: Message of a task; the direction is upload only, download only or two-way.
    {"sync_direction_mismatch", QT_TRANSLATE_NOOP("global", "The sync direction does not match your permissions on the remote folder.")},
    {"err_ip_not_allowed", QT_TRANSLATE_NOOP("global", "The IP address of this computer is blocked by the hub. Please contact your administrator.")},
    //: Label above three choices, ends in a colon.
    {"conflict_policy_desc", QT_TRANSLATE_NOOP("global", "When a file was changed on both sides:")},
    //: Heading of the wizard's first page.
    {"wizard_welcome_title", QT_TRANSLATE_NOOP("global", "Welcome to the setup wizard")},
    //: Tooltip of the button that turns to the last page of a list ("last" as the opposite of first).
    {"last_page", QT_TRANSLATE_NOOP("global", "Last page")},
    //: Tooltip of the button that turns to the first page of a list.
    {"first_page", QT_TRANSLATE_NOOP("global", "First page")},
    //: Tooltip of the button that turns back several pages; %1 is a number, more than one.
    {"prev_x_pages", QT_TRANSLATE_NOOP("global", "Previous %1 pages")},
    //: Tooltip of the button that turns on several pages; %1 is a number, more than one.
    {"next_x_pages", QT_TRANSLATE_NOOP("global", "Next %1 pages")},
    // 410
    //: Status, shown while this computer's link to the hub is being ended.
    {"msg_unlinking", QT_TRANSLATE_NOOP("global", "Unlinking...")},
    {"err_max_tries", QT_TRANSLATE_NOOP("global", "Too many failed attempts. Please try again later.")},
    {"wizard_network_err_sync_folder_warning", QT_TRANSLATE_NOOP("global", "The folder cannot be checked because the connection to the hub failed.")},
    {"wizard_share_nonexist_sync_folder_warning", QT_TRANSLATE_NOOP("global", "The shared folder no longer exists on the hub.")},
    //: Heading of a wizard page: the folders that are synced (noun).
    {"wizard_set_sync_folder_title", QT_TRANSLATE_NOOP("global", "Sync folders")},
    //: Choice, first of three: what happens when a file was changed on both sides.
    {"conflict_policy_compare_mtime", QT_TRANSLATE_NOOP("global", "Keep the version that was modified last")},
    //: Choice of the sync direction: changes are both uploaded and downloaded.
    {"two_way_sync", QT_TRANSLATE_NOOP("global", "Two-way sync")},
    {"wizard_set_sync_folder_desc", QT_TRANSLATE_NOOP("global", "Choose which folder on the hub to sync with which folder on this computer.")},
    //: Choice: a type of folder on the hub (noun).
    {"shared_folder", QT_TRANSLATE_NOOP("global", "Shared folder")},
    //: Fragment in a list of notifications, between a person's name and a template's: "Ann requested access to the
    //: Bureau template Memo".
    {"notification_page_action_request_access_bureau_template", QT_TRANSLATE_NOOP("global", "requested access to the Bureau template")},
    // 420
    {"folder_in_use_local_sync", QT_TRANSLATE_NOOP("global", "The folder is already used by another sync task on this computer.")},
    //: Message: %1 is a person's name, %2 the template's.
    {"notification_request_access_bureau_template", QT_TRANSLATE_NOOP("global", "%1 requested access to the Bureau template \"%2\".")},
    {"wizard_ssl_change_sync_folder_warning", QT_TRANSLATE_NOOP("global", "The folder cannot be checked because the SSL certificate of the hub has changed.")},
    {"err_otp_required", QT_TRANSLATE_NOOP("global", "Please enter the verification code.")},
    {"err_otp_invalid", QT_TRANSLATE_NOOP("global", "The verification code is incorrect. Please try again.")},
    //: Hint in the empty field for the code.
    {"connection_enter_otp", QT_TRANSLATE_NOOP("global", "Enter the 6-digit verification code")},
    //: Choice: a unit of time in a list, beside a field for the number (plural).
    {"timescale_hour", QT_TRANSLATE_NOOP("global", "Hours")},
    {"wizard_quotafull_sync_folder_warning", QT_TRANSLATE_NOOP("global", "Your storage quota on the volume of this folder is used up.")},
    {"wizard_ssl_verify_fail_sync_folder_warning", QT_TRANSLATE_NOOP("global", "The folder cannot be checked because the SSL certificate of the hub is not trusted.")},
    {"wizard_system_err_sync_folder_warning", QT_TRANSLATE_NOOP("global", "The folder cannot be checked because of a system error on the hub.")},
    // 430
    //: Tab/Choice: the page of what is synced, and a filter of notifications (noun).
    {"manage_sync_tab_name", QT_TRANSLATE_NOOP("global", "Sync")},
    //: Choice, second of three: what happens when a file was changed on both sides.
    {"conflict_policy_overwrite_client", QT_TRANSLATE_NOOP("global", "Always keep the version on the hub")},
    //: Choice, third of three: what happens when a file was changed on both sides.
    {"conflict_policy_rename_conflict", QT_TRANSLATE_NOOP("global", "Rename conflicting files and keep both versions")},
    //: Heading of the wizard's last page: what was set up.
    {"wizard_summary_title", QT_TRANSLATE_NOOP("global", "Summary")},
    //: Message: %1 is a person's name, %2 an account's, %3 a right such as "view" or "edit", %4 the template's name.
    {"tray_request_access_bureau_template", QT_TRANSLATE_NOOP("global", "%1 (%2) requests %3 access to the Bureau template \"%4\".")},
    {"info_mergefolder", QT_TRANSLATE_NOOP("global", "The contents of both folders will be merged. No file will be deleted.")},
    //: Label in the wizard's summary: the user's account on the hub.
    {"wizard_summary_table_account", QT_TRANSLATE_NOOP("global", "Account")},
    //: Screen reader: names a list.
    {"accessible_conn_list", QT_TRANSLATE_NOOP("global", "List of connections")},
    //: Screen reader: names the hub that this computer has a connection to now; not the same as "Linked hub".
    {"accessible_connected_server", QT_TRANSLATE_NOOP("global", "Connected hub")},
    //: Screen reader: names a button; the link is a URL.
    {"accessible_copy_share_link", QT_TRANSLATE_NOOP("global", "Copy the sharing link")},
    // 440
    //: Screen reader: names a button.
    {"accessible_delete_permission_button", QT_TRANSLATE_NOOP("global", "Remove this user's permission")},
    //: Screen reader: %1 is a group's name; "Group" is the kind of entry.
    {"accessible_group", QT_TRANSLATE_NOOP("global", "Group: %1")},
    //: Screen reader: names a button.
    {"accessible_open_web_portal", QT_TRANSLATE_NOOP("global", "Open the web portal of Tessaly")},
    //: Screen reader: names one of the two sides of a task.
    {"accessible_pairing_local_machine", QT_TRANSLATE_NOOP("global", "This computer")},
    //: Screen reader: names the other of the two sides of a task: the hub that this computer is linked to; not the same
    //: as "Connected hub".
    {"accessible_pairing_remote_nas", QT_TRANSLATE_NOOP("global", "Linked hub")},
    //: Screen reader: describes a task.
    {"accessible_shared_with_me_session_desc", QT_TRANSLATE_NOOP("global", "Sync task for the files that others share with you")},
    //: Screen reader: names a tab: the tab with the files that were changed lately.
    {"accessible_tray_recently_change_tab", QT_TRANSLATE_NOOP("global", "Recently changed files tab")},
    //: Screen reader: names a page of the tutorial.
    {"accessible_tutorial_2", QT_TRANSLATE_NOOP("global", "Tutorial page 2: sync your files")},
    //: Screen reader: names a page of the tutorial.
    {"accessible_tutorial_3", QT_TRANSLATE_NOOP("global", "Tutorial page 3: keep an eye on changes")},
    //: Screen reader: names a page of the tutorial.
    {"accessible_tutorial_4", QT_TRANSLATE_NOOP("global", "Tutorial page 4: share with others")},
    // 450
    //: Screen reader: names a list of permissions.
    {"accessible_share_permission", QT_TRANSLATE_NOOP("global", "Choose a sharing permission")},
    {"wizard_welcome_mask_desc", QT_TRANSLATE_NOOP("global", "Tessaly keeps the files on your computers and on the hub identical.")},
    //: Fragment, unit after a number field: "Every [4] hours"; the number is mostly more than one.
    {"schedulebkp_run_freq_unit", QT_TRANSLATE_NOOP("global", "hours")},
    //: Label beside the hub's name or the field for its address.
    {"wizard_summary_table_server", QT_TRANSLATE_NOOP("global", "Hub")},
    //: Button on the wizard's last page: opens the user's synced folder.
    {"quick_mode_open_folder_btn", QT_TRANSLATE_NOOP("global", "Open my folder")},
    //: Status, short, of a task.
    {"err_share_nonexist_short", QT_TRANSLATE_NOOP("global", "Shared folder not found")},
    //: Label in the about box; %1 is a version number.
    {"msg_about", QT_TRANSLATE_NOOP("global", "Version %1")},
    {"err_otp_enforced", QT_TRANSLATE_NOOP("global", "The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.")},
    {"msg_share_quotafull", QT_TRANSLATE_NOOP("global", "The quota of the shared folder is used up.")},
    //: Message above a form.
    {"common_forminvalid", QT_TRANSLATE_NOOP("global", "Some fields contain invalid values. Please check the highlighted fields.")},
    // 460
    //: Label beside a list: two-way sync, upload only, download only.
    {"selective_sync_direction_title", QT_TRANSLATE_NOOP("global", "Sync direction")},
    //: Message of a notification.
    {"notify_abnormal", QT_TRANSLATE_NOOP("global", "Something went wrong in one of your tasks. Open the main window for details.")},
    {"advan_mode_set_share_folder_info", QT_TRANSLATE_NOOP("global", "Only shared folders that have been enabled in Tessaly Server are listed here.")},
    {"wizard_access_deny_sync_folder_warning", QT_TRANSLATE_NOOP("global", "You do not have permission to access this folder.")},
    //: Label beside the field for the proxy server's address in the network.
    {"manage_proxy_server_ip", QT_TRANSLATE_NOOP("global", "Address")},
    //: Label of a sharing link, before a number of days or a date: "Expires after [30] days".
    {"sharing_exp_after", QT_TRANSLATE_NOOP("global", "Expires after")},
    //: Menu item: can't be chosen; stands in place of the client's menu items.
    {"context_menu_no_option_available", QT_TRANSLATE_NOOP("global", "No actions available")},
    {"err_auth", QT_TRANSLATE_NOOP("global", "The username or password is incorrect. Please sign in again.")},
    //: Tooltip of a field; "desktop.ini" is an example and stays; Enter is the key.
    {"block_file_name_tool_tip", QT_TRANSLATE_NOOP("global", "Enter a full file name, such as \"desktop.ini\", and press Enter.")},
    {"one_way_download", QT_TRANSLATE_NOOP("global", "Download only")},
    // 470
    {"wizard_share_name_duplicate_warning", QT_TRANSLATE_NOOP("global", "A folder with this name already exists. Please choose another name.")},
    //: Check box of a task's settings.
    {"selective_enable_entire_attribute_check", QT_TRANSLATE_NOOP("global", "Compare all file attributes when looking for changes")},
    //: Label of a sharing link, before a date.
    {"sharing_enable_expire_at", QT_TRANSLATE_NOOP("global", "Valid until")},
    {"common_fieldblank", QT_TRANSLATE_NOOP("global", "This field cannot be left blank.")},
    //: Heading of a part of the page for a sharing link (verb: who may open the link).
    {"sharing_restrict", QT_TRANSLATE_NOOP("global", "Restrict access")},
    {"type_file", QT_TRANSLATE_NOOP("global", "File")},
    //: Check box of the general options.
    {"manage_option_enable_context_menu", QT_TRANSLATE_NOOP("global", "Show sync actions in the context menu of files and folders")},
    //: Message of a task; the service gives each user a home folder.
    {"err_user_home_disabled", QT_TRANSLATE_NOOP("global", "The user home service is disabled on the hub. Please contact your administrator.")},
    //: Message: %1 is the address in the link; keep the tag as it is.
    {"wizard_client_upgrade_failed", QT_TRANSLATE_NOOP("global", "The update failed. Please <a href=\"%1\">download the latest version</a> and install it manually.")},
    //: Button of the page for a sharing link (URL).
    {"sharing_apply_and_copy_button", QT_TRANSLATE_NOOP("global", "Apply and copy link")},
    // 480
    //: Check box of a sharing link: how often it may be opened.
    {"sharing_enable_expire_times", QT_TRANSLATE_NOOP("global", "Limit the number of visits")},
    //: Label of a sharing link, before a date.
    {"sharing_enable_start_at", QT_TRANSLATE_NOOP("global", "Valid from")},
    {"wizard_client_upgrade", QT_TRANSLATE_NOOP("global", "The hub requires a newer version of the client. Do you want to update now?")},
    {"filter_to", QT_TRANSLATE_NOOP("global", "To")},
    {"wizard_remote_not_mounted", QT_TRANSLATE_NOOP("global", "The remote folder is on a volume that is not mounted.")},
    //: Screen reader: names a button.
    {"accessible_info_button", QT_TRANSLATE_NOOP("global", "Show information")},
    //: Screen reader: names a button.
    {"accessible_add_filename_button", QT_TRANSLATE_NOOP("global", "Add a file name")},
    //: Screen reader: names the side of a task on this computer.
    {"accessible_title_local_destination", QT_TRANSLATE_NOOP("global", "Folder on this computer")},
    //: Screen reader: names a list.
    {"accessible_language_button", QT_TRANSLATE_NOOP("global", "Choose a language")},
    //: Screen reader: names a list.
    {"accessible_version_download_description", QT_TRANSLATE_NOOP("global", "List of the file versions that are being downloaded")},
    // 490
    //: Button of a sharing link: sets from when until when it may be opened (verb).
    {"sharing_customize_duration", QT_TRANSLATE_NOOP("global", "Customize the validity period")},
    //: Button: opens the tutorial; %1 is a product name.
    {"general_setting_show_tutorial_quay", QT_TRANSLATE_NOOP("global", "Show the tutorial of %1")},
    //: Screen reader: names a button.
    {"accessible_change_sync_folder_button", QT_TRANSLATE_NOOP("global", "Change the sync folder")},
    //: Screen reader: names the folder on this computer that belongs to a folder on the hub.
    {"accessible_pairing_sync_folder", QT_TRANSLATE_NOOP("global", "Linked sync folder")},
    //: Screen reader: names a button; the history is the list of transfers.
    {"accessible_sync_log_refresh_button", QT_TRANSLATE_NOOP("global", "Refresh the history")},
    //: Screen reader: names a button of a calendar.
    {"accessible_calendar_prev_month", QT_TRANSLATE_NOOP("global", "Previous month")},
    //: Hint in the empty field for a search of the history.
    {"accessible_sync_log_filter_lineedit", QT_TRANSLATE_NOOP("global", "Enter a keyword to search the history")},
    //: Screen reader: names a button.
    {"accessible_add_folder_button", QT_TRANSLATE_NOOP("global", "Add a folder")},
    //: Screen reader: names a calendar.
    {"accessible_calendar", QT_TRANSLATE_NOOP("global", "Calendar")},
    //: Screen reader: names a button of a calendar.
    {"accessible_calendar_next_month", QT_TRANSLATE_NOOP("global", "Next month")},
    // 500
    //: Screen reader: names a list.
    {"accessible_sync_log_category_combobox", QT_TRANSLATE_NOOP("global", "Choose a type of event")},
    //: Screen reader: %1 is the task's name.
    {"accessible_sync_task_session_description", QT_TRANSLATE_NOOP("global", "Sync task \"%1\"")},
    //: Screen reader/Label: the side of a task on the hub.
    {"accessible_title_remote_destination", QT_TRANSLATE_NOOP("global", "Folder on the hub")},
    //: Screen reader: names a window.
    {"accessible_title_settings", QT_TRANSLATE_NOOP("global", "Settings window")},
    //: Screen reader: names a button.
    {"accessible_tutorial_close_button", QT_TRANSLATE_NOOP("global", "Close the tutorial")},
    //: Screen reader: names a button.
    {"accessible_version_download_abort_button", QT_TRANSLATE_NOOP("global", "Cancel this download")},
    //: Screen reader: names a button: the download's line leaves the list, the file stays.
    {"accessible_version_download_delete_button", QT_TRANSLATE_NOOP("global", "Remove this download from the list")},
    {"err_pwd_expired", QT_TRANSLATE_NOOP("global", "Your password has expired. Please change it in the web portal and sign in again.")},
    //: Choice: a role (noun, a person): may open and change; beside Viewer, Previewer, Commenter, Manager.
    {"editor", QT_TRANSLATE_NOOP("global", "Editor")},
    //: Event in the history: what happened to the file (participle; the file was renamed).
    {"history_local_rename", QT_TRANSLATE_NOOP("global", "Renamed on this computer")},
    // 510
    //: Event in the history: what happened to the file (participle; the file was renamed).
    {"history_remote_rename", QT_TRANSLATE_NOOP("global", "Renamed on the hub")},
    //: Message: %1 is a number.
    {"common_maxlengthtext", QT_TRANSLATE_NOOP("global", "Please enter no more than %1 characters.")},
    //: Message: %1 is the name of an account.
    {"wizard_user_different_warning", QT_TRANSLATE_NOOP("global", "This is not the account that the task was created with. Please sign in as \"%1\".")},
    //: Heading of a page about the hub.
    {"server_info", QT_TRANSLATE_NOOP("global", "Hub information")},
    {"err_tunnel_disabled", QT_TRANSLATE_NOOP("global", "The Ferrylink relay service is disabled on the hub.")},
    //: Message: %1 is a file name.
    {"msg_download_fail_long", QT_TRANSLATE_NOOP("global", "\"%1\" could not be downloaded. Please try again later.")},
    {"wizard_auth_error_warning", QT_TRANSLATE_NOOP("global", "Signing in to the hub failed. Please check your username and password.")},
    {"btn_settings", QT_TRANSLATE_NOOP("global", "Settings")},
    //: Heading/Tab: a page, and the tray's list of notifications.
    {"notification_page", QT_TRANSLATE_NOOP("global", "Notifications")},
    //: Fragment in a list of notifications, between a person's name and a file's: "Ann commented on Plan.txt".
    {"notification_page_action_comment", QT_TRANSLATE_NOOP("global", "commented on")},
    // 520
    //: Menu item of a notification: opens what it is about.
    {"notification_page_open_in_portal", QT_TRANSLATE_NOOP("global", "Open in web portal")},
    //: Button: begins to set up what is named beside it (verb).
    {"btn_setup", QT_TRANSLATE_NOOP("global", "Set up")},
    //: Menu item in the tray menu: opens the folder that is synced.
    {"tray_opendir", QT_TRANSLATE_NOOP("global", "Open synced folder")},
    //: Tooltip of a folder; %1 is a product name.
    {"read_only_tooltip_quay", QT_TRANSLATE_NOOP("global", "You only have read access to this folder. %1 will not upload your changes.")},
    {"col_file_type", QT_TRANSLATE_NOOP("global", "Type")},
    //: Message of the wizard's last page; %1 is a product name.
    {"wizard_finish_pairing_desc_quay", QT_TRANSLATE_NOOP("global", "%1 is now linked to the hub and will keep your files in sync.")},
    {"msi_ready_dlg_description", QT_TRANSLATE_NOOP("global", "Setup has collected all the information that it needs.")},
    //: Status, label of the start-up dialog; %1 is the product name; fixed.
    {"desc_tsly_env_preparation_done_quay", QT_TRANSLATE_NOOP("global", "%1 is ready.")},
    //: Message in a box; %1 is a product name.
    {"msg_running_quay", QT_TRANSLATE_NOOP("global", "%1 is already running.")},
    {"filter_from", QT_TRANSLATE_NOOP("global", "From")},
    // 530
    //: Message of the wizard; %1 is a product name.
    {"wizard_welcome_mask_desc_quay", QT_TRANSLATE_NOOP("global", "%1 keeps the files on your computers and on the hub identical.")},
    //: Choice: a right on a shared file: look at it without downloading it, and comment on it (verbs).
    {"preview_commenter", QT_TRANSLATE_NOOP("global", "Preview and comment")},
    //: Message in a box; %1 is a product name.
    {"upgrade_failed_quay", QT_TRANSLATE_NOOP("global", "%1 could not be updated. Please try again later.")},
    {"filter_keyword", QT_TRANSLATE_NOOP("global", "Keyword")},
    {"NSIS_KELVANE_QUAY_INSTALLED_NEWER", QT_TRANSLATE_NOOP("global", "A newer version of Kelvane Quay Client is already installed. Setup will now exit.")},
    {"msg_ssl_change", QT_TRANSLATE_NOOP("global", "The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.")},
    //: Screen reader: describes a page of the wizard.
    {"accessible_create_sync_task_desc", QT_TRANSLATE_NOOP("global", "Choose what to sync with the new task")},
    //: Message: %1 is a product name.
    {"conflict_dropbox_quay", QT_TRANSLATE_NOOP("global", "The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.")},
    {"confirm_lostchange", QT_TRANSLATE_NOOP("global", "Your changes will be lost. Do you want to continue?")},
    //: Screen reader: names the tutorial; %1 is a product name.
    {"accessible_tutorial_description_quay", QT_TRANSLATE_NOOP("global", "Tutorial of %1")},
    // 540
    //: Message: %1 is a product name.
    {"err_autoconn_invalidid_quay", QT_TRANSLATE_NOOP("global", "The Ferrylink ID does not exist, or %1 is not running on the hub.")},
    //: Message: %1 is a product name.
    {"advan_mode_set_share_folder_info_quay", QT_TRANSLATE_NOOP("global", "Only shared folders that have been enabled in %1 are listed here.")},
    //: Check box of the general options; %1 is a product name.
    {"manage_option_enable_startup_quay", QT_TRANSLATE_NOOP("global", "Start %1 when I sign in to this computer")},
    //: Status, label of the start-up dialog; %1 is the product name; fixed.
    {"desc_tsly_env_preparing_quay", QT_TRANSLATE_NOOP("global", "%1 is initializing...")},
    //: Message: %1 is a product name.
    {"err_proto_quay", QT_TRANSLATE_NOOP("global", "The hub and %1 cannot communicate. Please update both to the latest version.")},
    //: Message: %1 is a product name.
    {"err_version_client_quay", QT_TRANSLATE_NOOP("global", "This version of %1 is too old for the hub. Please update it.")},
    //: Status, short, of a task too: the versions of client and hub don't fit together.
    {"err_version_short_quay", QT_TRANSLATE_NOOP("global", "Version mismatch")},
    //: Message: %1 is a product name.
    {"msg_diskfull_quay", QT_TRANSLATE_NOOP("global", "The disk is full. Free up some space on this computer so that %1 can continue.")},
    //: Message: %1 is a product name.
    {"msg_error_quay", QT_TRANSLATE_NOOP("global", "%1 has encountered a problem. Please restart it.")},
    //: Screen reader: names a tab: the tab with the notifications.
    {"accessible_tray_notification_tab", QT_TRANSLATE_NOOP("global", "Notifications tab")},
    // 550
    //: Message: %1 is a product name.
    {"msg_folder_not_empty_quay", QT_TRANSLATE_NOOP("global", "The folder is not empty. %1 will merge its files with those on the hub.")},
    //: Choice of the sync direction: changes are downloaded and never uploaded ("only" goes with "download"); %1 is a
    //: product name.
    {"one_way_sync_download_quay", QT_TRANSLATE_NOOP("global", "Only download changes from %1")},
    //: Message of the wizard's last page; %1 is a product name.
    {"quick_mode_end_msg_quay", QT_TRANSLATE_NOOP("global", "%1 is set up. Open your folder to start working.")},
    //: Screen reader: names a page of the tutorial.
    {"accessible_tutorial_1", QT_TRANSLATE_NOOP("global", "Tutorial page 1: welcome to Tessaly")},
    {"NSIS_KELVANE_QUAY_INSTALLED_CURRENT", QT_TRANSLATE_NOOP("global", "This version of Kelvane Quay Client is already installed. Do you want to install it again?")},
    //: Message of the wizard; %1 is a product name.
    {"wizard_welcome_desc_quay", QT_TRANSLATE_NOOP("global", "Set up %1 to sync and back up the files on this computer.")},
    {"almost_done_quay_server", QT_TRANSLATE_NOOP("global", "Almost done! Your files will soon be available in Tessaly Server.")},
    {"almost_done_local", QT_TRANSLATE_NOOP("global", "Almost done! Your files will soon be available on this computer.")},
    {"filter_search", QT_TRANSLATE_NOOP("global", "Search")},
    {"filter_yesterday", QT_TRANSLATE_NOOP("global", "Yesterday")},
    // 560
    {"msg_fail", QT_TRANSLATE_NOOP("global", "The operation failed. Please try again.")},
    {"wizard_create_kelvane_quay_folder", QT_TRANSLATE_NOOP("global", "A folder named \"Kelvane Quay\" will be created at this location.")},
    {"NSIS_TESSALY_INSTALLED_CURRENT", QT_TRANSLATE_NOOP("global", "This version of Tessaly is already installed. Do you want to install it again?")},
    {"NSIS_TESSALY_INSTALLED_NEWER", QT_TRANSLATE_NOOP("global", "A newer version of Tessaly is already installed. Setup will now exit.")},
    //: Screen reader: names the tutorial.
    {"accessible_tutorial_description", QT_TRANSLATE_NOOP("global", "Tutorial of Tessaly")},
    //: Name of a product; stays as it is.
    {"app_name", QT_TRANSLATE_NOOP("global", "Tessaly")},
    //: Choice: a unit of time in a list, beside a field for the number (plural).
    {"timescale_week", QT_TRANSLATE_NOOP("global", "Weeks")},
    {"conflict_dropbox", QT_TRANSLATE_NOOP("global", "The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.")},
    {"desc_tsly_env_preparation_done", QT_TRANSLATE_NOOP("global", "Tessaly is ready.")},
    //: Status, label of the start-up dialog.
    {"desc_tsly_env_preparing", QT_TRANSLATE_NOOP("global", "Tessaly is initializing...")},
    // 570
    {"err_autoconn_invalidid", QT_TRANSLATE_NOOP("global", "The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.")},
    {"err_version_client", QT_TRANSLATE_NOOP("global", "This version of Tessaly is too old for the hub. Please update it.")},
    //: Label beside a list of rights on a shared file.
    {"share_permission", QT_TRANSLATE_NOOP("global", "Sharing permission")},
    {"err_version_server", QT_TRANSLATE_NOOP("global", "Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.")},
    {"err_version_short", QT_TRANSLATE_NOOP("global", "Version mismatch")},
    //: Button: opens the tutorial.
    {"general_setting_show_tutorial", QT_TRANSLATE_NOOP("global", "Show the tutorial of Tessaly")},
    //: Check box of the general options.
    {"manage_option_enable_startup", QT_TRANSLATE_NOOP("global", "Start Tessaly when I sign in to this computer")},
    {"msg_error", QT_TRANSLATE_NOOP("global", "Tessaly has encountered a problem. Please restart it.")},
    {"msg_finish", QT_TRANSLATE_NOOP("global", "Setup is complete. Your files are now being synced.")},
    //: Message of the wizard's last page.
    {"msg_finish_way", QT_TRANSLATE_NOOP("global", "Click the tray icon at any time to see the status and change the settings.")},
    // 580
    {"msg_folder_not_empty", QT_TRANSLATE_NOOP("global", "The folder is not empty. Tessaly will merge its files with those on the hub.")},
    {"msg_running", QT_TRANSLATE_NOOP("global", "Tessaly is already running.")},
    {"quick_mode_end_msg", QT_TRANSLATE_NOOP("global", "Tessaly is set up. Open your folder to start working.")},
    {"read_only_tooltip", QT_TRANSLATE_NOOP("global", "You only have read access to this folder. Tessaly will not upload your changes.")},
    {"status_desc_version_short", QT_TRANSLATE_NOOP("global", "Version mismatch")},
    //: Menu item in the tray menu.
    {"title_open_tessaly", QT_TRANSLATE_NOOP("global", "Open Tessaly")},
    //: Message in the tray menu; %1 is a version number.
    {"tray_click_to_update", QT_TRANSLATE_NOOP("global", "Version %1 is available. Click here to update.")},
    {"update_pkg_for_selective_sync", QT_TRANSLATE_NOOP("global", "To use selective sync, please ask your administrator to update Tessaly Server on the hub.")},
    //: Button: empties a list or a field (verb).
    {"op_clean", QT_TRANSLATE_NOOP("global", "Clear")},
    //: Column head of a list.
    {"op_date_time", QT_TRANSLATE_NOOP("global", "Date and time")},
    // 590
    //: Message: %1 is a number.
    {"wizard_diskfull_sync_folder_warning", QT_TRANSLATE_NOOP("global", "There is not enough space on this disk. Tessaly needs at least %1 MB.")},
    {"wizard_finish_pairing_desc", QT_TRANSLATE_NOOP("global", "Tessaly is now linked to the hub and will keep your files in sync.")},
    {"wizard_setup_repeat_warning_desc", QT_TRANSLATE_NOOP("global", "Tessaly can be linked to the same hub only once with the same account.")},
    {"wizard_welcome_desc", QT_TRANSLATE_NOOP("global", "Set up Tessaly to sync the files on this computer.")},
    //: Message: the link is to be kept as it is.
    {"wizard_welcome_footer_info", QT_TRANSLATE_NOOP("global", "New to Tessaly? Read the <a href=\"https://help.kelvane.example/tessaly/start\">quick start guide</a> first.")},
    //: Choice: a right on a shared file.
    {"perm_commenter", QT_TRANSLATE_NOOP("global", "Can comment")},
    //: Choice: who may open a sharing link, and what they may do (a sentence without a full stop).
    {"perm_app_ro_desc", QT_TRANSLATE_NOOP("global", "Hub users with the link can view")},
    //: Choice: who may open a sharing link, and what they may do (a sentence without a full stop).
    {"perm_app_rw_desc", QT_TRANSLATE_NOOP("global", "Hub users with the link can edit")},
    //: Choice: who may open a sharing link (a sentence without a full stop).
    {"perm_limit_desc", QT_TRANSLATE_NOOP("global", "Only people who have been invited can open the link")},
    //: Choice: who may open a sharing link, and what they may do (a sentence without a full stop).
    {"perm_public_commenter_desc", QT_TRANSLATE_NOOP("global", "Anyone with the link can comment")},
    // 600
    //: Choice: who may open a sharing link, and what they may do (a sentence without a full stop).
    {"perm_public_ro_desc", QT_TRANSLATE_NOOP("global", "Anyone with the link can view")},
    //: Choice: who may open a sharing link, and what they may do (a sentence without a full stop).
    {"perm_app_commenter_desc", QT_TRANSLATE_NOOP("global", "Hub users with the link can comment")},
    //: Choice: who may open a sharing link, and what they may do (a sentence without a full stop).
    {"perm_public_rw_desc", QT_TRANSLATE_NOOP("global", "Anyone with the link can edit")},
    //: Choice: a right on a shared file: open it, change nothing.
    {"perm_ro", QT_TRANSLATE_NOOP("global", "Can view")},
    //: Choice: a right on a shared folder: change it and give rights to others.
    {"perm_organizer", QT_TRANSLATE_NOOP("global", "Can manage")},
    //: Choice: a right on a shared file.
    {"perm_rw", QT_TRANSLATE_NOOP("global", "Can edit")},
    {"desc_cannot_open_portal", QT_TRANSLATE_NOOP("global", "The web portal cannot be opened. Please check your connection to the hub.")},
    //: Button: opens a field for the names of people to share with.
    {"share_invite", QT_TRANSLATE_NOOP("global", "Invite people")},
    //: Choice: a right on a shared file: none.
    {"perm_na", QT_TRANSLATE_NOOP("global", "No access")},
    {"empty_share", QT_TRANSLATE_NOOP("global", "There are no shared folders.")},
    // 610
    //: Menu item/Button: fetches the file (verb).
    {"op_download", QT_TRANSLATE_NOOP("global", "Download")},
    {"err_public_sharing_disabled", QT_TRANSLATE_NOOP("global", "Public sharing is disabled on the hub.")},
    {"err_sharing_disabled_contact_admin", QT_TRANSLATE_NOOP("global", "Sharing is disabled. Please contact your administrator.")},
    {"tray_rename", QT_TRANSLATE_NOOP("global", "Renamed")},
    //: Menu item: makes an older version of a file the current one (verb).
    {"op_restore", QT_TRANSLATE_NOOP("global", "Restore")},
    //: Message: %1 is a person's name, %2 an account's, %3 a right such as "view" or "edit", %4 the file's name.
    {"tray_request_grida", QT_TRANSLATE_NOOP("global", "%1 (%2) requests %3 access to the Grida spreadsheet \"%4\".")},
    //: Message below the question whether to remove the link (URL).
    {"remove_link_desc", QT_TRANSLATE_NOOP("global", "People who have the link will no longer be able to open the file.")},
    //: Message: %1 is a person's name, %2 the file's; a Grida spreadsheet is a whole file, not one sheet.
    {"tray_share_grida", QT_TRANSLATE_NOOP("global", "%1 shared the Grida spreadsheet \"%2\" with you.")},
    //: Status: stands in place of an empty list.
    {"common_no_data", QT_TRANSLATE_NOOP("global", "No data")},
    //: Button/Menu item: opens the page on which an item is shared (verb).
    {"common_share", QT_TRANSLATE_NOOP("global", "Share")},
    // 620
    {"err_dir_file_not_exist", QT_TRANSLATE_NOOP("global", "The file or folder does not exist.")},
    {"err_permission", QT_TRANSLATE_NOOP("global", "You do not have permission to perform this action.")},
    //: Choice of a list of days on which a backup runs: Saturday and Sunday.
    {"schedulebkp_weekend", QT_TRANSLATE_NOOP("global", "Weekends")},
    //: Choice: who may open a sharing link: everyone who has an account on the hub.
    {"perm_app", QT_TRANSLATE_NOOP("global", "Hub users")},
    //: Name of the user's folder; stays as it is.
    {"my_quay", QT_TRANSLATE_NOOP("global", "My Quay")},
    //: Choice: who may open a sharing link.
    {"perm_limit", QT_TRANSLATE_NOOP("global", "Invited people only")},
    //: Tab of the settings: how things look.
    {"display_tab", QT_TRANSLATE_NOOP("global", "Display")},
    //: Choice: who may open a sharing link.
    {"perm_public", QT_TRANSLATE_NOOP("global", "Anyone with the link")},
    {"btn_change", QT_TRANSLATE_NOOP("global", "Change")},
    //: Check box of a sharing link.
    {"enable_expiration", QT_TRANSLATE_NOOP("global", "Set an expiration date")},
    // 630
    //: Heading of a list: those that an item is shared with.
    {"share_user_group", QT_TRANSLATE_NOOP("global", "Users and groups")},
    //: Name of a product; stays as it is.
    {"app_name_quay", QT_TRANSLATE_NOOP("global", "Kelvane Quay")},
    {"display_setting_bw_desc", QT_TRANSLATE_NOOP("global", "Use a black-and-white icon in the system tray")},
    //: Check box of the display settings.
    {"display_setting_local_folder_desc", QT_TRANSLATE_NOOP("global", "Show the synced folders in the sidebar of the file manager")},
    {"tutorial_ver2_p1_desc", QT_TRANSLATE_NOOP("global", "Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.")},
    //: Label below a picture of a tutorial page.
    {"tutorial_ver2_p1_pic_pc", QT_TRANSLATE_NOOP("global", "Your computer")},
    //: Heading of a tutorial page, alone (no verb).
    {"tutorial_ver2_p1_title", QT_TRANSLATE_NOOP("global", "All your files, everywhere")},
    //: Heading of a tutorial page, an invitation (verb).
    {"tutorial_ver2_p2_title", QT_TRANSLATE_NOOP("global", "Save space with on-demand sync")},
    {"tutorial_ver2_p2_desc", QT_TRANSLATE_NOOP("global", "All files show up on your computer, but they only take up space once you open them.")},
    //: Label below a picture of a tutorial page: an icon that says that the file lies on the hub alone.
    {"tutorial_ver2_p2_pic_online", QT_TRANSLATE_NOOP("global", "Online only")},
    // 640
    //: Label below a picture of a tutorial page: an icon that says that the file was downloaded.
    {"tutorial_ver2_p2_pic_local", QT_TRANSLATE_NOOP("global", "Available on this computer")},
    //: Fragment in a list of notifications, between a person's name and a file's: "Ann mentioned you in Plan.txt".
    {"notification_page_action_mentioned", QT_TRANSLATE_NOOP("global", "mentioned you in")},
    //: Fragment in a list of notifications, between a person's name and a file's: "Ann requested access to Plan.txt".
    {"notification_page_action_request_access", QT_TRANSLATE_NOOP("global", "requested access to")},
    //: Message: %1 is a person's name, %2 the file's.
    {"tray_share_file", QT_TRANSLATE_NOOP("global", "%1 shared the file \"%2\" with you.")},
    //: Fragment in a list of notifications, after a person's name and before a file's: "Ann shared with you Plan.txt".
    {"notification_page_action_shared", QT_TRANSLATE_NOOP("global", "shared with you")},
    {"notification_page_sync", QT_TRANSLATE_NOOP("global", "Sync")},
    //: Choice of a filter of notifications: those about files that were shared with the user.
    {"notification_page_shared", QT_TRANSLATE_NOOP("global", "Shared")},
    //: Choice of a filter of notifications: someone asks for access (noun).
    {"notification_request_access", QT_TRANSLATE_NOOP("global", "Access request")},
    //: Choice of a filter of notifications (noun, plural).
    {"notification_page_comment", QT_TRANSLATE_NOOP("global", "Comments")},
    //: Heading of a page: files that others share with the user.
    {"shared_with_me", QT_TRANSLATE_NOOP("global", "Shared with me")},
    // 650
    //: Choice of a filter of notifications: someone wrote the user's name in a comment (noun, plural).
    {"notification_page_mentioned", QT_TRANSLATE_NOOP("global", "Mentions")},
    {"notification_tab", QT_TRANSLATE_NOOP("global", "Notifications")},
    //: Choice of the sync direction: from this computer to the hub alone, nothing is downloaded.
    {"one_way_upload", QT_TRANSLATE_NOOP("global", "Upload only")},
    //: Check box of a task's settings and filters.
    {"dont_remove_server_when_local_remove", QT_TRANSLATE_NOOP("global", "Keep files on the hub when they are deleted from this computer")},
    //: Button: puts off what was offered.
    {"btn_later", QT_TRANSLATE_NOOP("global", "Later")},
    //: Message: %1 is a file name.
    {"tray_notification_download_finished", QT_TRANSLATE_NOOP("global", "\"%1\" has been downloaded.")},
    {"tray_notification_title", QT_TRANSLATE_NOOP("global", "Notifications")},
    {"tray_synced_on_all_devices", QT_TRANSLATE_NOOP("global", "Your files are up to date on all your devices.")},
    //: Message: %1 is the address in the link; keep the tag as it is.
    {"tutorial_access_web_portal", QT_TRANSLATE_NOOP("global", "Your files are also available in the <a href=\"%1\">web portal</a>.")},
    {"tutorial_congrats", QT_TRANSLATE_NOOP("global", "Congratulations!")},
    // 660
    {"connection_username", QT_TRANSLATE_NOOP("global", "Username")},
    {"tutorial_congrats_sub", QT_TRANSLATE_NOOP("global", "You are ready to work with Tessaly.")},
    //: Choice of the wizard, second of two: files that others share with the user.
    {"wizard_shared_with_me_enable_later", QT_TRANSLATE_NOOP("global", "Enable later")},
    //: Choice of the wizard, first of two: files that others share with the user.
    {"wizard_shared_with_me_enable_now", QT_TRANSLATE_NOOP("global", "Enable now")},
    //: Heading of a wizard page.
    {"wizard_shared_with_me_title", QT_TRANSLATE_NOOP("global", "Files shared with you")},
    //: Heading of a wizard page, or a button (verb).
    {"create_sync_task_title", QT_TRANSLATE_NOOP("global", "Create a sync task")},
    //: Choice of the wizard: which files a new task syncs (team: a group of people).
    {"create_sync_task_general", QT_TRANSLATE_NOOP("global", "My files and team folders")},
    //: Choice of the wizard: which files a new task syncs.
    {"create_sync_task_shared_with_me", QT_TRANSLATE_NOOP("global", "Files shared with me")},
    {"err_hub_not_match", QT_TRANSLATE_NOOP("global", "This is not the hub that Tessaly was linked to. Please link this computer again.")},
    {"err_proto", QT_TRANSLATE_NOOP("global", "The hub and Tessaly cannot communicate. Please update both to the latest version.")},
    // 670
    //: Heading of a tutorial page, an invitation (verb).
    {"tutorial_ver2_p3_title", QT_TRANSLATE_NOOP("global", "Never miss a change")},
    {"msg_diskfull", QT_TRANSLATE_NOOP("global", "The disk is full. Free up some space on this computer so that Tessaly can continue.")},
    //: Choice: a type of folder on the hub (team: a group of people).
    {"team_folder", QT_TRANSLATE_NOOP("global", "Team folder")},
    //: Choice of the sync direction: changes are downloaded and never uploaded ("only" goes with "download").
    {"one_way_sync_download", QT_TRANSLATE_NOOP("global", "Only download changes from Tessaly Server")},
    {"upgrade_failed", QT_TRANSLATE_NOOP("global", "Tessaly could not be updated. Please try again later.")},
    {"tutorial_ver2_p3_desc", QT_TRANSLATE_NOOP("global", "The tray icon shows what is being synced and tells you when others share files with you or comment on them.")},
    //: Heading of a tutorial page, an invitation (verb: within seconds).
    {"tutorial_ver2_p4_title", QT_TRANSLATE_NOOP("global", "Share in seconds")},
    {"tutorial_ver2_p4_desc", QT_TRANSLATE_NOOP("global", "Right-click a file or folder, create a link, and decide who may open it and for how long.")},
    //: Message: %1 is a person's name, %2 an account's, %3 a right such as "view" or "edit", %4 the file's name.
    {"tray_request_pictra", QT_TRANSLATE_NOOP("global", "%1 (%2) requests %3 access to the Pictra presentation \"%4\".")},
    //: Message: %1 is a person's name, %2 the folder's.
    {"tray_share_dir", QT_TRANSLATE_NOOP("global", "%1 shared the folder \"%2\" with you.")},
    // 680
    //: Message: %1 is a person's name, %2 an account's, %3 a right such as "view" or "edit", %4 the folder's name.
    {"tray_request_dir", QT_TRANSLATE_NOOP("global", "%1 (%2) requests %3 access to the folder \"%4\".")},
    //: Message: %1 is a person's name, %2 an account's, %3 a right such as "view" or "edit", %4 the file's name.
    {"tray_request_file", QT_TRANSLATE_NOOP("global", "%1 (%2) requests %3 access to the file \"%4\".")},
    //: Message: %1 is a person's name, %2 an account's, %3 a right such as "view" or "edit", %4 the file's name.
    {"tray_request_folia", QT_TRANSLATE_NOOP("global", "%1 (%2) requests %3 access to the Folia document \"%4\".")},
    //: Message: %1 is a person's name, %2 the file's.
    {"tray_share_folia", QT_TRANSLATE_NOOP("global", "%1 shared the Folia document \"%2\" with you.")},
    //: Message: %1 is a person's name, %2 the file's.
    {"tray_share_pictra", QT_TRANSLATE_NOOP("global", "%1 shared the Pictra presentation \"%2\" with you.")},
    {"main_queue_preparing", QT_TRANSLATE_NOOP("global", "Preparing...")},
    //: Heading of a page: who may see what.
    {"privacy_setting", QT_TRANSLATE_NOOP("global", "Privacy settings")},
    //: Check box of a sharing link.
    {"enable_password", QT_TRANSLATE_NOOP("global", "Protect with a password")},
    //: Choice of a list of days on which a backup runs: Monday to Friday.
    {"schedulebkp_weekdays", QT_TRANSLATE_NOOP("global", "Weekdays")},
    {"btn_pause", QT_TRANSLATE_NOOP("global", "Pause")},
    // 690
    //: Message: %1 is the folder's name.
    {"wizard_create_shared_with_me_folder", QT_TRANSLATE_NOOP("global", "A folder named \"%1\" will be created for the files that others share with you.")},
    //: Menu item/Label of the file manager: the files are downloaded and stay; also below a picture of it.
    {"tutorial_ver2_p2_pic_pin", QT_TRANSLATE_NOOP("global", "Always keep on this computer")},
    //: Choice of a filter: no type is left out (belongs to "type").
    {"type_any", QT_TRANSLATE_NOOP("global", "Any")},
    {"btn_resume", QT_TRANSLATE_NOOP("global", "Resume")},
    {"connection_password", QT_TRANSLATE_NOOP("global", "Password")},
    {"main_status_error", QT_TRANSLATE_NOOP("global", "Error")},
    //: Column head of the list of files that are being transferred (noun).
    {"main_queue_column_progress", QT_TRANSLATE_NOOP("global", "Progress")},
    //: Status of a task.
    {"main_status_connecting", QT_TRANSLATE_NOOP("global", "Connecting...")},
    //: Choice of the wizard: what kind of task to create (noun).
    {"wizard_task_select_sync_title", QT_TRANSLATE_NOOP("global", "Sync task")},
    //: Message of a choice.
    {"schedulebkp_realtime_backup_desc", QT_TRANSLATE_NOOP("global", "Files are backed up as soon as they change.")},
    // 700
    //: Label beside a field: the list below shows what matches (noun).
    {"filter_label_text", QT_TRANSLATE_NOOP("global", "Filter")},
    //: Message of a choice.
    {"schedulebkp_scheduled_backup_desc", QT_TRANSLATE_NOOP("global", "Files are backed up at the times that you set.")},
    //: Message: %1 is a number that counts down.
    {"auto_shutdown_confirm", QT_TRANSLATE_NOOP("global", "The backup is complete. The computer will shut down in %1 seconds.")},
    //: Choice of the wizard: what kind of task to create (noun).
    {"wizard_task_select_backup_title", QT_TRANSLATE_NOOP("global", "Backup task")},
    //: Label above a row of check boxes with the days of the week (not dates).
    {"schedulebkp_backup_schedule_run_on", QT_TRANSLATE_NOOP("global", "Run on the following days")},
    //: Heading of a wizard page (verb).
    {"wizard_connection_tonas_title", QT_TRANSLATE_NOOP("global", "Connect to the hub")},
    {"backup_welcome_desc", QT_TRANSLATE_NOOP("global", "Protect the files on this computer by backing them up to the hub.")},
    //: Message of a choice; what stands before the colon is its name.
    {"backup_task_mode_manual_info", QT_TRANSLATE_NOOP("global", "Manual: the backup runs only when you start it.")},
    {"get_file_link", QT_TRANSLATE_NOOP("global", "Get link")},
    //: Label beside a field for a time of day: when a backup starts (noun).
    {"schedulebkp_backup_schedule_start_time", QT_TRANSLATE_NOOP("global", "Start time")},
    // 710
    //: Label beside a list: how often a backup runs (noun).
    {"schedulebkp_backup_schedule_freq", QT_TRANSLATE_NOOP("global", "Frequency")},
    //: Label beside a date and time: when the backup came to its end last (a moment, not a duration).
    {"schedulebkp_backup_schedule_last_end_time", QT_TRANSLATE_NOOP("global", "Last end time")},
    //: Label beside a date and time: when the backup ran last (a moment, not a duration).
    {"schedulebkp_backup_schedule_last_run_time", QT_TRANSLATE_NOOP("global", "Last run time")},
    //: Choice: a role (noun, a person): may open and comment; beside Viewer, Previewer, Editor, Manager.
    {"commenter", QT_TRANSLATE_NOOP("global", "Commenter")},
    //: Tooltip of the button beside a sharing link (URL).
    {"sharelink_manage_tooltip", QT_TRANSLATE_NOOP("global", "Change who can open this link")},
    //: Status of a task; %1 is a date and time.
    {"main_desc_last_upload", QT_TRANSLATE_NOOP("global", "Last upload: %1")},
    //: Heading of a page.
    {"main_task_setting", QT_TRANSLATE_NOOP("global", "Task settings")},
    //: Message of a choice; what stands before the colon is its name.
    {"backup_task_mode_continuous_info", QT_TRANSLATE_NOOP("global", "Continuous: files are backed up whenever they change.")},
    //: Menu item: opens the folder in the system's program for files.
    {"btn_open_explorer", QT_TRANSLATE_NOOP("global", "Open in file manager")},
    {"perm_delete", QT_TRANSLATE_NOOP("global", "Remove")},
    // 720
    //: Message below an end time that is earlier in the day than the start time.
    {"schedulebkp_next_day_desc", QT_TRANSLATE_NOOP("global", "The time is on the following day.")},
    {"err_get_sharing_info", QT_TRANSLATE_NOOP("global", "The sharing information could not be retrieved.")},
    //: Label beside the path of the folder on the hub that backups are stored in (a place, not a purpose).
    {"backup_chooser_destination", QT_TRANSLATE_NOOP("global", "Backup destination")},
    //: Message of a choice; "Back up now" is the text of a button.
    {"schedulebkp_manual_backup_desc", QT_TRANSLATE_NOOP("global", "Files are backed up when you click Back up now.")},
    //: Check box of a sharing link.
    {"allow_download", QT_TRANSLATE_NOOP("global", "Allow downloads")},
    //: Message of a choice; what stands before the colon is its name.
    {"backup_task_mode_schedule_info", QT_TRANSLATE_NOOP("global", "Scheduled: the backup runs at the times that you set.")},
    //: Heading of a page: the days and times of the backup; not the same as "Backup plan".
    {"schedulebkp_backup_schedule_title", QT_TRANSLATE_NOOP("global", "Backup schedule")},
    //: Choice: a role (noun, a person): may change everything and give rights; beside Viewer, Previewer, Commenter,
    //: Editor.
    {"manager", QT_TRANSLATE_NOOP("global", "Manager")},
    //: Choice: a role (noun, a person): may look at a file without downloading it; beside Viewer, Commenter, Editor,
    //: Manager.
    {"previewer", QT_TRANSLATE_NOOP("global", "Previewer")},
    //: Heading of a wizard page, or a button (verb).
    {"backup_task_create", QT_TRANSLATE_NOOP("global", "Create a backup task")},
    // 730
    {"setting_filter_table_desc", QT_TRANSLATE_NOOP("global", "Files whose names or extensions are listed here will be skipped.")},
    //: Check box of a task's settings (verb: temporary files are synced too).
    {"sync_temp_file", QT_TRANSLATE_NOOP("global", "Sync temporary files")},
    {"wizard_task_select_backup_desc", QT_TRANSLATE_NOOP("global", "Copy files from this computer to the hub, at once or on a schedule.")},
    {"schedulebkp_choose_mode_description", QT_TRANSLATE_NOOP("global", "Choose when the files are backed up.")},
    {"backup_chooser_no_folder_selected", QT_TRANSLATE_NOOP("global", "Please select at least one folder to back up.")},
    //: Status of a task; %1 is a number, %2 a size with its unit, %3 the name of a folder or hub, %4 a date.
    {"main_backup_information_desc", QT_TRANSLATE_NOOP("global", "%1 files (%2) backed up to \"%3\" on %4")},
    {"main_status_pause", QT_TRANSLATE_NOOP("global", "Paused")},
    {"wizard_summary_table_remote_title", QT_TRANSLATE_NOOP("global", "Folder on the hub")},
    //: Heading of the page with what was transferred (noun).
    {"history_page_title", QT_TRANSLATE_NOOP("global", "History")},
    //: Button of the first page: sets up a backup task.
    {"first_page_backup_start", QT_TRANSLATE_NOOP("global", "Start backing up")},
    // 740
    {"backup_rule_desc", QT_TRANSLATE_NOOP("global", "Files and folders that match these rules will not be backed up.")},
    //: Status: stands in place of a path.
    {"folder_chooser_not_select_desc", QT_TRANSLATE_NOOP("global", "No folder selected")},
    //: Menu item of the file manager: the files stay on the hub alone, so that they take no space here.
    {"context_menu_dehydrate", QT_TRANSLATE_NOOP("global", "Free up space")},
    {"context_menu_pin_to_local", QT_TRANSLATE_NOOP("global", "Always keep on this computer")},
    //: Menu item of the file manager: the opposite of "Always keep on this computer".
    {"context_menu_unpin", QT_TRANSLATE_NOOP("global", "Stop keeping on this computer")},
    //: Choice of a list of days on which a backup runs: days of the week that the user chooses.
    {"schedulebkp_backup_schedule_cust_days", QT_TRANSLATE_NOOP("global", "Selected days")},
    //: Label before a list: what the computer does then, such as "Shut down the computer".
    {"schedulebkp_when_done", QT_TRANSLATE_NOOP("global", "When the backup is done")},
    //: Message: %1 is the computer's name.
    {"treedialog_pcname_desc", QT_TRANSLATE_NOOP("global", "Select a folder on \"%1\".")},
    {"treedialog_server_desc", QT_TRANSLATE_NOOP("global", "Select a folder on the hub.")},
    {"setting_filter_max_size", QT_TRANSLATE_NOOP("global", "Maximum file size")},
    // 750
    //: Fragment before a number field and its unit: "Every [4] hours".
    {"bkp_freq_unit_every", QT_TRANSLATE_NOOP("global", "Every")},
    //: Check box of a task's filters (period: the sign "." before a name).
    {"setting_filter_point_prefix", QT_TRANSLATE_NOOP("global", "Skip files and folders whose names start with a period")},
    //: Button of the first page: sets up a sync task.
    {"first_page_sync_start", QT_TRANSLATE_NOOP("global", "Start syncing")},
    {"backup_err_ssl_verify_fail", QT_TRANSLATE_NOOP("global", "The backup has stopped because the SSL certificate of the hub could not be verified.")},
    {"wizard_register_session_failed", QT_TRANSLATE_NOOP("global", "The task could not be registered on the hub. Please try again.")},
    {"backup_err_hub_change", QT_TRANSLATE_NOOP("global", "The backup has stopped because the hub at this address has changed.")},
    {"backup_err_proto", QT_TRANSLATE_NOOP("global", "The backup has stopped because the hub and the client cannot communicate. Please update both.")},
    {"backup_err_version_client", QT_TRANSLATE_NOOP("global", "The backup has stopped because this version of Tessaly is too old for the hub.")},
    //: Message: %1 is a version number.
    {"Invalid_client_ver_desc", QT_TRANSLATE_NOOP("global", "Please update Tessaly to version %1 or later.")},
    {"authentication_err_desc", QT_TRANSLATE_NOOP("global", "Please check your username and password, then sign in again.")},
    // 760
    {"connection_error_desc", QT_TRANSLATE_NOOP("global", "Please check that the hub is turned on and that this computer is connected to the network.")},
    {"denied_access_IPaddr_desc", QT_TRANSLATE_NOOP("global", "The hub has blocked the IP address of this computer. Please contact your administrator.")},
    {"invalid_certificate_err_desc", QT_TRANSLATE_NOOP("global", "The SSL certificate of the hub is not valid. Please contact your administrator.")},
    {"invalid_software_ver_desc", QT_TRANSLATE_NOOP("global", "Please ask your administrator to update Tessaly Server on the hub.")},
    //: Status of a task.
    {"main_status_not_backup_yet", QT_TRANSLATE_NOOP("global", "Not backed up yet")},
    {"wizard_task_select_sync_desc", QT_TRANSLATE_NOOP("global", "Keep a folder on this computer and a folder on the hub identical.")},
    //: Link: opens a page of the help; keep the tag as it is.
    {"learn_more", QT_TRANSLATE_NOOP("global", "<a href=\"https://help.kelvane.example/client\">Learn more</a>")},
    {"schedulebkp_set_plan_description", QT_TRANSLATE_NOOP("global", "Choose the days and times at which the backup runs.")},
    //: Check box of a backup's schedule.
    {"schedulebkp_do_missing_backup", QT_TRANSLATE_NOOP("global", "Run missed backups as soon as possible")},
    //: Message of the wizard; the sides are this computer and the hub.
    {"wizard_setsyncfolder_desc", QT_TRANSLATE_NOOP("global", "Choose a folder on each side.")},
    // 770
    {"wizard_connection_setting_desc", QT_TRANSLATE_NOOP("global", "Enter the address of the hub and your account.")},
    {"wizard_summary_desc", QT_TRANSLATE_NOOP("global", "Please check the settings of the new task.")},
    //: Column head in the wizard's summary: the place of a folder.
    {"wizard_summary_table_path", QT_TRANSLATE_NOOP("global", "Path")},
    {"backup_err_auth", QT_TRANSLATE_NOOP("global", "The backup has stopped because signing in to the hub failed.")},
    {"invalid_package_ver_desc", QT_TRANSLATE_NOOP("global", "The version of the package on the hub is not supported. Please ask your administrator to update it.")},
    {"backup_err_ip_not_allowed", QT_TRANSLATE_NOOP("global", "The backup has stopped because the hub has blocked the IP address of this computer.")},
    {"backup_err_version_server", QT_TRANSLATE_NOOP("global", "The backup has stopped because the package on the hub is too old for this client.")},
    //: Message: to clear is to take the check mark away.
    {"backup_chooser_have_fakenode", QT_TRANSLATE_NOOP("global", "Some of the selected folders no longer exist. Clear them to continue.")},
    //: Heading of the state of a task: it may upload alone or download alone.
    {"bkp_title_err_sync_direction_mismatch", QT_TRANSLATE_NOOP("global", "Sync direction mismatch")},
    {"msi_ready_dlg_text_quay", QT_TRANSLATE_NOOP("global", "Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.")},
    // 780
    //: Heading of a wizard page (verb).
    {"setup_choose_task_type", QT_TRANSLATE_NOOP("global", "Choose a type of task")},
    {"setup_select_task_sync_desc", QT_TRANSLATE_NOOP("global", "Work with the same files on all your computers.")},
    {"setup_select_task_backup_desc", QT_TRANSLATE_NOOP("global", "Keep a safe copy of your files on the hub.")},
    {"setup_connect_to_nas", QT_TRANSLATE_NOOP("global", "Connect to the hub")},
    {"bkp_wizard_connection_setting_desc", QT_TRANSLATE_NOOP("global", "Sign in to the hub that will store your backups.")},
    //: Heading of a wizard page (verb).
    {"setup_set_sync_folder_title", QT_TRANSLATE_NOOP("global", "Set up your sync folders")},
    {"bkp_desc_diskfull", QT_TRANSLATE_NOOP("global", "Please free up some space on the disk of this computer.")},
    {"setup_remote_folder_desc", QT_TRANSLATE_NOOP("global", "Choose the folder on the hub that you want to sync.")},
    {"setup_enable_on_demand_sync_checkbox_desc", QT_TRANSLATE_NOOP("global", "Files are downloaded only when you open them, which saves space on this computer.")},
    {"setup_on_demand_sync_checkbox_disabled_desc", QT_TRANSLATE_NOOP("global", "On-demand sync is not available for the selected folder or the operating system of this computer.")},
    // 790
    //: Heading of the state of a task.
    {"bkp_title_err_share_not_mounted", QT_TRANSLATE_NOOP("global", "Shared folder not mounted")},
    //: Choice of the sync direction: changes are uploaded and never downloaded ("only" goes with "upload"); %1 is a
    //: product name.
    {"one_way_sync_upload_to_server_quay", QT_TRANSLATE_NOOP("global", "Only upload changes to %1")},
    //: Check box of a page of the settings; the user speaks.
    {"shared_with_me_tab_enable_checkbox_label", QT_TRANSLATE_NOOP("global", "Sync the files that others share with me")},
    //: Check box of a backup task (verb: temporary files are backed up too).
    {"backup_temp_file", QT_TRANSLATE_NOOP("global", "Back up temporary files")},
    {"shared_with_me_tab_enable_checkbox_desc", QT_TRANSLATE_NOOP("global", "Files that others share with you will appear in a folder of their own on this computer.")},
    //: Label beside the address of the hub's web pages.
    {"web_portal_label", QT_TRANSLATE_NOOP("global", "Web portal")},
    //: Heading of the state of a task.
    {"bkp_title_quotafull", QT_TRANSLATE_NOOP("global", "Storage quota used up")},
    //: Heading of the state of a task: the hub offers no home folders.
    {"bkp_title_err_user_home_disabled", QT_TRANSLATE_NOOP("global", "Home folder disabled")},
    //: Day in a narrow row: a day of the week.
    {"bkp_summary_mon", QT_TRANSLATE_NOOP("global", "Mon")},
    //: Day in a narrow row: a day of the week.
    {"bkp_summary_thur", QT_TRANSLATE_NOOP("global", "Thu")},
    // 800
    //: Day in a narrow row: a day of the week.
    {"bkp_summary_sat", QT_TRANSLATE_NOOP("global", "Sat")},
    {"bkp_desc_err_user_home_disabled", QT_TRANSLATE_NOOP("global", "The user home service is disabled on the hub. Please contact your administrator.")},
    //: Heading of the state of a task.
    {"bkp_title_local_folder_miss", QT_TRANSLATE_NOOP("global", "Local folder not found")},
    {"bkp_desc_err_init_failed", QT_TRANSLATE_NOOP("global", "The task could not be started. Please restart the application.")},
    {"bkp_desc_err_share_not_mounted", QT_TRANSLATE_NOOP("global", "The shared folder of this task is not mounted on the hub. Please contact your administrator.")},
    {"bkp_title_err_share_perm", QT_TRANSLATE_NOOP("global", "Permission denied")},
    {"bkp_desc_err_share_perm", QT_TRANSLATE_NOOP("global", "You no longer have permission to access the shared folder of this task.")},
    //: Heading of the state of a task: a disk drive of this computer.
    {"bkp_title_err_syncfolder_not_mounted", QT_TRANSLATE_NOOP("global", "Drive not connected")},
    //: Message: %1 is a product name.
    {"almost_done_quay_server_quay", QT_TRANSLATE_NOOP("global", "Almost done! Your files will soon be available in %1.")},
    {"setting_filter_zero_desc", QT_TRANSLATE_NOOP("global", "Enter 0 to set no limit.")},
    // 810
    //: Day in a narrow row: a day of the week.
    {"bkp_summary_fri", QT_TRANSLATE_NOOP("global", "Fri")},
    //: Column head of the list of people that an item is shared with: Viewer, Editor and so on.
    {"role", QT_TRANSLATE_NOOP("global", "Role")},
    //: Day in a narrow row: a day of the week.
    {"bkp_summary_sun", QT_TRANSLATE_NOOP("global", "Sun")},
    //: Day in a narrow row: a day of the week.
    {"bkp_summary_tues", QT_TRANSLATE_NOOP("global", "Tue")},
    //: Day in a narrow row: a day of the week.
    {"bkp_summary_wed", QT_TRANSLATE_NOOP("global", "Wed")},
    //: Choice: a day of the week.
    {"friday", QT_TRANSLATE_NOOP("global", "Friday")},
    //: Choice: a day of the week.
    {"monday", QT_TRANSLATE_NOOP("global", "Monday")},
    //: Choice: a day of the week.
    {"saturday", QT_TRANSLATE_NOOP("global", "Saturday")},
    //: Choice: a day of the week.
    {"sunday", QT_TRANSLATE_NOOP("global", "Sunday")},
    //: Choice: a day of the week.
    {"thursday", QT_TRANSLATE_NOOP("global", "Thursday")},
    // 820
    //: Choice: a day of the week.
    {"tuesday", QT_TRANSLATE_NOOP("global", "Tuesday")},
    //: Choice: a day of the week.
    {"wednesday", QT_TRANSLATE_NOOP("global", "Wednesday")},
    //: Choice of the installer, second of two; the user speaks.
    {"msi_eula_dlg_reject", QT_TRANSLATE_NOOP("global", "I do not accept the license agreement")},
    //: Heading of the state of a task.
    {"bkp_title_diskfull", QT_TRANSLATE_NOOP("global", "Disk full")},
    //: Heading of the state of a task.
    {"bkp_title_err_init_failed", QT_TRANSLATE_NOOP("global", "Initialization failed")},
    {"download", QT_TRANSLATE_NOOP("global", "Download")},
    {"bkp_desc_err_sync_direction_mismatch", QT_TRANSLATE_NOOP("global", "The sync direction does not match your permissions on the remote folder.")},
    {"bkp_desc_err_syncfolder_not_mounted", QT_TRANSLATE_NOOP("global", "The drive that holds the local folder is not connected.")},
    {"bkp_desc_local_folder_miss", QT_TRANSLATE_NOOP("global", "The local folder may have been moved, renamed, or deleted.")},
    {"setting_option_language_default", QT_TRANSLATE_NOOP("global", "System default")},
    // 830
    //: Heading of the state of a task.
    {"bkp_title_msg_share_quotafull", QT_TRANSLATE_NOOP("global", "Shared folder quota used up")},
    {"bkp_desc_msg_share_quotafull", QT_TRANSLATE_NOOP("global", "The quota of the shared folder is used up. Please contact your administrator.")},
    //: Heading of the state of a task.
    {"bkp_title_remote_folder_nonexist", QT_TRANSLATE_NOOP("global", "Remote folder not found")},
    {"bkp_desc_quotafull", QT_TRANSLATE_NOOP("global", "Your storage quota on the hub is used up. Please free up some space and try again.")},
    {"bkp_desc_remote_folder_nonexist", QT_TRANSLATE_NOOP("global", "The remote folder may have been moved, renamed, or deleted.")},
    //: Label beside a list: what people with the link (URL) may do.
    {"share_link_perm", QT_TRANSLATE_NOOP("global", "Link permission")},
    {"btn_apply", QT_TRANSLATE_NOOP("global", "Apply")},
    //: Status of a task; %1 is a date and time.
    {"schedulebkp_next_backup_time", QT_TRANSLATE_NOOP("global", "Next backup: %1")},
    //: Label of a task: on which days and at which times, as a whole; not the same as "Backup schedule".
    {"schedulebkp_backup_plan", QT_TRANSLATE_NOOP("global", "Backup plan")},
    //: Label above a field with a URL (noun).
    {"sharing_link", QT_TRANSLATE_NOOP("global", "Sharing link")},
    // 840
    //: Button: shows the URL to an item (verb and noun: share the link).
    {"share_link", QT_TRANSLATE_NOOP("global", "Share link")},
    //: Message: %1 is a product name, %2 and %3 are version numbers.
    {"quay_backup_server_version_not_support", QT_TRANSLATE_NOOP("global", "Backup tasks require %1 %2 or later on the hub. The installed version is %3.")},
    {"err_link_same_hub", QT_TRANSLATE_NOOP("global", "This computer is already linked to this hub with the same account.")},
    //: Status: stands in place of a list that is on its way.
    {"manage_share_loading", QT_TRANSLATE_NOOP("global", "Loading the shared folders...")},
    {"msg_network_drive_watch", QT_TRANSLATE_NOOP("global", "Changes on network drives cannot be detected at once. They will be synced with a delay.")},
    {"msg_welcome", QT_TRANSLATE_NOOP("global", "Welcome to Tessaly!")},
    {"quick_mode_finish_page_more_detail", QT_TRANSLATE_NOOP("global", "Click the Tessaly icon in the system tray to change the settings.")},
    //: Message: %1 is a product name.
    {"quick_mode_finish_page_more_detail_quay", QT_TRANSLATE_NOOP("global", "Click the icon of %1 in the system tray to change the settings.")},
    {"status_desc_diskfull", QT_TRANSLATE_NOOP("global", "Synchronization has stopped because a volume of the hub is full.")},
    {"status_desc_errversion_server", QT_TRANSLATE_NOOP("global", "The package on the hub is too old for the client.")},
    // 850
    //: Status, shown while this computer is being linked to the hub.
    {"status_desc_linking", QT_TRANSLATE_NOOP("global", "Linking to the hub...")},
    {"status_desc_uptodate", QT_TRANSLATE_NOOP("global", "All files are up to date.")},
    {"connection_server", QT_TRANSLATE_NOOP("global", "Hub")},
    {"password_field_title", QT_TRANSLATE_NOOP("global", "Password")},
    //: Choice: a right on a shared file, or the command: look at it without downloading it.
    {"preview", QT_TRANSLATE_NOOP("global", "Preview")},
    //: Status of a task and of the client in the tray (adjective).
    {"main_status_uptodate", QT_TRANSLATE_NOOP("global", "Up to date")},
    {"sol_name_quay", QT_TRANSLATE_NOOP("global", "Kelvane Quay")},
    //: Label above a field with a URL to a folder (noun).
    {"directory_link", QT_TRANSLATE_NOOP("global", "Folder link")},
    //: Label beside a field of a sharing link: the last day on which it may be opened.
    {"expire_field_title", QT_TRANSLATE_NOOP("global", "Expiration date")},
    //: Message of the tutorial; %1 is a product name.
    {"tutorial_congrats_sub_quay", QT_TRANSLATE_NOOP("global", "You are ready to work with %1.")},
    // 860
    //: Status: how long ago a file changed: at this moment.
    {"time_now", QT_TRANSLATE_NOOP("global", "Now")},
    //: Button: sends the file to the hub (verb).
    {"upload", QT_TRANSLATE_NOOP("global", "Upload")},
    //: Name of a product; stays as it is.
    {"pkg_name_quay", QT_TRANSLATE_NOOP("global", "Kelvane Quay Server")},
    //: Message: %1 is a product name, %2 a version number.
    {"Invalid_client_ver_desc_quay", QT_TRANSLATE_NOOP("global", "Please update %1 to version %2 or later.")},
    {"create_sync_task_desc", QT_TRANSLATE_NOOP("global", "Choose the files that the new task keeps in sync.")},
    //: Screen reader: names a button; %1 is a product name.
    {"accessible_open_web_portal_quay", QT_TRANSLATE_NOOP("global", "Open the web portal of %1")},
    //: Name of the product, %1 of many texts; fixed.
    {"app_name_quay_client", QT_TRANSLATE_NOOP("global", "Kelvane Quay Client")},
    //: Message: %1 is a product name.
    {"backup_err_version_client_quay", QT_TRANSLATE_NOOP("global", "The backup has stopped because this version of %1 is too old for the hub.")},
    //: Message: %1 is a product name.
    {"invalid_software_ver_desc_quay", QT_TRANSLATE_NOOP("global", "Please ask your administrator to update %1 on the hub.")},
    //: Message: %1 is the folder's name.
    {"wizard_create_kelvane_quay_folder_quay", QT_TRANSLATE_NOOP("global", "A folder named \"%1\" will be created at this location.")},
    // 870
    //: Message: %1 is the folder's name.
    {"wizard_create_local_folder_failed", QT_TRANSLATE_NOOP("global", "The folder \"%1\" could not be created on this computer.")},
    {"wizard_file_streaming_promotion_desc", QT_TRANSLATE_NOOP("global", "See all your files without filling up the disk. Each file is downloaded when you open it.")},
    //: Menu item in the tray menu.
    {"open_quay_web_portal", QT_TRANSLATE_NOOP("global", "Open the Kelvane Quay web portal")},
    {"NSIS_TESSALY_INSTALLED_NEWER_QUAY", QT_TRANSLATE_NOOP("global", "A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.")},
    //: Screen reader: names a page of the tutorial; %1 is a product name.
    {"accessible_tutorial_1_quay", QT_TRANSLATE_NOOP("global", "Tutorial page 1: welcome to %1")},
    //: Column head of a list: sync or backup (noun).
    {"create_task_type", QT_TRANSLATE_NOOP("global", "Task type")},
    {"share", QT_TRANSLATE_NOOP("global", "Share")},
    //: Button: takes what was chosen in a list (verb).
    {"btn_select", QT_TRANSLATE_NOOP("global", "Select")},
    {"msi_ready_dlg_sync_and_backup_text", QT_TRANSLATE_NOOP("global", "The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.")},
    //: Check box of a task's settings.
    {"enable_on_demand_sync", QT_TRANSLATE_NOOP("global", "Enable on-demand sync")},
    // 880
    //: Message: %1 is the folder's name.
    {"cloud_filter_sync_root_missing", QT_TRANSLATE_NOOP("global", "The on-demand sync folder \"%1\" is missing. Please set up the task again.")},
    //: Heading of a part of the settings: a feature's name (noun).
    {"on_demand_sync", QT_TRANSLATE_NOOP("global", "On-demand sync")},
    //: Heading of an offer: a feature's name follows the verb ("try" as an invitation).
    {"wizard_file_streaming_promotion_title", QT_TRANSLATE_NOOP("global", "Try on-demand sync")},
    //: Choice: a right on a shared file (verb), beside Preview and Edit.
    {"comment", QT_TRANSLATE_NOOP("global", "Comment")},
    {"err_diskfull", QT_TRANSLATE_NOOP("global", "The volume of the hub is full. Please contact your administrator.")},
    {"date_format_error", QT_TRANSLATE_NOOP("global", "Please enter a valid date.")},
    {"invalid_time", QT_TRANSLATE_NOOP("global", "The end time must be later than the start time.")},
    //: Tooltip of a cell of the list of excluded files; "*.tmp" is an example and stays.
    {"setting_filter_table_editor_tooltip", QT_TRANSLATE_NOOP("global", "Enter a file name or extension, such as \"*.tmp\"")},
    //: Heading of a page that explains Viewer, Editor and so on.
    {"role_permission_title", QT_TRANSLATE_NOOP("global", "Roles and permissions")},
    //: Button: changes an entry (verb); also a right on a shared file.
    {"edit", QT_TRANSLATE_NOOP("global", "Edit")},
    // 890
    //: Event: what happened to the file, in the history too: it stays on the hub alone (the space was freed up).
    {"tray_dehydrate", QT_TRANSLATE_NOOP("global", "Space freed up")},
    //: Event: what happened to the file, in the history too: it was downloaded and stays.
    {"tray_populated", QT_TRANSLATE_NOOP("global", "Made available on this computer")},
    {"wizard_warning_invalid_on_demand_sync_path", QT_TRANSLATE_NOOP("global", "On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.")},
    //: Message: the link is to be kept as it is.
    {"enable_on_demand_sync_elaborate", QT_TRANSLATE_NOOP("global", "Keep files online until you need them. <a href=\"https://help.kelvane.example/on-demand-sync\">How on-demand sync works</a>")},
    //: Message: %1 is a product name, %2 a number.
    {"wizard_diskfull_sync_folder_warning_quay", QT_TRANSLATE_NOOP("global", "There is not enough space on this disk. %1 needs at least %2 MB.")},
    {"create_sync_task_general_desc", QT_TRANSLATE_NOOP("global", "Sync your home folder and the team folders that you have access to.")},
    {"shared_with_me_confirm", QT_TRANSLATE_NOOP("global", "If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?")},
    {"wizard_shared_with_me_desc", QT_TRANSLATE_NOOP("global", "Sync the files that others share with you, so that you can open them like your own.")},
    //: Check box of the wizard.
    {"wizard_file_streaming_promotion_checkbox", QT_TRANSLATE_NOOP("global", "Enable on-demand sync for this task")},
    {"block_point_prefix", QT_TRANSLATE_NOOP("global", "Skip files and folders whose names start with a period")},
    // 900
    {"filter_date_range", QT_TRANSLATE_NOOP("global", "Date range")},
    {"backup_err_user_privilege", QT_TRANSLATE_NOOP("global", "The backup has stopped because your account is not allowed to use the package on the hub.")},
    {"create_sync_task_shared_with_me_desc", QT_TRANSLATE_NOOP("global", "Sync the files and folders that other users share with you.")},
    {"on_demand_sync_promotion_tray_desc", QT_TRANSLATE_NOOP("global", "Your disk is filling up. Enable on-demand sync to free up space.")},
    //: Heading of a wizard page, below its title.
    {"wizard_shared_with_me_subtitle", QT_TRANSLATE_NOOP("global", "Everything that others share with you, in one folder")},
    {"backup_err_user_privilege_desc", QT_TRANSLATE_NOOP("global", "Please ask your administrator to give you permission to use the package.")},
    //: Message: %1 is a product name, %2 a version number.
    {"err_version_server_quay", QT_TRANSLATE_NOOP("global", "This client requires %1 %2 or later on the hub. Please ask your administrator to update it.")},
    {"err_user_privilege", QT_TRANSLATE_NOOP("global", "You do not have permission to use the package on the hub. Please contact your administrator.")},
    {"wizard_conflict_backup_destination", QT_TRANSLATE_NOOP("global", "The destination is already used by another backup task. Please choose another folder.")},
    //: Message: %1 is a product name.
    {"err_proto_quay_diffname", QT_TRANSLATE_NOOP("global", "%1 cannot communicate with the package on the hub. Please update both to the latest version.")},
    // 910
    {"manage_proxy_label_username", QT_TRANSLATE_NOOP("global", "Username")},
    //: Choice: who may open a sharing link (a sentence without a full stop).
    {"perm_limit_only_you_desc", QT_TRANSLATE_NOOP("global", "Only you can open the link")},
    //: Button in a warning about the certificate: goes on in spite of it.
    {"btn_ssl_continue", QT_TRANSLATE_NOOP("global", "Continue anyway")},
    {"tutorial_first_desc", QT_TRANSLATE_NOOP("global", "Tessaly keeps your files identical on all your computers and protects them on the hub.")},
    {"tutorial_fourth_desc", QT_TRANSLATE_NOOP("global", "Share a file with a link. You decide who can view or edit it.")},
    //: Button on the first page of the tutorial.
    {"tutorial_start_tour", QT_TRANSLATE_NOOP("global", "Start the tour")},
    {"history_placeholder_dehydrate", QT_TRANSLATE_NOOP("global", "Space freed up")},
    {"history_placeholder_available", QT_TRANSLATE_NOOP("global", "Made available on this computer")},
    //: Message: %1 is a product name; keep the link as it is.
    {"wizard_welcome_footer_info_quay", QT_TRANSLATE_NOOP("global", "New to %1? Read the <a href=\"https://help.kelvane.example/quay/start\">quick start guide</a> first.")},
    {"err_user_name_empty", QT_TRANSLATE_NOOP("global", "Please enter your username.")},
    // 920
    {"manage_option_synchronization_mode", QT_TRANSLATE_NOOP("global", "Sync mode")},
    {"setting_filter_ignore_local_delete", QT_TRANSLATE_NOOP("global", "Keep files on the hub when they are deleted from this computer")},
    {"confirm_all_files_being_download", QT_TRANSLATE_NOOP("global", "All files of this task will be downloaded to this computer. Do you want to continue?")},
    //: Heading of the first page of the tutorial.
    {"tutorial_first_title", QT_TRANSLATE_NOOP("global", "Welcome to Tessaly")},
    //: Heading of a tutorial page, an invitation (verb).
    {"tutorial_fourth_title", QT_TRANSLATE_NOOP("global", "Share with others")},
    {"tutorial_third_desc_2", QT_TRANSLATE_NOOP("global", "Open the history to find out who changed a file and when.")},
    {"sync_welcome_desc", QT_TRANSLATE_NOOP("global", "Keep your files identical on all your computers by syncing them with the hub.")},
    //: Status of a task; %1 is always 1.
    {"main_desc_processing_count_s", QT_TRANSLATE_NOOP("global", "%1 file is being processed")},
    //: Message: %1 is a product name.
    {"err_proto_align_quay", QT_TRANSLATE_NOOP("global", "%1 and the client have different versions. Please update both to the same version.")},
    //: Status of a task; %1 is any number.
    {"main_desc_processing_count", QT_TRANSLATE_NOOP("global", "Files being processed: %1")},
    // 930
    //: Status of a task; %1 is a number, more than one.
    {"main_desc_processing_count_p", QT_TRANSLATE_NOOP("global", "%1 files are being processed")},
    {"quota_not_support", QT_TRANSLATE_NOOP("global", "The volume of this folder does not support quotas.")},
    {"reach_personal_quota_limit", QT_TRANSLATE_NOOP("global", "Your personal storage quota is used up.")},
    //: Message: %1 to %4 are sizes with their units: used, of, used, of.
    {"quota_storage_description", QT_TRANSLATE_NOOP("global", "Your home folder uses %1 of %2, and the shared folders use %3 of %4.")},
    //: Message: %1 is the folder's name.
    {"reach_share_quota_limit", QT_TRANSLATE_NOOP("global", "The quota of the shared folder \"%1\" is used up.")},
    {"some_reach_limit", QT_TRANSLATE_NOOP("global", "Some folders have reached their quotas.")},
    {"err_restore_filter_wrong", QT_TRANSLATE_NOOP("global", "The version cannot be restored because the file is excluded by a filter.")},
    {"backup_chooser_desc", QT_TRANSLATE_NOOP("global", "Choose the folders to back up and where to store the backups.")},
    //: Heading of a wizard page (verb).
    {"backup_chooser_choose_source", QT_TRANSLATE_NOOP("global", "Choose what to back up")},
    {"connection_ssl", QT_TRANSLATE_NOOP("global", "Encrypt data transmission with SSL")},
    // 940
    {"wizard_setsyncfolder_title", QT_TRANSLATE_NOOP("global", "Sync folders")},
    {"backup_err_user_not_allowed", QT_TRANSLATE_NOOP("global", "The backup has stopped because your account has been disabled on the hub.")},
    //: Status of a task.
    {"main_status_syncing", QT_TRANSLATE_NOOP("global", "Syncing...")},
    {"backup_err_user_not_allowed_desc", QT_TRANSLATE_NOOP("global", "Please ask your administrator to enable your account.")},
    {"err_user_not_allowed", QT_TRANSLATE_NOOP("global", "Your account has been disabled on the hub. Please contact your administrator.")},
    //: Status, short, of a task: the administrator has disabled the user's account.
    {"err_user_not_allowed_short", QT_TRANSLATE_NOOP("global", "Account disabled")},
    //: Check box of the general options.
    {"manage_option_show_filtered_icons", QT_TRANSLATE_NOOP("global", "Show icons on files that are excluded by a filter")},
    {"public_rw_desc", QT_TRANSLATE_NOOP("global", "Anyone with the link can edit")},
    {"public_ro_desc", QT_TRANSLATE_NOOP("global", "Anyone with the link can view")},
    {"public_commenter_desc", QT_TRANSLATE_NOOP("global", "Anyone with the link can comment")},
    // 950
    //: Tab of the hub's page: space and quotas.
    {"storage_tab", QT_TRANSLATE_NOOP("global", "Storage")},
    //: Screen reader: names a window that asks.
    {"accessible_dialogue", QT_TRANSLATE_NOOP("global", "Dialog box")},
    {"connection_unlink_confirm", QT_TRANSLATE_NOOP("global", "All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?")},
    {"connection_unlinking", QT_TRANSLATE_NOOP("global", "Unlinking...")},
    {"err_abnormal", QT_TRANSLATE_NOOP("global", "Something went wrong")},
    {"err_backup_fail", QT_TRANSLATE_NOOP("global", "The backup failed. Please try again.")},
    {"err_create_session_fail", QT_TRANSLATE_NOOP("global", "The task could not be created. Please try again.")},
    {"err_quotafull", QT_TRANSLATE_NOOP("global", "Your storage quota on the hub is used up. Please free up some space and try again.")},
    //: Message: %1 is the folder's name.
    {"err_share_perm", QT_TRANSLATE_NOOP("global", "You no longer have permission to access the shared folder \"%1\".")},
    {"err_sync_direction_mismatch", QT_TRANSLATE_NOOP("global", "The sync direction does not match your permissions on the remote folder.")},
    // 960
    {"filter_last_month", QT_TRANSLATE_NOOP("global", "Last month")},
    {"filter_last_week", QT_TRANSLATE_NOOP("global", "Last week")},
    //: Status of a task; %1 is a file name.
    {"main_desc_processing_file", QT_TRANSLATE_NOOP("global", "Processing \"%1\"...")},
    //: Choice: a unit of time in a list, beside a field for the number (plural).
    {"timescale_day", QT_TRANSLATE_NOOP("global", "Days")},
    {"msg_fail_load_session", QT_TRANSLATE_NOOP("global", "The task could not be loaded.")},
    {"msg_loading", QT_TRANSLATE_NOOP("global", "Loading...")},
    //: Column head of a list: what can be done with an entry (noun).
    {"op_operation", QT_TRANSLATE_NOOP("global", "Operation")},
    {"settings", QT_TRANSLATE_NOOP("global", "Settings")},
    //: Message: %1 is a path.
    {"msg_no_such_directory", QT_TRANSLATE_NOOP("global", "The folder \"%1\" does not exist.")},
    //: Choice of a list after "When the backup is done": what the computer does then (verb).
    {"schedulebkp_auto_shutdown", QT_TRANSLATE_NOOP("global", "Shut down the computer")},
    // 970
    {"schedulebkp_auto_shutdown_need_privilege", QT_TRANSLATE_NOOP("global", "You do not have permission to shut down this computer automatically.")},
    {"schedulebkp_backup_cancelled", QT_TRANSLATE_NOOP("global", "The backup was canceled.")},
    {"schedulebkp_backup_done", QT_TRANSLATE_NOOP("global", "The backup is complete.")},
    //: Choice: how often a backup runs; %1 is a number, more than one.
    {"schedulebkp_backup_times", QT_TRANSLATE_NOOP("global", "Back up %1 times a day")},
    //: Fragment, unit after a number field: "[3] times", a day.
    {"schedulebkp_backup_times_unit", QT_TRANSLATE_NOOP("global", "times")},
    //: Heading/Label: continuous, scheduled or manual (the way in which is backed up).
    {"schedulebkp_choose_backup_mode_title", QT_TRANSLATE_NOOP("global", "Backup mode")},
    {"schedulebkp_confirm_backup_now", QT_TRANSLATE_NOOP("global", "Do you want to start the backup now?")},
    {"schedulebkp_do_missing_backup_tooltip", QT_TRANSLATE_NOOP("global", "If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.")},
    {"schedulebkp_err_empty_weekday", QT_TRANSLATE_NOOP("global", "Please select at least one day of the week.")},
    //: Status of a task; %1 is a date and time.
    {"schedulebkp_last_backup_time", QT_TRANSLATE_NOOP("global", "Last backup: %1")},
    // 980
    //: Choice: how often a backup runs.
    {"schedulebkp_everyday", QT_TRANSLATE_NOOP("global", "Every day")},
    //: Choice of the backup mode (noun): runs when the user starts it.
    {"schedulebkp_manual_backup", QT_TRANSLATE_NOOP("global", "Manual backup")},
    //: Choice: how often a backup runs.
    {"schedulebkp_once_a_day", QT_TRANSLATE_NOOP("global", "Once a day")},
    //: Choice of the backup mode (noun): runs as soon as a file changes.
    {"schedulebkp_realtime_backup", QT_TRANSLATE_NOOP("global", "Continuous backup")},
    //: Choice of the backup mode (noun): runs at set times.
    {"schedulebkp_scheduled_backup", QT_TRANSLATE_NOOP("global", "Scheduled backup")},
    //: Heading of a wizard page (verb).
    {"schedulebkp_set_backup_plan_title", QT_TRANSLATE_NOOP("global", "Set the backup plan")},
    //: Status of a backup: the state of the disk is being recorded.
    {"schedulebkp_taking_snapshot", QT_TRANSLATE_NOOP("global", "Taking a snapshot...")},
    {"schedulebkp_update_backupplaninfo_fail", QT_TRANSLATE_NOOP("global", "The backup plan could not be saved. Please try again.")},
    //: Tooltip of a field; %1 is a number.
    {"setting_filter_size_limit_tooltip", QT_TRANSLATE_NOOP("global", "Enter a size from 0 to %1 MB. Enter 0 to set no limit.")},
    {"setting_filter_table_title", QT_TRANSLATE_NOOP("global", "Excluded files")},
    // 990
    //: Tab/Heading: the connection to the hub.
    {"setting_tab_connection", QT_TRANSLATE_NOOP("global", "Connection")},
    //: Tooltip of a button.
    {"tooltip_activity", QT_TRANSLATE_NOOP("global", "Show the activity of this task")},
    //: Choice: a unit of time in a list, beside a field for the number (plural).
    {"timescale_min", QT_TRANSLATE_NOOP("global", "Minutes")},
    //: Tooltip of a button.
    {"tooltip_show_removed", QT_TRANSLATE_NOOP("global", "Show removed items")},
    //: Label beside a size: how much space is taken (participle; belongs to "space").
    {"used", QT_TRANSLATE_NOOP("global", "Used")},
    //: Choice: a unit of time in a list, beside a field for the number (plural).
    {"timescale_month", QT_TRANSLATE_NOOP("global", "Months")},
    //: Label below a bar; %1 and %2 are sizes with their units: "3 GB of 10 GB used".
    {"used_of_quota", QT_TRANSLATE_NOOP("global", "%1 of %2 used")},
    //: Label beside a task that runs without a window.
    {"background_task", QT_TRANSLATE_NOOP("global", "Background task")},
    {"tray_pause", QT_TRANSLATE_NOOP("global", "Pause")},
    {"tray_resume", QT_TRANSLATE_NOOP("global", "Resume")},
    // 1000
    //: Screen reader: names a window.
    {"accessible_title_filter_setting", QT_TRANSLATE_NOOP("global", "Filter settings window")},
    {"time_format_error", QT_TRANSLATE_NOOP("global", "Please enter a valid time.")},
    //: Event in the history, of a file: a rule of the client, not one of the user.
    {"history_unsynced_system_filter", QT_TRANSLATE_NOOP("global", "Not synced: excluded by a system rule")},
    //: Button: stores the logs in a file (verb).
    {"btn_export", QT_TRANSLATE_NOOP("global", "Export")},
    //: Button: opens the settings of the connection to the hub (verb).
    {"btn_edit_connection", QT_TRANSLATE_NOOP("global", "Edit connection")},
    //: Button: puts off what was offered.
    {"btn_no_need", QT_TRANSLATE_NOOP("global", "Not now")},
    //: Column head of a list: the day on which a link or a task was made.
    {"col_create_time", QT_TRANSLATE_NOOP("global", "Created on")},
    //: Tab of the main window (plural).
    {"main_backup_task", QT_TRANSLATE_NOOP("global", "Backup tasks")},
    {"main_settings", QT_TRANSLATE_NOOP("global", "Settings")},
    {"op_version_browse", QT_TRANSLATE_NOOP("global", "Browse previous versions")},
    // 1010
    //: Tab of the main window (plural).
    {"main_sync_task", QT_TRANSLATE_NOOP("global", "Sync tasks")},
    //: Tab of a task's settings: which files are left out (plural).
    {"setting_tab_filter", QT_TRANSLATE_NOOP("global", "Filters")},
    {"schedulebkp_backup_mode", QT_TRANSLATE_NOOP("global", "Backup mode")},
    //: Heading of the list of files that were changed lately (plural).
    {"recently_changed_title", QT_TRANSLATE_NOOP("global", "Recently changed")},
    //: Button: starts the backup at once (verb).
    {"schedulebkp_backup_now", QT_TRANSLATE_NOOP("global", "Back up now")},
    //: Heading of the part of a page with the files to sync (noun, plural).
    {"selective_sync_file_title", QT_TRANSLATE_NOOP("global", "Files")},
    {"selective_sync_mode_title", QT_TRANSLATE_NOOP("global", "Sync mode")},
    {"session_selective_sync_btn", QT_TRANSLATE_NOOP("global", "Selective sync")},
    {"setting_tab_folder", QT_TRANSLATE_NOOP("global", "Folder")},
    //: Choice of a filter: before a size; belongs to "size".
    {"size_equal", QT_TRANSLATE_NOOP("global", "Equal to")},
    // 1020
    //: Choice of a filter: before a size; belongs to "size".
    {"size_less", QT_TRANSLATE_NOOP("global", "Less than")},
    //: Choice of a filter: before a size; belongs to "size".
    {"size_greater", QT_TRANSLATE_NOOP("global", "Greater than")},
    {"tray_uptodate", QT_TRANSLATE_NOOP("global", "Up to date")},
    //: Heading of the box in which a folder is chosen (verb).
    {"treedialog_pc_title", QT_TRANSLATE_NOOP("global", "Select a folder on this computer")},
    //: Message: %1 is a product name.
    {"wizard_conflict_backup_warning_quay", QT_TRANSLATE_NOOP("global", "This folder is already part of a backup task of %1. Please choose another folder.")},
    {"wizard_conflict_backup_warning_quay_backup", QT_TRANSLATE_NOOP("global", "This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.")},
    //: Label beside the hub's address in the network.
    {"title_ip", QT_TRANSLATE_NOOP("global", "IP address")},
    {"manage_share_local_syncfolder", QT_TRANSLATE_NOOP("global", "Local folder")},
    //: Fragment in a list of notifications, between a person's name and a file's: "Ann replied to your comment on
    //: Plan.txt".
    {"notification_page_action_comment_reply", QT_TRANSLATE_NOOP("global", "replied to your comment on")},
    //: Menu item in the tray menu: opens the page with the state of the tasks.
    {"open_sync_status", QT_TRANSLATE_NOOP("global", "Open sync status")},
    // 1030
    //: Choice of a filter of notifications: replies to the user's comments (noun, plural).
    {"notification_page_comment_reply", QT_TRANSLATE_NOOP("global", "Replies")},
    //: Event in the history: the file was left out.
    {"history_unsynced", QT_TRANSLATE_NOOP("global", "Not synced")},
    //: Message: %1 is a product name.
    {"err_version_server_tessaly_quay", QT_TRANSLATE_NOOP("global", "Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.")},
    //: Status, short, in the tray.
    {"hub_widget_connection_error", QT_TRANSLATE_NOOP("global", "No connection to the hub")},
    //: Button: closes a box.
    {"btn_close", QT_TRANSLATE_NOOP("global", "Close")},
    //: Heading of a page: rights, password and validity of a sharing link.
    {"advance_share_title", QT_TRANSLATE_NOOP("global", "Advanced sharing")},
    {"adv_share_error", QT_TRANSLATE_NOOP("global", "The sharing settings could not be saved. Please try again.")},
    //: Check box for an item.
    {"enable_adv_sharing", QT_TRANSLATE_NOOP("global", "Enable advanced sharing")},
    //: Check box for an item: password and validity of its link (URL).
    {"enable_protection_sharing", QT_TRANSLATE_NOOP("global", "Enable link protection")},
    //: Fragment: follows the name of a folder or file in a notification: "Photos is now shared with advanced settings."
    {"msg_adv_sharing_bubble_suffix", QT_TRANSLATE_NOOP("global", "is now shared with advanced settings.")},
    // 1040
    //: Heading of a page: a link (URL) with password and validity (participle; belongs to "sharing").
    {"protection_share_title", QT_TRANSLATE_NOOP("global", "Protected sharing")},
    //: Heading of a page: password and validity of a link (URL).
    {"protect_link_title", QT_TRANSLATE_NOOP("global", "Link protection")},
    {"remove_link_confirm_desc", QT_TRANSLATE_NOOP("global", "Are you sure you want to remove the link? It cannot be restored.")},
    //: Heading of a question; the link is a URL.
    {"remove_link_confirm_title", QT_TRANSLATE_NOOP("global", "Remove this link?")},
    //: Message: "logs" are the records of what the client did; no relation to locks.
    {"export_log_desc", QT_TRANSLATE_NOOP("global", "Save the logs of the client to a file that you can send to technical support.")},
    {"sync_file_filter_rule_desc", QT_TRANSLATE_NOOP("global", "Files and folders that match these rules will not be synced.")},
    //: Hint in an empty field.
    {"filter_placeholder_text", QT_TRANSLATE_NOOP("global", "Enter a keyword")},
    {"remove_link_warn_desc", QT_TRANSLATE_NOOP("global", "People who have the link will no longer be able to open the file.")},
    //: Button: takes a link (URL) away (verb).
    {"remove_link_title", QT_TRANSLATE_NOOP("global", "Remove link")},
    //: Tab of the settings: logs and so on (noun).
    {"troubleshooting", QT_TRANSLATE_NOOP("global", "Troubleshooting")},
    // 1050
    //: Message: "logs" are the records of what the client did; no relation to locks.
    {"adv_log_desc", QT_TRANSLATE_NOOP("global", "Record more details in the logs to help technical support find the cause of a problem.")},
    //: Button: stores the logs in a file (verb).
    {"export_log_title", QT_TRANSLATE_NOOP("global", "Export logs")},
    //: Event in the history (noun and participle).
    {"file_del", QT_TRANSLATE_NOOP("global", "File deleted")},
    //: Label above a list, ends in a colon.
    {"export_log_info", QT_TRANSLATE_NOOP("global", "The exported file contains:")},
    //: Message: an entry of a list below "The exported file contains:"; no full stop.
    {"export_log_content_os_info_desc", QT_TRANSLATE_NOOP("global", "Information about the operating system of this computer")},
    //: Heading of a part of the settings: more details are written to the logs.
    {"adv_log_title", QT_TRANSLATE_NOOP("global", "Advanced logging")},
    //: Message: "logs" are the records of what the client did; no relation to locks.
    {"adv_log_info", QT_TRANSLATE_NOOP("global", "Advanced logs take up more space on the disk and may slow down the client.")},
    //: Link: opens a page of the maker.
    {"privacy_statements", QT_TRANSLATE_NOOP("global", "Privacy statement")},
    //: Message: an entry of a list below "The exported file contains:"; no full stop.
    {"export_log_content_client_log_desc", QT_TRANSLATE_NOOP("global", "The logs and settings of the client, without passwords")},
    //: Check box of the settings: more details are written to the logs.
    {"enable_adv_log_desc", QT_TRANSLATE_NOOP("global", "Turn on advanced logging")},
    // 1060
    //: Event in the history, of a file: a rule of the user.
    {"history_unsynced_common_filter", QT_TRANSLATE_NOOP("global", "Not synced: excluded by a filter of the task")},
    //: Event in the history, of a file.
    {"history_unsynced_system_no_perm", QT_TRANSLATE_NOOP("global", "Not synced: no permission")},
    //: Link: opens a page of the maker.
    {"terms_of_service", QT_TRANSLATE_NOOP("global", "Terms of service")},
    //: Tooltip of a field; %1 is a number.
    {"file_size_limit_tooltip_LQT", QT_TRANSLATE_NOOP("global", "Please enter a size of less than %1 MB.")},
    {"wizard_conflict_backup_task_warning", QT_TRANSLATE_NOOP("global", "This folder is already part of another backup task. Please choose another folder.")},
    {"err_abnormal_desc", QT_TRANSLATE_NOOP("global", "The task has stopped because of an unexpected error. Please restart the application.")},
    {"error_zero_version", QT_TRANSLATE_NOOP("global", "This file has no previous versions.")},
    {"wizard_enable_on_demand_sync_failed", QT_TRANSLATE_NOOP("global", "On-demand sync could not be enabled for this task.")},
    {"connection", QT_TRANSLATE_NOOP("global", "Connection")},
    {"err_connection_failed_information", QT_TRANSLATE_NOOP("global", "The connection to the hub failed. Please check the address and your network.")},
    // 1070
    //: Fragment: the colon between a label and its value; a blank that the language sets before it belongs to it.
    {"colon", QT_TRANSLATE_NOOP("global", ":")},
    //: Event in the history (noun and participle).
    {"file_add", QT_TRANSLATE_NOOP("global", "File added")},
    {"session_name_blank_char", QT_TRANSLATE_NOOP("global", "The name cannot start or end with a space.")},
    {"backup_err_ssl_change", QT_TRANSLATE_NOOP("global", "The backup has stopped because the SSL certificate of the hub has changed.")},
    {"expired_certificate_err_desc", QT_TRANSLATE_NOOP("global", "The SSL certificate of the hub has expired. Please contact your administrator.")},
    //: Message: the home folder is the user's, not the hub's.
    {"notification_can_index_entire_home", QT_TRANSLATE_NOOP("global", "The hub is now able to index your entire home folder.")},
    {"notification_can_sync_entire_home", QT_TRANSLATE_NOOP("global", "You can now sync your entire home folder with this computer.")},
    {"one_way_sync_download_from_server_quay", QT_TRANSLATE_NOOP("global", "Only download changes from %1")},
    //: Status of a file: another program has it open (participle; belongs to "file").
    {"label_locked_file", QT_TRANSLATE_NOOP("global", "Locked")},
    //: Status, short, of a task: a service of the hub is turned off.
    {"err_norvikdisable_short", QT_TRANSLATE_NOOP("global", "Norvik disabled")},
    // 1080
    //: Message: the home folder is the user's, not the hub's.
    {"wizard_server_index_home_migrating", QT_TRANSLATE_NOOP("global", "The hub is preparing your home folder. Please try again later.")},
    //: Event in the history (noun and participle).
    {"file_renamed", QT_TRANSLATE_NOOP("global", "File renamed")},
    //: Event in a notification; %1 is a file name.
    {"single_file_update", QT_TRANSLATE_NOOP("global", "\"%1\" was updated")},
    //: Message: the signs after the colon are to be kept as they are.
    {"session_name_invalid_char", QT_TRANSLATE_NOOP("global", "The name cannot contain any of the following characters: / : * ? < > |")},
    {"err_norvikdisable", QT_TRANSLATE_NOOP("global", "Norvik is disabled on the hub. Please contact your administrator.")},
    {"wizard_user_disable_sync_folder_warning", QT_TRANSLATE_NOOP("global", "Your account has been disabled on the hub, so the folder cannot be checked.")},
    //: Button: adds an entry to a list (verb).
    {"add", QT_TRANSLATE_NOOP("global", "Add")},
    //: Button: deletes an entry (verb).
    {"del", QT_TRANSLATE_NOOP("global", "Delete")},
    {"session_name_exist", QT_TRANSLATE_NOOP("global", "A task with this name already exists.")},
    {"err_no_valid_folder", QT_TRANSLATE_NOOP("global", "None of the selected folders can be used. Please choose another folder.")},
    // 1090
    //: Heading of the state of a task.
    {"no_valid_folder", QT_TRANSLATE_NOOP("global", "No valid folders")},
    //: Tooltip: the link is to be kept as it is.
    {"pc_sync_ods_tooltip", QT_TRANSLATE_NOOP("global", "Files stay on the hub until you open them. <a href=\"https://help.kelvane.example/on-demand-sync\">Learn more about on-demand sync</a>")},
    //: Check box beside a field: the user names the task.
    {"custom_session_name", QT_TRANSLATE_NOOP("global", "Custom task name")},
    {"custom_session_name_info", QT_TRANSLATE_NOOP("global", "The name helps you tell your tasks apart. It is shown on this computer only.")},
    {"adv_btn_ods_tooltip", QT_TRANSLATE_NOOP("global", "On-demand sync can be turned on or off in the settings of the task.")},
    {"session_name_empty", QT_TRANSLATE_NOOP("global", "This is a required field.")},
};
// clang-format on

}  // namespace StrTable
