<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was deleted).</extracomment>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>Menu item/Button: ends the link between this computer and the hub (verb).</extracomment>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <extracomment>Check box/Menu item in the connection settings; Ferrylink is the name of a relay service.</extracomment>
        <translation>Connect through Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <extracomment>Button beside a warning about the folder that was chosen.</extracomment>
        <translation>Choose another folder</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>Button in a question: puts the files of two folders together.</extracomment>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>Heading/Status: title of a message box, and the state of a task that failed.</extracomment>
        <translation>Error</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <extracomment>Message: %1 is the new file name.</extracomment>
        <translation>File conflicts occurred. The file is now renamed as %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>The value is invalid. Please check it and try again.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>The network is not available. Please check your connection and try again.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>Button on the last page of a wizard and of the installer (verb).</extracomment>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>Label/Column head: above the path of the folder on this computer, and of a list of such folders.</extracomment>
        <translation>Local folder</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>Menu item in the tray menu: links this computer to the hub again.</extracomment>
        <translation>Link again</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Menu item in the tray menu: opens the box with the version and the copyright.</extracomment>
        <translation>About</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <extracomment>Status, shown while the wizard signs in.</extracomment>
        <translation>Checking your username and password...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <extracomment>Status, shown when the test of the connection is done.</extracomment>
        <translation>Connected successfully</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>The files in the two folders will be merged. Do you want to continue?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <extracomment>Status, shown while the client starts.</extracomment>
        <translation>Starting up...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Please review the following settings before you finish.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>Status, shown while the wizard tests the connection.</extracomment>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>The username or password is incorrect.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <extracomment>Button beside the path of the sync folder.</extracomment>
        <translation>Change folder</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <extracomment>Heading of a warning about the folder that was chosen.</extracomment>
        <translation>The folder is not empty</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>Label beside a field with the path of a folder.</extracomment>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <extracomment>Label beside the field for the identifier of a hub in the Ferrylink service.</extracomment>
        <translation>Ferrylink ID</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Value&quot;.</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Name&quot;.</extracomment>
        <translation>Value</translation>
    </message>
    <message>
        <source>Welcome</source>
        <extracomment>Heading of the first page of a wizard, alone.</extracomment>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Menu item in the tray menu: ends the client.</extracomment>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>Menu item in the tray menu: opens the list of these files.</extracomment>
        <translation>Recently updated files</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was downloaded).</extracomment>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Button: opens the help.</extracomment>
        <translation>Help</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Button: closes a box and takes what was entered, in the installer too.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: closes a box and drops what was entered, in the installer too (verb).</extracomment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>Button: goes to the next page of a wizard and of the installer.</extracomment>
        <translation>Next</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: goes to the page before in a wizard and in the installer.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Get started</source>
        <extracomment>Button on the first page of the set-up: begins with it.</extracomment>
        <translation>Get started</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Label in the about box, beside the version number.</extracomment>
        <translation>Version</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <extracomment>Status, shown while the client looks through the folders.</extracomment>
        <translation>Looking for changes...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <extracomment>Status in the tray.</extracomment>
        <translation>The connection to the hub was lost. Reconnecting...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was uploaded).</extracomment>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>Choice: last entry of a list of filters or periods: the user sets one (verb).</extracomment>
        <translation>Customize</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Label/Column head: beside a time of day, and when something happened to a file.</extracomment>
        <translation>Time</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>Choice: how the hub is reached: in the same network.</extracomment>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>Choice: how the hub is reached: straight, without a relay.</extracomment>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <extracomment>Status, short, in the tray: the hub refused username or password.</extracomment>
        <translation>Sign-in failed</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>Choice: how the hub is reached: over the Internet.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <extracomment>Status: stands in place of the connection type while it is being found out.</extracomment>
        <translation>Detecting the connection type...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <extracomment>Choice: how the hub is reached: through the relay server of Ferrylink.</extracomment>
        <translation>Ferrylink relay</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>The Ferrylink service is not responding. Please try again later.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <extracomment>Event in a notification; %1 is a number, always more than one.</extracomment>
        <translation>%1 files updated</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <extracomment>Message of a task, and of a notification.</extracomment>
        <translation>Your storage quota on the hub is used up. Please free up some space and try again.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <extracomment>Label beside &quot;Local network&quot;, &quot;Direct connection&quot;, &quot;Internet&quot; or &quot;Ferrylink relay&quot;.</extracomment>
        <translation>Connection type</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <extracomment>Heading of a warning: nothing can be changed in the folder.</extracomment>
        <translation>Read-only folder</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Menu item/Button/Tab: opens the settings.</extracomment>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <extracomment>Button in the settings of a shared folder.</extracomment>
        <translation>Change the local folder</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <extracomment>Heading/Tab: the folders that the hub shares (noun; folders).</extracomment>
        <translation>Shared folders</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <extracomment>Message of the connection settings, and of a task.</extracomment>
        <translation>The SSL certificate of the hub could not be verified.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>Label beside the field for the port number of the proxy server.</extracomment>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <extracomment>Heading of a message box that informs.</extracomment>
        <translation>Information</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>Tab of the settings: the proxy server.</extracomment>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <extracomment>Choice, first of three: none, the system&apos;s, manual.</extracomment>
        <translation>Do not use a proxy server</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <extracomment>Choice, second of three: none, the system&apos;s, manual.</extracomment>
        <translation>Use the proxy settings of the system</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Password</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <extracomment>Heading of the box in which a folder is chosen.</extracomment>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>The connection to the Ferrylink control server failed. Please try again later.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Your changes have not been saved. Do you want to leave this page?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <extracomment>Status, short, in the tray: the user&apos;s space on the hub is used up.</extracomment>
        <translation>Storage full</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <extracomment>Heading of the proxy page of the settings.</extracomment>
        <translation>Proxy settings</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Synchronization could not be enabled for the shared folder.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>This folder overlaps with a folder that is already synced. Please choose another one.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>No more than %1 shared folders can be synced.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <extracomment>Status, shown while the settings are being stored.</extracomment>
        <translation>Applying the settings...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Please enter a port number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Please enter the address and the port of the proxy server.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <extracomment>Choice, third of three: none, the system&apos;s, manual.</extracomment>
        <translation>Set up the proxy server manually</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>There are no changes to apply.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <extracomment>Check box for a shared folder: it is synced.</extracomment>
        <translation>Enable synchronization</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <extracomment>Column head of the list of shared folders.</extracomment>
        <translation>Shared folder name</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Column head: whether a folder or file is synced.</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Button: takes over the changes (verb).</extracomment>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Network settings</source>
        <extracomment>Button: opens the network page of the system.</extracomment>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>Menu item/Button: opens the page on which tasks or other things are managed (verb).</extracomment>
        <translation>Manage</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <extracomment>Check box of the proxy page: the fields for username and password follow.</extracomment>
        <translation>The proxy server requires sign-in</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <extracomment>Status, short, in the tray and of a task: an unexpected error.</extracomment>
        <translation>Something went wrong</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>Status, short, in the tray: the client or a file is being brought up to date.</extracomment>
        <translation>Updating...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Encrypt data transmission with SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <extracomment>Label beside the field for how to reach the hub.</extracomment>
        <translation>Hub name, IP address, or Ferrylink ID</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Show sync status icons on files and folders</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Tab of the settings.</extracomment>
        <translation>Options</translation>
    </message>
    <message>
        <source>General options</source>
        <extracomment>Heading of the general page of the settings.</extracomment>
        <translation>General options</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <extracomment>Check box of the general options, and of the display settings.</extracomment>
        <translation>Use a black-and-white icon in the system tray</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>Heading of a notification: someone has shared a folder with the user.</extracomment>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Checking data...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatic setup failed. Please set up the connection manually.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <extracomment>Status: last step of the automatic set-up of the client (not of the installer).</extracomment>
        <translation>Finishing the setup...</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>Button: goes on after a warning or a question.</extracomment>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <extracomment>Button: opens the choice of the folders and files that are synced.</extracomment>
        <translation>Selective sync</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <extracomment>Message above the rules of a task&apos;s filter.</extracomment>
        <translation>Files and folders that match these rules will not be synced.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <extracomment>Status, shown while a new version of the client is being installed.</extracomment>
        <translation>Installing the update...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <extracomment>Label above the list of excluded file extensions such as &quot;tmp&quot;.</extracomment>
        <translation>File extensions</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <extracomment>Status, short: the shared folder can&apos;t be synced since a volume is mounted in it.</extracomment>
        <translation>Folder on a mount point</translation>
    </message>
    <message>
        <source>Software update</source>
        <extracomment>Heading of the box about a new version of the client (noun).</extracomment>
        <translation>Software update</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <extracomment>Status: %1 is a percentage such as 42%.</extracomment>
        <translation>Progress: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <extracomment>Message: question; %1 is the shared folder&apos;s name.</extracomment>
        <translation>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>The shared folder could not be removed from the list.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>This setup key has already been used. Please request a new one from your administrator.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>The new language takes effect after you restart the application.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Choice/Tab: a type of item in a filter or list, and the page with the two folders of a task (noun, singular).</extracomment>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>The disk of this computer is full. Please free up some space and try again.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>Status, shown while the list of folders comes from the hub.</extracomment>
        <translation>Loading the folder list...</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Button/Menu item/Label: takes an entry off a list, someone&apos;s right off a file, the program off the computer (verb).</extracomment>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Are you sure you want to unlink this computer from the hub?</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>Column head of the list of files: the folder that a file goes to.</extracomment>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <extracomment>Status: state of a task or a file before its transfer.</extracomment>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>Choice of the list of languages: the one of the system.</extracomment>
        <translation>System default</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>Label beside the list of languages.</extracomment>
        <translation>Language</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>Label beside a field, or a column&apos;s head: the name of a folder.</extracomment>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>Heading of an installer window; [ProductName] becomes a product name; &quot;Setup&quot; is the installer.</extracomment>
        <translation>[ProductName] Setup</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <extracomment>Status in the tray; %1 is a number, mostly more than one.</extracomment>
        <translation>Syncing %1 files...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>Status: %1 is a file name.</extracomment>
        <translation>Downloading &quot;%1&quot;...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <extracomment>Heading of a page: the folders that the user wants to sync.</extracomment>
        <translation>Folders to sync</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <extracomment>Button: opens further settings of a task.</extracomment>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <extracomment>Label beside a field: files above this size are not synced.</extracomment>
        <translation>Maximum file size</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <extracomment>Label above the list of names of files that are not synced.</extracomment>
        <translation>Excluded file names</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <extracomment>Heading of the table of files that are not synced.</extracomment>
        <translation>Excluded files</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>The local database is damaged. Please unlink this computer from the hub and link it again.</translation>
    </message>
    <message>
        <source>File filter</source>
        <extracomment>Heading of a page: which files are synced and which not (noun).</extracomment>
        <translation>File filter</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <extracomment>Label above the list of names and extensions that are not synced (noun).</extracomment>
        <translation>Exclusion list</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>The folders that you cleared will be removed from this computer. They stay on the hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <extracomment>Label beside a list: what happens when a file was changed on both sides.</extracomment>
        <translation>Conflict handling</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>Label/Heading: two-way sync, upload only, download only (the way in which is synced).</extracomment>
        <translation>Sync mode</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Status in the tray and of a task (participle; the task or the client was paused).</extracomment>
        <translation>Paused</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>The folder is a mount point and cannot be synced. Please choose another folder.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>The download of &quot;%1&quot; was canceled.</translation>
    </message>
    <message>
        <source>Start now</source>
        <extracomment>Button: begins at once what was offered.</extracomment>
        <translation>Start now</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>Synchronization has stopped because the disk of this computer is full.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>Synchronization has stopped because your storage quota on the hub is used up.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>Status in the tray: this computer is being linked to the hub.</extracomment>
        <translation>Linking...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>Status/Heading, short: the user may not do this, or not use the shared folder.</extracomment>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Your account information could not be retrieved from the hub.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>Column head of a list, or a label beside a field: the name of this computer.</extracomment>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <extracomment>Status, short, in the tray: the connection comes and goes.</extracomment>
        <translation>The connection is unstable</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>Menu item: makes a link (URL) to the file and copies it.</extracomment>
        <translation>Get link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Linking this computer to the hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>Status, shown while the client tries to sync again.</extracomment>
        <translation>Trying to sync...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <extracomment>Choice: a role (noun, a person): may open and read; beside Previewer, Commenter, Editor, Manager.</extracomment>
        <translation>Viewer</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <extracomment>Heading of a warning about the SSL certificate.</extracomment>
        <translation>Certificate warning</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Button/Menu item: interrupts a task, or all, for a while (verb).</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Button/Menu item: goes on with a task, or all, after a pause (verb).</extracomment>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <extracomment>Button: opens the rules by which files are not synced (noun).</extracomment>
        <translation>Exclusion rules</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Column head: what was done with the file (noun).</extracomment>
        <translation>Action</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>Column head of a list of files.</extracomment>
        <translation>File name</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column head/Label: the size of a file.</extracomment>
        <translation>Size</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>Column head of a list: an identifier.</extracomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>Status of a shared folder: its sync is turned off.</extracomment>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>Status of a shared folder: its sync is turned on.</extracomment>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <extracomment>Message of a question that offers to stop the sync.</extracomment>
        <translation>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Enable SSL encryption</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Select the folder on this computer that you want to sync with the hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos has been shared with you.&quot;</extracomment>
        <translation>has been shared with you.</translation>
    </message>
    <message>
        <source>New share</source>
        <extracomment>Heading of a notification: someone has shared something with the user (noun).</extracomment>
        <translation>New share</translation>
    </message>
    <message>
        <source>Download completed</source>
        <extracomment>Heading of a notification.</extracomment>
        <translation>Download completed</translation>
    </message>
    <message>
        <source>Download failed</source>
        <extracomment>Heading of a notification, or the state of a file.</extracomment>
        <translation>Download failed</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <extracomment>Heading of a page: the hub&apos;s name, version, space and so on.</extracomment>
        <translation>Hub overview</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>The hub at this address has changed. Please link this computer again.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>Synchronization is paused.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>The SSL certificate of the hub is not trusted.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>Synchronization is in progress.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>The client is too old for the hub. Please update the client.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>This folder is already part of a Tessaly backup task. Please choose another folder.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>This task is inactive because the hub cannot be reached.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Heading of the state of a task that can&apos;t reach the hub (adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>The file cannot be downloaded. Please check your connection and your permissions.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>The version history of this file is not available.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>A link cannot be created for this item.</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>Heading of the state of a task that waits for work (a state, noun or adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>Standby</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>Label beside a list of actions: what a double click on the tray icon does.</extracomment>
        <translation>When the tray icon is double-clicked</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>The hub is indexing this folder. Please wait.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Initialization failed. Please restart the application.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Setup cannot replace files that other applications have open.</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Button of the installer: ends it.</extracomment>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Print</source>
        <extracomment>Button of the installer: prints the license agreement (verb).</extracomment>
        <translation>Print</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <extracomment>Message of the installer, second of two: what happens to programs that have files open.</extracomment>
        <translation>Leave the applications open. You will have to restart the computer afterward.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Puts back missing or damaged program files, shortcuts, and registry entries.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <extracomment>Check box on the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>Launch [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] will keep your files safe and in sync.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <extracomment>Message of the installer; Finish is its button.</extracomment>
        <translation>Click Finish to close Setup.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <extracomment>Message of a task; a disk drive of this computer.</extracomment>
        <translation>The drive that holds the local folder is not connected.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Repair [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>Menu item: opens the list of older versions of the file.</extracomment>
        <translation>Browse previous versions</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>What would you like to do?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>[ProductName] is being installed on your computer.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>Choice of the sync direction: from the hub to this computer alone, nothing is uploaded.</extracomment>
        <translation>Download only</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <extracomment>Button of the installer, beside Retry: goes on although files are in use (verb).</extracomment>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Button: answers a question of the installer.</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <extracomment>Message: an entry of a list: what the exported file holds about this computer and about the hub.</extracomment>
        <translation>Information about this computer and the hub that it is linked to.</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>Label of the installer, before the step that is being done; a colon ends it.</extracomment>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Install</source>
        <extracomment>Button of the installer (verb).</extracomment>
        <translation>Install</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Remove [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <extracomment>Status of a shared folder: the user may not change it (adjective; belongs to &quot;folder&quot;).</extracomment>
        <translation>Read only</translation>
    </message>
    <message>
        <source>License agreement</source>
        <extracomment>Heading of an installer page (noun).</extracomment>
        <translation>License agreement</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <extracomment>Message of the installer, above a list of programs; [ProductName] becomes a product name.</extracomment>
        <translation>These applications have files open that [ProductName] Setup needs to replace:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <extracomment>Heading of a chart of what was transferred lately (noun).</extracomment>
        <translation>Sync activity</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Label/Button of the installer: puts damaged files right (verb).</extracomment>
        <translation>Repair</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <extracomment>Heading of an installer page while it works; [ProductName] becomes a product name.</extracomment>
        <translation>Installing [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>The local folder is missing. It may have been moved, renamed, or deleted.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button of the installer: tries once more (verb).</extracomment>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>Button: answers a question, in the installer too.</extracomment>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Do you really want to cancel the installation of [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Please read the agreement before you continue.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <extracomment>Message of the installer, first of two: what happens to programs that have files open.</extracomment>
        <translation>Close the applications now and reopen them when Setup is done.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <extracomment>Heading of an installer page: files that other programs have open.</extracomment>
        <translation>Files in use</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>Label/Button: takes another value, in the installer other features (verb).</extracomment>
        <translation>Change</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Choose which features are installed and where.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] is always installed with all its features.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Change [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>You can change, repair, or remove the installed program.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Removes the program and its settings from your computer.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>This may take several minutes.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Ready to install [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Tessaly can now be installed. Click Install to start or Back to check your settings.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Setup is about to remove the program.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Ready to remove [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Setup is about to repair the program.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Ready to repair [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Repair, Back, Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <extracomment>Message of the installer: the user ended it before it had installed anything (canceled, not completed).</extracomment>
        <translation>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Label of a range of dates, before the first field; &quot;To&quot; stands before the second.</extracomment>
        <translation>From</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Welcome to [ProductName] Setup</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>[ProductName] is now installed</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name; the user canceled.</extracomment>
        <translation>Setup of [ProductName] was canceled</translation>
    </message>
    <message>
        <source>Download history</source>
        <extracomment>Heading of the list of what was downloaded (noun).</extracomment>
        <translation>Download history</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <extracomment>Button: links this computer to a hub that it does not know yet (verb).</extracomment>
        <translation>Link to a new hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>[ProductName] could not be installed</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <extracomment>Status of a shared folder.</extracomment>
        <translation>Synchronization enabled</translation>
    </message>
    <message>
        <source>Add task</source>
        <extracomment>Button: adds a sync task.</extracomment>
        <translation>Add task</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <extracomment>Choice of the installer, first of two; the user speaks.</extracomment>
        <translation>I accept the license agreement</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Button: empties the fields of a filter (verb).</extracomment>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Heading of the part of a page with the folders to sync (noun, plural).</extracomment>
        <translation>Folders</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <extracomment>Label below the product&apos;s name: a slogan.</extracomment>
        <translation>Your files, up to date on every device.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>This is not the hub that %1 was linked to. Please link this computer again.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Sharing is disabled for your account.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <extracomment>Message: %1 is the task&apos;s name.</extracomment>
        <translation>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>Menu item: opens the folder that a file lies in.</extracomment>
        <translation>Open containing folder</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>The address of the file could not be retrieved from the hub.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Choose the folder on this computer where your files are stored.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <extracomment>Status, short, in the tray: another hub answers at this address.</extracomment>
        <translation>The hub has changed</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>The shared folder &quot;%1&quot; is not mounted on the hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Choice of a list of periods, or the head of a group of events.</extracomment>
        <translation>Today</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>The volume of the remote folder is not mounted on the hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <extracomment>Label beside the path of a folder.</extracomment>
        <translation>Folder location</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <extracomment>Label beside a check box: the folder is synced to this computer (verb).</extracomment>
        <translation>Sync to this computer</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <extracomment>Label below the product&apos;s name: a slogan, three verbs.</extracomment>
        <translation>Sync, share, and protect your files</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Choice/Heading: an entry of a list of periods, and the head of a group of events.</extracomment>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Choose how you want to set up Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <extracomment>Choice of the wizard, first of two ways to set up the client (not the installer; noun).</extracomment>
        <translation>Quick setup</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <extracomment>Label below a list; %1 and %2 are the numbers of the first and the last item shown, %3 is how many there are.</extracomment>
        <translation>Items %1 to %2 of %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <extracomment>Button: closes a hint: the user has understood it.</extracomment>
        <translation>Got it</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>The item was deleted, or you no longer have permission to access it.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Right-click a file or folder to share it, get a link, or browse its previous versions.</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>Label of a filter, beside two dates.</extracomment>
        <translation>Date range</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <extracomment>Menu item of the file manager, one folder: it is no longer synced.</extracomment>
        <translation>Stop syncing this folder</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>%1 hours ago</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>May</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <extracomment>Heading of a warning of the wizard.</extracomment>
        <translation>This computer is already linked</translation>
    </message>
    <message>
        <source>Renamed</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was renamed).</extracomment>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>%1 days ago</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>Status: how long ago a file changed: less than a minute.</extracomment>
        <translation>Just now</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>%1 minutes ago</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Choice: a type of item in a filter or list (noun, singular).</extracomment>
        <translation>File</translation>
    </message>
    <message>
        <source>Last month</source>
        <extracomment>Choice of a list of periods: the calendar month before this one.</extracomment>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>Label beside the field for a word to search for.</extracomment>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Label of a range of dates, before the second field; &quot;From&quot; stands before the first.</extracomment>
        <translation>To</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Label/Column head: the type of an item or a file.</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>Last week</source>
        <extracomment>Choice of a list of periods: the calendar week before this one.</extracomment>
        <translation>Last week</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>April</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>February</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>August</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Button: begins a search (verb).</extracomment>
        <translation>Search</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>October</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <extracomment>Menu item of the file manager, one folder: it is synced once more.</extracomment>
        <translation>Sync this folder again</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <extracomment>Menu item of the file manager, several folders: they are no longer synced.</extracomment>
        <translation>Stop syncing these folders</translation>
    </message>
    <message>
        <source>No history to show</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>No history to show</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <extracomment>Menu item of the file manager, several folders: they are synced once more.</extracomment>
        <translation>Sync these folders again</translation>
    </message>
    <message>
        <source>Send to</source>
        <extracomment>Fragment, first part of a menu item; the name of a hub or folder follows: &quot;Send to Office&quot;.</extracomment>
        <translation>Send to</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>January</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>November</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <extracomment>Heading of the list of files that are being synced at present.</extracomment>
        <translation>Now syncing</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>September</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>Choice of a filter of the history: no type of event is left out.</extracomment>
        <translation>All events</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>July</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>Column head of the history: the day.</extracomment>
        <translation>Date</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>June</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>March</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>December</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>Column head of the history: the kind of file.</extracomment>
        <translation>File type</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <extracomment>Menu item/Choice: opens the wizard that sets up the client step by step (noun); not the installer, and not &quot;Advanced settings&quot;.</extracomment>
        <translation>Advanced setup</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>Check box below a message.</extracomment>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Start syncing in one step with the recommended settings.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Your home folder on the hub and the new folder on this computer are now kept identical.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <extracomment>Heading of the wizard&apos;s last page: the client is set up (not the installer).</extracomment>
        <translation>Setup is complete</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Put files into the synced folder, and they appear on the hub and on all your other computers.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Click the tray icon to see the sync status and the files that were changed last.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <extracomment>Heading of a wizard page: quick or advanced set-up of the client (not the installer).</extracomment>
        <translation>Setup mode</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <extracomment>Button: turns an offer down.</extracomment>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Sync your files</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Keep an eye on changes</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <extracomment>Button of the wizard.</extracomment>
        <translation>Find hubs on the local network</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>Heading of a box with the state of a task.</extracomment>
        <translation>Status information</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Username</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Menu item in the tray menu: there is a newer version of the client (noun and adjective).</extracomment>
        <translation>Update available</translation>
    </message>
    <message>
        <source>User: %1</source>
        <extracomment>Screen reader: %1 is a user&apos;s name; &quot;User&quot; is the kind of entry.</extracomment>
        <translation>User: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>This file does not belong to a sync task.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Open main window</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Link this computer to another hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Sync another folder with this hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>New sync task</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Choose the folders, the sync direction, and the filters yourself.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button: closes the wizard&apos;s last page.</extracomment>
        <translation>Done</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Files larger than %1 MB will not be synced.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>Button: opens the folder.</extracomment>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>This folder cannot be synced. Please choose another one.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <extracomment>Tooltip of the button that searches.</extracomment>
        <translation>Search the local network for hubs</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>You only have read access to this shared folder. Files will be downloaded but not uploaded.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <extracomment>Message: %1 is a link; keep it as it is.</extracomment>
        <translation>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>This folder is inside or above a folder that is already synced. Please choose another folder.</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>Menu item: opens the file.</extracomment>
        <translation>Open file</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the hub&apos;s name.</extracomment>
        <translation>This computer is already linked to the hub &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <extracomment>Message of the wizard.</extracomment>
        <translation>A folder named &quot;Tessaly&quot; will be created at this location.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <extracomment>Message of the wizard; &quot;link&quot; is that of this computer to the hub, not a URL.</extracomment>
        <translation>If you continue, the existing link will be replaced.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>The hub is offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <extracomment>Label: the folder of the user on the hub.</extracomment>
        <translation>Home folder</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>A link cannot be created because Norvik is not available on the hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <extracomment>Message of a task; a button beside it confirms.</extracomment>
        <translation>The SSL certificate of the hub has changed. Please confirm the new certificate.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Set the folders to sync</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <extracomment>Message of a task; the direction is upload only, download only or two-way.</extracomment>
        <translation>The sync direction does not match your permissions on the remote folder.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>The IP address of this computer is blocked by the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <extracomment>Label above three choices, ends in a colon.</extracomment>
        <translation>When a file was changed on both sides:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <extracomment>Heading of the wizard&apos;s first page.</extracomment>
        <translation>Welcome to the setup wizard</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>Tooltip of the button that turns to the last page of a list (&quot;last&quot; as the opposite of first).</extracomment>
        <translation>Last page</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>Tooltip of the button that turns to the first page of a list.</extracomment>
        <translation>First page</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>Tooltip of the button that turns back several pages; %1 is a number, more than one.</extracomment>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>Tooltip of the button that turns on several pages; %1 is a number, more than one.</extracomment>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>Status, shown while this computer&apos;s link to the hub is being ended.</extracomment>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Too many failed attempts. Please try again later.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>The folder cannot be checked because the connection to the hub failed.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>The shared folder no longer exists on the hub.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <extracomment>Heading of a wizard page: the folders that are synced (noun).</extracomment>
        <translation>Sync folders</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <extracomment>Choice, first of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Keep the version that was modified last</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>Choice of the sync direction: changes are both uploaded and downloaded.</extracomment>
        <translation>Two-way sync</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Choose which folder on the hub to sync with which folder on this computer.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>Choice: a type of folder on the hub (noun).</extracomment>
        <translation>Shared folder</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a template&apos;s: &quot;Ann requested access to the Bureau template Memo&quot;.</extracomment>
        <translation>requested access to the Bureau template</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>The folder is already used by another sync task on this computer.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the template&apos;s.</extracomment>
        <translation>%1 requested access to the Bureau template &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>The folder cannot be checked because the SSL certificate of the hub has changed.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Please enter the verification code.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>The verification code is incorrect. Please try again.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <extracomment>Hint in the empty field for the code.</extracomment>
        <translation>Enter the 6-digit verification code</translation>
    </message>
    <message>
        <source>Hours</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Hours</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Your storage quota on the volume of this folder is used up.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>The folder cannot be checked because the SSL certificate of the hub is not trusted.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>The folder cannot be checked because of a system error on the hub.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>Tab/Choice: the page of what is synced, and a filter of notifications (noun).</extracomment>
        <translation>Sync</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <extracomment>Choice, second of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Always keep the version on the hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <extracomment>Choice, third of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Rename conflicting files and keep both versions</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>Heading of the wizard&apos;s last page: what was set up.</extracomment>
        <translation>Summary</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the template&apos;s name.</extracomment>
        <translation>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>The contents of both folders will be merged. No file will be deleted.</translation>
    </message>
    <message>
        <source>Account</source>
        <extracomment>Label in the wizard&apos;s summary: the user&apos;s account on the hub.</extracomment>
        <translation>Account</translation>
    </message>
    <message>
        <source>List of connections</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>List of connections</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <extracomment>Screen reader: names the hub that this computer has a connection to now; not the same as &quot;Linked hub&quot;.</extracomment>
        <translation>Connected hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <extracomment>Screen reader: names a button; the link is a URL.</extracomment>
        <translation>Copy the sharing link</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Remove this user&apos;s permission</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <extracomment>Screen reader: %1 is a group&apos;s name; &quot;Group&quot; is the kind of entry.</extracomment>
        <translation>Group: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Open the web portal of Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>Screen reader: names one of the two sides of a task.</extracomment>
        <translation>This computer</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <extracomment>Screen reader: names the other of the two sides of a task: the hub that this computer is linked to; not the same as &quot;Connected hub&quot;.</extracomment>
        <translation>Linked hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <extracomment>Screen reader: describes a task.</extracomment>
        <translation>Sync task for the files that others share with you</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <extracomment>Screen reader: names a tab: the tab with the files that were changed lately.</extracomment>
        <translation>Recently changed files tab</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Tutorial page 2: sync your files</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Tutorial page 3: keep an eye on changes</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Tutorial page 4: share with others</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <extracomment>Screen reader: names a list of permissions.</extracomment>
        <translation>Choose a sharing permission</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly keeps the files on your computers and on the hub identical.</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Fragment, unit after a number field: &quot;Every [4] hours&quot;; the number is mostly more than one.</extracomment>
        <translation>hours</translation>
    </message>
    <message>
        <source>Hub</source>
        <extracomment>Label beside the hub&apos;s name or the field for its address.</extracomment>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <extracomment>Button on the wizard&apos;s last page: opens the user&apos;s synced folder.</extracomment>
        <translation>Open my folder</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>Status, short, of a task.</extracomment>
        <translation>Shared folder not found</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Label in the about box; %1 is a version number.</extracomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>The quota of the shared folder is used up.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <extracomment>Message above a form.</extracomment>
        <translation>Some fields contain invalid values. Please check the highlighted fields.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>Label beside a list: two-way sync, upload only, download only.</extracomment>
        <translation>Sync direction</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <extracomment>Message of a notification.</extracomment>
        <translation>Something went wrong in one of your tasks. Open the main window for details.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Only shared folders that have been enabled in Tessaly Server are listed here.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>You do not have permission to access this folder.</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>Label beside the field for the proxy server&apos;s address in the network.</extracomment>
        <translation>Address</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>Label of a sharing link, before a number of days or a date: &quot;Expires after [30] days&quot;.</extracomment>
        <translation>Expires after</translation>
    </message>
    <message>
        <source>No actions available</source>
        <extracomment>Menu item: can&apos;t be chosen; stands in place of the client&apos;s menu items.</extracomment>
        <translation>No actions available</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>The username or password is incorrect. Please sign in again.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <extracomment>Tooltip of a field; &quot;desktop.ini&quot; is an example and stays; Enter is the key.</extracomment>
        <translation>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>A folder with this name already exists. Please choose another name.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Compare all file attributes when looking for changes</translation>
    </message>
    <message>
        <source>Valid until</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Valid until</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>This field cannot be left blank.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <extracomment>Heading of a part of the page for a sharing link (verb: who may open the link).</extracomment>
        <translation>Restrict access</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Show sync actions in the context menu of files and folders</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <extracomment>Message of a task; the service gives each user a home folder.</extracomment>
        <translation>The user home service is disabled on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <extracomment>Button of the page for a sharing link (URL).</extracomment>
        <translation>Apply and copy link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <extracomment>Check box of a sharing link: how often it may be opened.</extracomment>
        <translation>Limit the number of visits</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Valid from</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>The hub requires a newer version of the client. Do you want to update now?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>The remote folder is on a volume that is not mounted.</translation>
    </message>
    <message>
        <source>Show information</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Show information</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Add a file name</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <extracomment>Screen reader: names the side of a task on this computer.</extracomment>
        <translation>Folder on this computer</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Choose a language</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>List of the file versions that are being downloaded</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <extracomment>Button of a sharing link: sets from when until when it may be opened (verb).</extracomment>
        <translation>Customize the validity period</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <extracomment>Button: opens the tutorial; %1 is a product name.</extracomment>
        <translation>Show the tutorial of %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Change the sync folder</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <extracomment>Screen reader: names the folder on this computer that belongs to a folder on the hub.</extracomment>
        <translation>Linked sync folder</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <extracomment>Screen reader: names a button; the history is the list of transfers.</extracomment>
        <translation>Refresh the history</translation>
    </message>
    <message>
        <source>Previous month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Previous month</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <extracomment>Hint in the empty field for a search of the history.</extracomment>
        <translation>Enter a keyword to search the history</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Add a folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Screen reader: names a calendar.</extracomment>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Next month</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Choose a type of event</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <extracomment>Screen reader: %1 is the task&apos;s name.</extracomment>
        <translation>Sync task &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <extracomment>Screen reader/Label: the side of a task on the hub.</extracomment>
        <translation>Folder on the hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Settings window</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Close the tutorial</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Cancel this download</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <extracomment>Screen reader: names a button: the download&apos;s line leaves the list, the file stays.</extracomment>
        <translation>Remove this download from the list</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Your password has expired. Please change it in the web portal and sign in again.</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>Choice: a role (noun, a person): may open and change; beside Viewer, Previewer, Commenter, Manager.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Renamed on this computer</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Renamed on the hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Please enter no more than %1 characters.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the name of an account.</extracomment>
        <translation>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <extracomment>Heading of a page about the hub.</extracomment>
        <translation>Hub information</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>The Ferrylink relay service is disabled on the hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>&quot;%1&quot; could not be downloaded. Please try again later.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Signing in to the hub failed. Please check your username and password.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <extracomment>Heading/Tab: a page, and the tray&apos;s list of notifications.</extracomment>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>commented on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann commented on Plan.txt&quot;.</extracomment>
        <translation>commented on</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <extracomment>Menu item of a notification: opens what it is about.</extracomment>
        <translation>Open in web portal</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Button: begins to set up what is named beside it (verb).</extracomment>
        <translation>Set up</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <extracomment>Menu item in the tray menu: opens the folder that is synced.</extracomment>
        <translation>Open synced folder</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <extracomment>Tooltip of a folder; %1 is a product name.</extracomment>
        <translation>You only have read access to this folder. %1 will not upload your changes.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>%1 is now linked to the hub and will keep your files in sync.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Setup has collected all the information that it needs.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 is ready.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>%1 is already running.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>%1 keeps the files on your computers and on the hub identical.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <extracomment>Choice: a right on a shared file: look at it without downloading it, and comment on it (verbs).</extracomment>
        <translation>Preview and comment</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>%1 could not be updated. Please try again later.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <extracomment>Screen reader: describes a page of the wizard.</extracomment>
        <translation>Choose what to sync with the new task</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Your changes will be lost. Do you want to continue?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <extracomment>Screen reader: names the tutorial; %1 is a product name.</extracomment>
        <translation>Tutorial of %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>The Ferrylink ID does not exist, or %1 is not running on the hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Only shared folders that have been enabled in %1 are listed here.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <extracomment>Check box of the general options; %1 is a product name.</extracomment>
        <translation>Start %1 when I sign in to this computer</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 is initializing...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>The hub and %1 cannot communicate. Please update both to the latest version.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>This version of %1 is too old for the hub. Please update it.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <extracomment>Status, short, of a task too: the versions of client and hub don&apos;t fit together.</extracomment>
        <translation>Version mismatch</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>The disk is full. Free up some space on this computer so that %1 can continue.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 has encountered a problem. Please restart it.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <extracomment>Screen reader: names a tab: the tab with the notifications.</extracomment>
        <translation>Notifications tab</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>The folder is not empty. %1 will merge its files with those on the hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;); %1 is a product name.</extracomment>
        <translation>Only download changes from %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>%1 is set up. Open your folder to start working.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Tutorial page 1: welcome to Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>This version of Kelvane Quay Client is already installed. Do you want to install it again?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>Set up %1 to sync and back up the files on this computer.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Almost done! Your files will soon be available in Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Almost done! Your files will soon be available on this computer.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>The operation failed. Please try again.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>A folder named &quot;Kelvane Quay&quot; will be created at this location.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>This version of Tessaly is already installed. Do you want to install it again?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>A newer version of Tessaly is already installed. Setup will now exit.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <extracomment>Screen reader: names the tutorial.</extracomment>
        <translation>Tutorial of Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Weeks</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly is ready.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <extracomment>Status, label of the start-up dialog.</extracomment>
        <translation>Tessaly is initializing...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>This version of Tessaly is too old for the hub. Please update it.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <extracomment>Label beside a list of rights on a shared file.</extracomment>
        <translation>Sharing permission</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <extracomment>Button: opens the tutorial.</extracomment>
        <translation>Show the tutorial of Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Start Tessaly when I sign in to this computer</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Tessaly has encountered a problem. Please restart it.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Setup is complete. Your files are now being synced.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <extracomment>Message of the wizard&apos;s last page.</extracomment>
        <translation>Click the tray icon at any time to see the status and change the settings.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>The folder is not empty. Tessaly will merge its files with those on the hub.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly is already running.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Tessaly is set up. Open your folder to start working.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>You only have read access to this folder. Tessaly will not upload your changes.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Open Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <extracomment>Message in the tray menu; %1 is a version number.</extracomment>
        <translation>Version %1 is available. Click here to update.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: empties a list or a field (verb).</extracomment>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Date and time</source>
        <extracomment>Column head of a list.</extracomment>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>There is not enough space on this disk. Tessaly needs at least %1 MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly is now linked to the hub and will keep your files in sync.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly can be linked to the same hub only once with the same account.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Set up Tessaly to sync the files on this computer.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Can comment</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Hub users with the link can view</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Hub users with the link can edit</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Only people who have been invited can open the link</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Anyone with the link can comment</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Anyone with the link can view</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Hub users with the link can comment</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Anyone with the link can edit</translation>
    </message>
    <message>
        <source>Can view</source>
        <extracomment>Choice: a right on a shared file: open it, change nothing.</extracomment>
        <translation>Can view</translation>
    </message>
    <message>
        <source>Can manage</source>
        <extracomment>Choice: a right on a shared folder: change it and give rights to others.</extracomment>
        <translation>Can manage</translation>
    </message>
    <message>
        <source>Can edit</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Can edit</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>The web portal cannot be opened. Please check your connection to the hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <extracomment>Button: opens a field for the names of people to share with.</extracomment>
        <translation>Invite people</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>Choice: a right on a shared file: none.</extracomment>
        <translation>No access</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>There are no shared folders.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Menu item/Button: fetches the file (verb).</extracomment>
        <translation>Download</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Public sharing is disabled on the hub.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Sharing is disabled. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Menu item: makes an older version of a file the current one (verb).</extracomment>
        <translation>Restore</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <extracomment>Message below the question whether to remove the link (URL).</extracomment>
        <translation>People who have the link will no longer be able to open the file.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s; a Grida spreadsheet is a whole file, not one sheet.</extracomment>
        <translation>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>No data</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>No data</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>Button/Menu item: opens the page on which an item is shared (verb).</extracomment>
        <translation>Share</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>The file or folder does not exist.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>You do not have permission to perform this action.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <extracomment>Choice of a list of days on which a backup runs: Saturday and Sunday.</extracomment>
        <translation>Weekends</translation>
    </message>
    <message>
        <source>Hub users</source>
        <extracomment>Choice: who may open a sharing link: everyone who has an account on the hub.</extracomment>
        <translation>Hub users</translation>
    </message>
    <message>
        <source>My Quay</source>
        <extracomment>Name of the user&apos;s folder; stays as it is.</extracomment>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Invited people only</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Tab of the settings: how things look.</extracomment>
        <translation>Display</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Anyone with the link</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Set an expiration date</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <extracomment>Heading of a list: those that an item is shared with.</extracomment>
        <translation>Users and groups</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <extracomment>Check box of the display settings.</extracomment>
        <translation>Show the synced folders in the sidebar of the file manager</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <extracomment>Label below a picture of a tutorial page.</extracomment>
        <translation>Your computer</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <extracomment>Heading of a tutorial page, alone (no verb).</extracomment>
        <translation>All your files, everywhere</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Save space with on-demand sync</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>All files show up on your computer, but they only take up space once you open them.</translation>
    </message>
    <message>
        <source>Online only</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file lies on the hub alone.</extracomment>
        <translation>Online only</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file was downloaded.</extracomment>
        <translation>Available on this computer</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann mentioned you in Plan.txt&quot;.</extracomment>
        <translation>mentioned you in</translation>
    </message>
    <message>
        <source>requested access to</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann requested access to Plan.txt&quot;.</extracomment>
        <translation>requested access to</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 shared the file &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <extracomment>Fragment in a list of notifications, after a person&apos;s name and before a file&apos;s: &quot;Ann shared with you Plan.txt&quot;.</extracomment>
        <translation>shared with you</translation>
    </message>
    <message>
        <source>Shared</source>
        <extracomment>Choice of a filter of notifications: those about files that were shared with the user.</extracomment>
        <translation>Shared</translation>
    </message>
    <message>
        <source>Access request</source>
        <extracomment>Choice of a filter of notifications: someone asks for access (noun).</extracomment>
        <translation>Access request</translation>
    </message>
    <message>
        <source>Comments</source>
        <extracomment>Choice of a filter of notifications (noun, plural).</extracomment>
        <translation>Comments</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <extracomment>Heading of a page: files that others share with the user.</extracomment>
        <translation>Shared with me</translation>
    </message>
    <message>
        <source>Mentions</source>
        <extracomment>Choice of a filter of notifications: someone wrote the user&apos;s name in a comment (noun, plural).</extracomment>
        <translation>Mentions</translation>
    </message>
    <message>
        <source>Upload only</source>
        <extracomment>Choice of the sync direction: from this computer to the hub alone, nothing is downloaded.</extracomment>
        <translation>Upload only</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <extracomment>Check box of a task&apos;s settings and filters.</extracomment>
        <translation>Keep files on the hub when they are deleted from this computer</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Later</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>&quot;%1&quot; has been downloaded.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Your files are up to date on all your devices.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Congratulations!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>You are ready to work with Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <extracomment>Choice of the wizard, second of two: files that others share with the user.</extracomment>
        <translation>Enable later</translation>
    </message>
    <message>
        <source>Enable now</source>
        <extracomment>Choice of the wizard, first of two: files that others share with the user.</extracomment>
        <translation>Enable now</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Files shared with you</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Create a sync task</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <extracomment>Choice of the wizard: which files a new task syncs (team: a group of people).</extracomment>
        <translation>My files and team folders</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <extracomment>Choice of the wizard: which files a new task syncs.</extracomment>
        <translation>Files shared with me</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>This is not the hub that Tessaly was linked to. Please link this computer again.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>The hub and Tessaly cannot communicate. Please update both to the latest version.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Never miss a change</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>The disk is full. Free up some space on this computer so that Tessaly can continue.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <extracomment>Choice: a type of folder on the hub (team: a group of people).</extracomment>
        <translation>Team folder</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;).</extracomment>
        <translation>Only download changes from Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Tessaly could not be updated. Please try again later.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <extracomment>Heading of a tutorial page, an invitation (verb: within seconds).</extracomment>
        <translation>Share in seconds</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Right-click a file or folder, create a link, and decide who may open it and for how long.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the folder&apos;s.</extracomment>
        <translation>%1 shared the folder &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the folder&apos;s name.</extracomment>
        <translation>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) requests %3 access to the file &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 shared the Folia document &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 shared the Pictra presentation &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <extracomment>Heading of a page: who may see what.</extracomment>
        <translation>Privacy settings</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Protect with a password</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <extracomment>Choice of a list of days on which a backup runs: Monday to Friday.</extracomment>
        <translation>Weekdays</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>A folder named &quot;%1&quot; will be created for the files that others share with you.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <extracomment>Menu item/Label of the file manager: the files are downloaded and stay; also below a picture of it.</extracomment>
        <translation>Always keep on this computer</translation>
    </message>
    <message>
        <source>Any</source>
        <extracomment>Choice of a filter: no type is left out (belongs to &quot;type&quot;).</extracomment>
        <translation>Any</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Column head of the list of files that are being transferred (noun).</extracomment>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Sync task</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Files are backed up as soon as they change.</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Label beside a field: the list below shows what matches (noun).</extracomment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Files are backed up at the times that you set.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <extracomment>Message: %1 is a number that counts down.</extracomment>
        <translation>The backup is complete. The computer will shut down in %1 seconds.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Backup task</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <extracomment>Label above a row of check boxes with the days of the week (not dates).</extracomment>
        <translation>Run on the following days</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Connect to the hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Protect the files on this computer by backing them up to the hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Manual: the backup runs only when you start it.</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Label beside a field for a time of day: when a backup starts (noun).</extracomment>
        <translation>Start time</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>Label beside a list: how often a backup runs (noun).</extracomment>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Last end time</source>
        <extracomment>Label beside a date and time: when the backup came to its end last (a moment, not a duration).</extracomment>
        <translation>Last end time</translation>
    </message>
    <message>
        <source>Last run time</source>
        <extracomment>Label beside a date and time: when the backup ran last (a moment, not a duration).</extracomment>
        <translation>Last run time</translation>
    </message>
    <message>
        <source>Commenter</source>
        <extracomment>Choice: a role (noun, a person): may open and comment; beside Viewer, Previewer, Editor, Manager.</extracomment>
        <translation>Commenter</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <extracomment>Tooltip of the button beside a sharing link (URL).</extracomment>
        <translation>Change who can open this link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Last upload: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <extracomment>Heading of a page.</extracomment>
        <translation>Task settings</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Continuous: files are backed up whenever they change.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <extracomment>Menu item: opens the folder in the system&apos;s program for files.</extracomment>
        <translation>Open in file manager</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <extracomment>Message below an end time that is earlier in the day than the start time.</extracomment>
        <translation>The time is on the following day.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>The sharing information could not be retrieved.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <extracomment>Label beside the path of the folder on the hub that backups are stored in (a place, not a purpose).</extracomment>
        <translation>Backup destination</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <extracomment>Message of a choice; &quot;Back up now&quot; is the text of a button.</extracomment>
        <translation>Files are backed up when you click Back up now.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Allow downloads</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Scheduled: the backup runs at the times that you set.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <extracomment>Heading of a page: the days and times of the backup; not the same as &quot;Backup plan&quot;.</extracomment>
        <translation>Backup schedule</translation>
    </message>
    <message>
        <source>Manager</source>
        <extracomment>Choice: a role (noun, a person): may change everything and give rights; beside Viewer, Previewer, Commenter, Editor.</extracomment>
        <translation>Manager</translation>
    </message>
    <message>
        <source>Previewer</source>
        <extracomment>Choice: a role (noun, a person): may look at a file without downloading it; beside Viewer, Commenter, Editor, Manager.</extracomment>
        <translation>Previewer</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Create a backup task</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Files whose names or extensions are listed here will be skipped.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <extracomment>Check box of a task&apos;s settings (verb: temporary files are synced too).</extracomment>
        <translation>Sync temporary files</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Copy files from this computer to the hub, at once or on a schedule.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Choose when the files are backed up.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Please select at least one folder to back up.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <extracomment>Status of a task; %1 is a number, %2 a size with its unit, %3 the name of a folder or hub, %4 a date.</extracomment>
        <translation>%1 files (%2) backed up to &quot;%3&quot; on %4</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Heading of the page with what was transferred (noun).</extracomment>
        <translation>History</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <extracomment>Button of the first page: sets up a backup task.</extracomment>
        <translation>Start backing up</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Files and folders that match these rules will not be backed up.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <extracomment>Status: stands in place of a path.</extracomment>
        <translation>No folder selected</translation>
    </message>
    <message>
        <source>Free up space</source>
        <extracomment>Menu item of the file manager: the files stay on the hub alone, so that they take no space here.</extracomment>
        <translation>Free up space</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <extracomment>Menu item of the file manager: the opposite of &quot;Always keep on this computer&quot;.</extracomment>
        <translation>Stop keeping on this computer</translation>
    </message>
    <message>
        <source>Selected days</source>
        <extracomment>Choice of a list of days on which a backup runs: days of the week that the user chooses.</extracomment>
        <translation>Selected days</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <extracomment>Label before a list: what the computer does then, such as &quot;Shut down the computer&quot;.</extracomment>
        <translation>When the backup is done</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the computer&apos;s name.</extracomment>
        <translation>Select a folder on &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Select a folder on the hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <extracomment>Fragment before a number field and its unit: &quot;Every [4] hours&quot;.</extracomment>
        <translation>Every</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <extracomment>Check box of a task&apos;s filters (period: the sign &quot;.&quot; before a name).</extracomment>
        <translation>Skip files and folders whose names start with a period</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <extracomment>Button of the first page: sets up a sync task.</extracomment>
        <translation>Start syncing</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>The backup has stopped because the SSL certificate of the hub could not be verified.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>The task could not be registered on the hub. Please try again.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>The backup has stopped because the hub at this address has changed.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>The backup has stopped because the hub and the client cannot communicate. Please update both.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>The backup has stopped because this version of Tessaly is too old for the hub.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <extracomment>Message: %1 is a version number.</extracomment>
        <translation>Please update Tessaly to version %1 or later.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Please check your username and password, then sign in again.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Please check that the hub is turned on and that this computer is connected to the network.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>The hub has blocked the IP address of this computer. Please contact your administrator.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>The SSL certificate of the hub is not valid. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Please ask your administrator to update Tessaly Server on the hub.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Not backed up yet</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Keep a folder on this computer and a folder on the hub identical.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <extracomment>Link: opens a page of the help; keep the tag as it is.</extracomment>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Choose the days and times at which the backup runs.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <extracomment>Check box of a backup&apos;s schedule.</extracomment>
        <translation>Run missed backups as soon as possible</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <extracomment>Message of the wizard; the sides are this computer and the hub.</extracomment>
        <translation>Choose a folder on each side.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Enter the address of the hub and your account.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Please check the settings of the new task.</translation>
    </message>
    <message>
        <source>Path</source>
        <extracomment>Column head in the wizard&apos;s summary: the place of a folder.</extracomment>
        <translation>Path</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>The backup has stopped because signing in to the hub failed.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>The version of the package on the hub is not supported. Please ask your administrator to update it.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>The backup has stopped because the hub has blocked the IP address of this computer.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>The backup has stopped because the package on the hub is too old for this client.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Some of the selected folders no longer exist. Clear them to continue.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <extracomment>Heading of the state of a task: it may upload alone or download alone.</extracomment>
        <translation>Sync direction mismatch</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Choose a type of task</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Work with the same files on all your computers.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Keep a safe copy of your files on the hub.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Sign in to the hub that will store your backups.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Set up your sync folders</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Please free up some space on the disk of this computer.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Choose the folder on the hub that you want to sync.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Files are downloaded only when you open them, which saves space on this computer.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>On-demand sync is not available for the selected folder or the operating system of this computer.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Shared folder not mounted</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <extracomment>Choice of the sync direction: changes are uploaded and never downloaded (&quot;only&quot; goes with &quot;upload&quot;); %1 is a product name.</extracomment>
        <translation>Only upload changes to %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <extracomment>Check box of a page of the settings; the user speaks.</extracomment>
        <translation>Sync the files that others share with me</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <extracomment>Check box of a backup task (verb: temporary files are backed up too).</extracomment>
        <translation>Back up temporary files</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Files that others share with you will appear in a folder of their own on this computer.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <extracomment>Label beside the address of the hub&apos;s web pages.</extracomment>
        <translation>Web portal</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Storage quota used up</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <extracomment>Heading of the state of a task: the hub offers no home folders.</extracomment>
        <translation>Home folder disabled</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Mon</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Thu</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Sat</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Local folder not found</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>The task could not be started. Please restart the application.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>The shared folder of this task is not mounted on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>You no longer have permission to access the shared folder of this task.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <extracomment>Heading of the state of a task: a disk drive of this computer.</extracomment>
        <translation>Drive not connected</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Almost done! Your files will soon be available in %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Enter 0 to set no limit.</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Fri</translation>
    </message>
    <message>
        <source>Role</source>
        <extracomment>Column head of the list of people that an item is shared with: Viewer, Editor and so on.</extracomment>
        <translation>Role</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Sun</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Tue</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Wed</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <extracomment>Choice of the installer, second of two; the user speaks.</extracomment>
        <translation>I do not accept the license agreement</translation>
    </message>
    <message>
        <source>Disk full</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Disk full</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Initialization failed</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>The local folder may have been moved, renamed, or deleted.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Shared folder quota used up</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>The quota of the shared folder is used up. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Remote folder not found</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>The remote folder may have been moved, renamed, or deleted.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <extracomment>Label beside a list: what people with the link (URL) may do.</extracomment>
        <translation>Link permission</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Next backup: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <extracomment>Label of a task: on which days and at which times, as a whole; not the same as &quot;Backup schedule&quot;.</extracomment>
        <translation>Backup plan</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>Label above a field with a URL (noun).</extracomment>
        <translation>Sharing link</translation>
    </message>
    <message>
        <source>Share link</source>
        <extracomment>Button: shows the URL to an item (verb and noun: share the link).</extracomment>
        <translation>Share link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <extracomment>Message: %1 is a product name, %2 and %3 are version numbers.</extracomment>
        <translation>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>This computer is already linked to this hub with the same account.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Loading the shared folders...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Changes on network drives cannot be detected at once. They will be synced with a delay.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Welcome to Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Click the Tessaly icon in the system tray to change the settings.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Click the icon of %1 in the system tray to change the settings.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>Synchronization has stopped because a volume of the hub is full.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>The package on the hub is too old for the client.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Linking to the hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>All files are up to date.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Choice: a right on a shared file, or the command: look at it without downloading it.</extracomment>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>Status of a task and of the client in the tray (adjective).</extracomment>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>Folder link</source>
        <extracomment>Label above a field with a URL to a folder (noun).</extracomment>
        <translation>Folder link</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <extracomment>Label beside a field of a sharing link: the last day on which it may be opened.</extracomment>
        <translation>Expiration date</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <extracomment>Message of the tutorial; %1 is a product name.</extracomment>
        <translation>You are ready to work with %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Status: how long ago a file changed: at this moment.</extracomment>
        <translation>Now</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>Button: sends the file to the hub (verb).</extracomment>
        <translation>Upload</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Please update %1 to version %2 or later.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Choose the files that the new task keeps in sync.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <extracomment>Screen reader: names a button; %1 is a product name.</extracomment>
        <translation>Open the web portal of %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <extracomment>Name of the product, %1 of many texts; fixed.</extracomment>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>The backup has stopped because this version of %1 is too old for the hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Please ask your administrator to update %1 on the hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>A folder named &quot;%1&quot; will be created at this location.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>The folder &quot;%1&quot; could not be created on this computer.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>See all your files without filling up the disk. Each file is downloaded when you open it.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Open the Kelvane Quay web portal</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <extracomment>Screen reader: names a page of the tutorial; %1 is a product name.</extracomment>
        <translation>Tutorial page 1: welcome to %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <extracomment>Column head of a list: sync or backup (noun).</extracomment>
        <translation>Task type</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button: takes what was chosen in a list (verb).</extracomment>
        <translation>Select</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Enable on-demand sync</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <extracomment>Heading of a part of the settings: a feature&apos;s name (noun).</extracomment>
        <translation>On-demand sync</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <extracomment>Heading of an offer: a feature&apos;s name follows the verb (&quot;try&quot; as an invitation).</extracomment>
        <translation>Try on-demand sync</translation>
    </message>
    <message>
        <source>Comment</source>
        <extracomment>Choice: a right on a shared file (verb), beside Preview and Edit.</extracomment>
        <translation>Comment</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>The volume of the hub is full. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Please enter a valid date.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>The end time must be later than the start time.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <extracomment>Tooltip of a cell of the list of excluded files; &quot;*.tmp&quot; is an example and stays.</extracomment>
        <translation>Enter a file name or extension, such as &quot;*.tmp&quot;</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <extracomment>Heading of a page that explains Viewer, Editor and so on.</extracomment>
        <translation>Roles and permissions</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>Button: changes an entry (verb); also a right on a shared file.</extracomment>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <extracomment>Event: what happened to the file, in the history too: it stays on the hub alone (the space was freed up).</extracomment>
        <translation>Space freed up</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <extracomment>Event: what happened to the file, in the history too: it was downloaded and stays.</extracomment>
        <translation>Made available on this computer</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <extracomment>Message: %1 is a product name, %2 a number.</extracomment>
        <translation>There is not enough space on this disk. %1 needs at least %2 MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Sync your home folder and the team folders that you have access to.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Sync the files that others share with you, so that you can open them like your own.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <extracomment>Check box of the wizard.</extracomment>
        <translation>Enable on-demand sync for this task</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>The backup has stopped because your account is not allowed to use the package on the hub.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Sync the files and folders that other users share with you.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Your disk is filling up. Enable on-demand sync to free up space.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <extracomment>Heading of a wizard page, below its title.</extracomment>
        <translation>Everything that others share with you, in one folder</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Please ask your administrator to give you permission to use the package.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>You do not have permission to use the package on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>The destination is already used by another backup task. Please choose another folder.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 cannot communicate with the package on the hub. Please update both to the latest version.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Only you can open the link</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <extracomment>Button in a warning about the certificate: goes on in spite of it.</extracomment>
        <translation>Continue anyway</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly keeps your files identical on all your computers and protects them on the hub.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Share a file with a link. You decide who can view or edit it.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <extracomment>Button on the first page of the tutorial.</extracomment>
        <translation>Start the tour</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: %1 is a product name; keep the link as it is.</extracomment>
        <translation>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Please enter your username.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>All files of this task will be downloaded to this computer. Do you want to continue?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <extracomment>Heading of the first page of the tutorial.</extracomment>
        <translation>Welcome to Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Share with others</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Open the history to find out who changed a file and when.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Keep your files identical on all your computers by syncing them with the hub.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <extracomment>Status of a task; %1 is always 1.</extracomment>
        <translation>%1 file is being processed</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 and the client have different versions. Please update both to the same version.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <extracomment>Status of a task; %1 is any number.</extracomment>
        <translation>Files being processed: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <extracomment>Status of a task; %1 is a number, more than one.</extracomment>
        <translation>%1 files are being processed</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>The volume of this folder does not support quotas.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Your personal storage quota is used up.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <extracomment>Message: %1 to %4 are sizes with their units: used, of, used, of.</extracomment>
        <translation>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>The quota of the shared folder &quot;%1&quot; is used up.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Some folders have reached their quotas.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>The version cannot be restored because the file is excluded by a filter.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Choose the folders to back up and where to store the backups.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Choose what to back up</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>The backup has stopped because your account has been disabled on the hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Syncing...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Please ask your administrator to enable your account.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Your account has been disabled on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <extracomment>Status, short, of a task: the administrator has disabled the user&apos;s account.</extracomment>
        <translation>Account disabled</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Show icons on files that are excluded by a filter</translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>Tab of the hub&apos;s page: space and quotas.</extracomment>
        <translation>Storage</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <extracomment>Screen reader: names a window that asks.</extracomment>
        <translation>Dialog box</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>The backup failed. Please try again.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>The task could not be created. Please try again.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>You no longer have permission to access the shared folder &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <extracomment>Status of a task; %1 is a file name.</extracomment>
        <translation>Processing &quot;%1&quot;...</translation>
    </message>
    <message>
        <source>Days</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Days</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>The task could not be loaded.</translation>
    </message>
    <message>
        <source>Operation</source>
        <extracomment>Column head of a list: what can be done with an entry (noun).</extracomment>
        <translation>Operation</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <extracomment>Message: %1 is a path.</extracomment>
        <translation>The folder &quot;%1&quot; does not exist.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <extracomment>Choice of a list after &quot;When the backup is done&quot;: what the computer does then (verb).</extracomment>
        <translation>Shut down the computer</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>You do not have permission to shut down this computer automatically.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>The backup was canceled.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>The backup is complete.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <extracomment>Choice: how often a backup runs; %1 is a number, more than one.</extracomment>
        <translation>Back up %1 times a day</translation>
    </message>
    <message>
        <source>times</source>
        <extracomment>Fragment, unit after a number field: &quot;[3] times&quot;, a day.</extracomment>
        <translation>times</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <extracomment>Heading/Label: continuous, scheduled or manual (the way in which is backed up).</extracomment>
        <translation>Backup mode</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Do you want to start the backup now?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Please select at least one day of the week.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Last backup: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Every day</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <extracomment>Choice of the backup mode (noun): runs when the user starts it.</extracomment>
        <translation>Manual backup</translation>
    </message>
    <message>
        <source>Once a day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Once a day</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <extracomment>Choice of the backup mode (noun): runs as soon as a file changes.</extracomment>
        <translation>Continuous backup</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <extracomment>Choice of the backup mode (noun): runs at set times.</extracomment>
        <translation>Scheduled backup</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Set the backup plan</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <extracomment>Status of a backup: the state of the disk is being recorded.</extracomment>
        <translation>Taking a snapshot...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>The backup plan could not be saved. Please try again.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</translation>
    </message>
    <message>
        <source>Connection</source>
        <extracomment>Tab/Heading: the connection to the hub.</extracomment>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Show the activity of this task</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Show removed items</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>Label beside a size: how much space is taken (participle; belongs to &quot;space&quot;).</extracomment>
        <translation>Used</translation>
    </message>
    <message>
        <source>Months</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Months</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <extracomment>Label below a bar; %1 and %2 are sizes with their units: &quot;3 GB of 10 GB used&quot;.</extracomment>
        <translation>%1 of %2 used</translation>
    </message>
    <message>
        <source>Background task</source>
        <extracomment>Label beside a task that runs without a window.</extracomment>
        <translation>Background task</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Filter settings window</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Please enter a valid time.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <extracomment>Event in the history, of a file: a rule of the client, not one of the user.</extracomment>
        <translation>Not synced: excluded by a system rule</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <extracomment>Button: opens the settings of the connection to the hub (verb).</extracomment>
        <translation>Edit connection</translation>
    </message>
    <message>
        <source>Not now</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Not now</translation>
    </message>
    <message>
        <source>Created on</source>
        <extracomment>Column head of a list: the day on which a link or a task was made.</extracomment>
        <translation>Created on</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Backup tasks</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>Filters</source>
        <extracomment>Tab of a task&apos;s settings: which files are left out (plural).</extracomment>
        <translation>Filters</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <extracomment>Heading of the list of files that were changed lately (plural).</extracomment>
        <translation>Recently changed</translation>
    </message>
    <message>
        <source>Back up now</source>
        <extracomment>Button: starts the backup at once (verb).</extracomment>
        <translation>Back up now</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Heading of the part of a page with the files to sync (noun, plural).</extracomment>
        <translation>Files</translation>
    </message>
    <message>
        <source>Equal to</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Equal to</translation>
    </message>
    <message>
        <source>Less than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Less than</translation>
    </message>
    <message>
        <source>Greater than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Greater than</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <extracomment>Heading of the box in which a folder is chosen (verb).</extracomment>
        <translation>Select a folder on this computer</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>This folder is already part of a backup task of %1. Please choose another folder.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</translation>
    </message>
    <message>
        <source>IP address</source>
        <extracomment>Label beside the hub&apos;s address in the network.</extracomment>
        <translation>IP address</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann replied to your comment on Plan.txt&quot;.</extracomment>
        <translation>replied to your comment on</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <extracomment>Menu item in the tray menu: opens the page with the state of the tasks.</extracomment>
        <translation>Open sync status</translation>
    </message>
    <message>
        <source>Replies</source>
        <extracomment>Choice of a filter of notifications: replies to the user&apos;s comments (noun, plural).</extracomment>
        <translation>Replies</translation>
    </message>
    <message>
        <source>Not synced</source>
        <extracomment>Event in the history: the file was left out.</extracomment>
        <translation>Not synced</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>No connection to the hub</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes a box.</extracomment>
        <translation>Close</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <extracomment>Heading of a page: rights, password and validity of a sharing link.</extracomment>
        <translation>Advanced sharing</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>The sharing settings could not be saved. Please try again.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <extracomment>Check box for an item.</extracomment>
        <translation>Enable advanced sharing</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <extracomment>Check box for an item: password and validity of its link (URL).</extracomment>
        <translation>Enable link protection</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos is now shared with advanced settings.&quot;</extracomment>
        <translation>is now shared with advanced settings.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <extracomment>Heading of a page: a link (URL) with password and validity (participle; belongs to &quot;sharing&quot;).</extracomment>
        <translation>Protected sharing</translation>
    </message>
    <message>
        <source>Link protection</source>
        <extracomment>Heading of a page: password and validity of a link (URL).</extracomment>
        <translation>Link protection</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Are you sure you want to remove the link? It cannot be restored.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <extracomment>Heading of a question; the link is a URL.</extracomment>
        <translation>Remove this link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Save the logs of the client to a file that you can send to technical support.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <extracomment>Hint in an empty field.</extracomment>
        <translation>Enter a keyword</translation>
    </message>
    <message>
        <source>Remove link</source>
        <extracomment>Button: takes a link (URL) away (verb).</extracomment>
        <translation>Remove link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <extracomment>Tab of the settings: logs and so on (noun).</extracomment>
        <translation>Troubleshooting</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Record more details in the logs to help technical support find the cause of a problem.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Export logs</translation>
    </message>
    <message>
        <source>File deleted</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>File deleted</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <extracomment>Label above a list, ends in a colon.</extracomment>
        <translation>The exported file contains:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Information about the operating system of this computer</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <extracomment>Heading of a part of the settings: more details are written to the logs.</extracomment>
        <translation>Advanced logging</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Advanced logs take up more space on the disk and may slow down the client.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Privacy statement</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>The logs and settings of the client, without passwords</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <extracomment>Check box of the settings: more details are written to the logs.</extracomment>
        <translation>Turn on advanced logging</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <extracomment>Event in the history, of a file: a rule of the user.</extracomment>
        <translation>Not synced: excluded by a filter of the task</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <extracomment>Event in the history, of a file.</extracomment>
        <translation>Not synced: no permission</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Terms of service</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Please enter a size of less than %1 MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>This folder is already part of another backup task. Please choose another folder.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>The task has stopped because of an unexpected error. Please restart the application.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>This file has no previous versions.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>On-demand sync could not be enabled for this task.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>The connection to the hub failed. Please check the address and your network.</translation>
    </message>
    <message>
        <source>:</source>
        <extracomment>Fragment: the colon between a label and its value; a blank that the language sets before it belongs to it.</extracomment>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>File added</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>The name cannot start or end with a space.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>The backup has stopped because the SSL certificate of the hub has changed.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>The SSL certificate of the hub has expired. Please contact your administrator.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>The hub is now able to index your entire home folder.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>You can now sync your entire home folder with this computer.</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Status of a file: another program has it open (participle; belongs to &quot;file&quot;).</extracomment>
        <translation>Locked</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <extracomment>Status, short, of a task: a service of the hub is turned off.</extracomment>
        <translation>Norvik disabled</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>The hub is preparing your home folder. Please try again later.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>File renamed</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <extracomment>Event in a notification; %1 is a file name.</extracomment>
        <translation>&quot;%1&quot; was updated</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <extracomment>Message: the signs after the colon are to be kept as they are.</extracomment>
        <translation>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik is disabled on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Your account has been disabled on the hub, so the folder cannot be checked.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Button: adds an entry to a list (verb).</extracomment>
        <translation>Add</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>Button: deletes an entry (verb).</extracomment>
        <translation>Delete</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>A task with this name already exists.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>None of the selected folders can be used. Please choose another folder.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>No valid folders</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <extracomment>Tooltip: the link is to be kept as it is.</extracomment>
        <translation>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <extracomment>Check box beside a field: the user names the task.</extracomment>
        <translation>Custom task name</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>The name helps you tell your tasks apart. It is shown on this computer only.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>On-demand sync can be turned on or off in the settings of the task.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>This is a required field.</translation>
    </message>
</context>
</TS>
