<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Connect through Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choose another folder</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
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
        <translation>Finish</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Local folder</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Link again</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Checking your username and password...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Connected successfully</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>The files in the two folders will be merged. Do you want to continue?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Starting up...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Please review the following settings before you finish.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>The username or password is incorrect.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Change folder</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>The folder is not empty</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Ferrylink ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Recently updated files</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Get started</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Looking for changes...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>The connection to the hub was lost. Reconnecting...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Customize</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sign-in failed</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Detecting the connection type...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Ferrylink relay</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>The Ferrylink service is not responding. Please try again later.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 files updated</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Your storage quota on the hub is used up. Please free up some space and try again.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Connection type</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Read-only folder</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Change the local folder</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Shared folders</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>The SSL certificate of the hub could not be verified.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Do not use a proxy server</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Use the proxy settings of the system</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Select a folder</source>
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
        <translation>Storage full</translation>
    </message>
    <message>
        <source>Proxy settings</source>
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
        <translation>No more than %1 shared folders can be synced.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
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
        <translation>Set up the proxy server manually</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>There are no changes to apply.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Enable synchronization</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Shared folder name</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>The proxy server requires sign-in</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Something went wrong</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Updating...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Encrypt data transmission with SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Hub name, IP address, or Ferrylink ID</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Show sync status icons on files and folders</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>General options</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Use a black-and-white icon in the system tray</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Checking data...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatic setup failed. Please set up the connection manually.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Finishing the setup...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selective sync</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Files and folders that match these rules will not be synced.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Installing the update...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>File extensions</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Folder on a mount point</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Software update</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Progress: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
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
        <translation>Folder</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>The disk of this computer is full. Please free up some space and try again.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Loading the folder list...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Are you sure you want to unlink this computer from the hub?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Setup</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Syncing %1 files...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Downloading &quot;%1&quot;...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Folders to sync</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximum file size</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Excluded file names</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Excluded files</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>The local database is damaged. Please unlink this computer from the hub and link it again.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>File filter</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Exclusion list</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>The folders that you cleared will be removed from this computer. They stay on the hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Conflict handling</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>The folder is a mount point and cannot be synced. Please choose another folder.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>The download of &quot;%1&quot; was canceled.</translation>
    </message>
    <message>
        <source>Start now</source>
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
        <translation>Linking...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Your account information could not be retrieved from the hub.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>The connection is unstable</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Get link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Linking this computer to the hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Trying to sync...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Viewer</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certificate warning</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Exclusion rules</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Enable SSL encryption</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Select the folder on this computer that you want to sync with the hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>has been shared with you.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>New share</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Download completed</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Download failed</translation>
    </message>
    <message>
        <source>Hub overview</source>
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
        <translation>Standby</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
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
        <translation>Exit</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Leave the applications open. You will have to restart the computer afterward.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Puts back missing or damaged program files, shortcuts, and registry entries.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Launch [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] will keep your files safe and in sync.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Click Finish to close Setup.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>The drive that holds the local folder is not connected.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Repair [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
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
        <translation>Download only</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Information about this computer and the hub that it is linked to.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Remove [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Read only</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>License agreement</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>These applications have files open that [ProductName] Setup needs to replace:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Sync activity</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Repair</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installing [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>The local folder is missing. It may have been moved, renamed, or deleted.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Yes</source>
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
        <translation>Close the applications now and reopen them when Setup is done.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Files in use</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</translation>
    </message>
    <message>
        <source>Change</source>
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
        <translation>Ready to repair [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Welcome to [ProductName] Setup</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>[ProductName] is now installed</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Setup of [ProductName] was canceled</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download history</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Link to a new hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>[ProductName] could not be installed</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Synchronization enabled</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Add task</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>I accept the license agreement</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Your files, up to date on every device.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>This is not the hub that %1 was linked to. Please link this computer again.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Sharing is disabled for your account.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
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
        <translation>The hub has changed</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>The shared folder &quot;%1&quot; is not mounted on the hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>The volume of the remote folder is not mounted on the hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Folder location</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Sync to this computer</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Sync, share, and protect your files</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Choose how you want to set up Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Quick setup</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Items %1 to %2 of %3</translation>
    </message>
    <message>
        <source>Got it</source>
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
        <translation>Date range</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Stop syncing this folder</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 hours ago</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>This computer is already linked</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 days ago</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minutes ago</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Sync this folder again</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Stop syncing these folders</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>No history to show</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Sync these folders again</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send to</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Now syncing</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>All events</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>File type</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Advanced setup</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
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
        <translation>Setup mode</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Sync your files</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Keep an eye on changes</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Find hubs on the local network</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Status information</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Username</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update available</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>User: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>This file does not belong to a sync task.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Open main window</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Link this computer to another hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Sync another folder with this hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>New sync task</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Choose the folders, the sync direction, and the filters yourself.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Files larger than %1 MB will not be synced.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>This folder cannot be synced. Please choose another one.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Search the local network for hubs</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>You only have read access to this shared folder. Files will be downloaded but not uploaded.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>This folder is inside or above a folder that is already synced. Please choose another folder.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>This computer is already linked to the hub &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>A folder named &quot;Tessaly&quot; will be created at this location.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>If you continue, the existing link will be replaced.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>The hub is offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Home folder</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>A link cannot be created because Norvik is not available on the hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>The SSL certificate of the hub has changed. Please confirm the new certificate.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Set the folders to sync</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>The sync direction does not match your permissions on the remote folder.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>The IP address of this computer is blocked by the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>When a file was changed on both sides:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Welcome to the setup wizard</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Unlinking...</source>
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
        <translation>Sync folders</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Keep the version that was modified last</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Two-way sync</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Choose which folder on the hub to sync with which folder on this computer.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Shared folder</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>requested access to the Bureau template</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>The folder is already used by another sync task on this computer.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
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
        <translation>Enter the 6-digit verification code</translation>
    </message>
    <message>
        <source>Hours</source>
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
        <translation>Sync</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Always keep the version on the hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Rename conflicting files and keep both versions</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>The contents of both folders will be merged. No file will be deleted.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>List of connections</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Connected hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Copy the sharing link</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Remove this user&apos;s permission</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Group: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Open the web portal of Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Linked hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Sync task for the files that others share with you</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Recently changed files tab</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Tutorial page 2: sync your files</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Tutorial page 3: keep an eye on changes</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Tutorial page 4: share with others</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Choose a sharing permission</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly keeps the files on your computers and on the hub identical.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>hours</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Open my folder</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Shared folder not found</translation>
    </message>
    <message>
        <source>Version %1</source>
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
        <translation>Some fields contain invalid values. Please check the highlighted fields.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sync direction</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
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
        <translation>Address</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expires after</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>No actions available</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>The username or password is incorrect. Please sign in again.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>A folder with this name already exists. Please choose another name.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Compare all file attributes when looking for changes</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Valid until</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>This field cannot be left blank.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restrict access</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Show sync actions in the context menu of files and folders</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>The user home service is disabled on the hub. Please contact your administrator.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Apply and copy link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Limit the number of visits</translation>
    </message>
    <message>
        <source>Valid from</source>
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
        <translation>Show information</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Add a file name</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Folder on this computer</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Choose a language</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>List of the file versions that are being downloaded</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Customize the validity period</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Show the tutorial of %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Change the sync folder</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Linked sync folder</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Refresh the history</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Previous month</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Enter a keyword to search the history</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Add a folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Next month</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Choose a type of event</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Sync task &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Folder on the hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Settings window</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Close the tutorial</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Cancel this download</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Remove this download from the list</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Your password has expired. Please change it in the web portal and sign in again.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renamed on this computer</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Renamed on the hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Please enter no more than %1 characters.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Hub information</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>The Ferrylink relay service is disabled on the hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>&quot;%1&quot; could not be downloaded. Please try again later.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Signing in to the hub failed. Please check your username and password.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>commented on</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Open in web portal</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Set up</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Open synced folder</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>You only have read access to this folder. %1 will not upload your changes.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 is now linked to the hub and will keep your files in sync.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Setup has collected all the information that it needs.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 is ready.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 is already running.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>%1 keeps the files on your computers and on the hub identical.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Preview and comment</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
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
        <translation>Choose what to sync with the new task</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Your changes will be lost. Do you want to continue?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Tutorial of %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>The Ferrylink ID does not exist, or %1 is not running on the hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Only shared folders that have been enabled in %1 are listed here.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Start %1 when I sign in to this computer</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 is initializing...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>The hub and %1 cannot communicate. Please update both to the latest version.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>This version of %1 is too old for the hub. Please update it.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Version mismatch</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>The disk is full. Free up some space on this computer so that %1 can continue.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>%1 has encountered a problem. Please restart it.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Notifications tab</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>The folder is not empty. %1 will merge its files with those on the hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Only download changes from %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>%1 is set up. Open your folder to start working.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Tutorial page 1: welcome to Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>This version of Kelvane Quay Client is already installed. Do you want to install it again?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
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
        <translation>Tutorial of Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
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
        <translation>Sharing permission</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Show the tutorial of Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
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
        <translation>Open Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>Version %1 is available. Click here to update.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
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
        <translation>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Can comment</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Hub users with the link can view</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Hub users with the link can edit</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Only people who have been invited can open the link</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Anyone with the link can comment</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Anyone with the link can view</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Hub users with the link can comment</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Anyone with the link can edit</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Can view</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Can manage</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Can edit</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>The web portal cannot be opened. Please check your connection to the hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Invite people</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>No access</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>There are no shared folders.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>Restore</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>People who have the link will no longer be able to open the file.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>No data</translation>
    </message>
    <message>
        <source>Share</source>
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
        <translation>Weekends</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Hub users</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Invited people only</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Anyone with the link</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Set an expiration date</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Users and groups</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Show the synced folders in the sidebar of the file manager</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Your computer</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>All your files, everywhere</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Save space with on-demand sync</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>All files show up on your computer, but they only take up space once you open them.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Online only</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Available on this computer</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>mentioned you in</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>requested access to</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 shared the file &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>shared with you</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Shared</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Access request</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Shared with me</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Mentions</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Upload only</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Keep files on the hub when they are deleted from this computer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>&quot;%1&quot; has been downloaded.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Your files are up to date on all your devices.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
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
        <translation>Enable later</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Enable now</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Files shared with you</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Create a sync task</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>My files and team folders</translation>
    </message>
    <message>
        <source>Files shared with me</source>
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
        <translation>Never miss a change</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>The disk is full. Free up some space on this computer so that Tessaly can continue.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Team folder</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
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
        <translation>Share in seconds</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Right-click a file or folder, create a link, and decide who may open it and for how long.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 shared the folder &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) requests %3 access to the file &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 shared the Folia document &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 shared the Pictra presentation &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Privacy settings</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Protect with a password</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Weekdays</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>A folder named &quot;%1&quot; will be created for the files that others share with you.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Always keep on this computer</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Any</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Sync task</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Files are backed up as soon as they change.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Files are backed up at the times that you set.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>The backup is complete. The computer will shut down in %1 seconds.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Backup task</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Run on the following days</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Connect to the hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Protect the files on this computer by backing them up to the hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manual: the backup runs only when you start it.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Start time</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Last end time</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Last run time</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Commenter</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Change who can open this link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Last upload: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Task settings</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Continuous: files are backed up whenever they change.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Open in file manager</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>The time is on the following day.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>The sharing information could not be retrieved.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Backup destination</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Files are backed up when you click Back up now.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Allow downloads</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Scheduled: the backup runs at the times that you set.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Backup schedule</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Manager</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Previewer</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Create a backup task</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Files whose names or extensions are listed here will be skipped.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
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
        <translation>%1 files (%2) backed up to &quot;%3&quot; on %4</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Start backing up</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Files and folders that match these rules will not be backed up.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>No folder selected</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Free up space</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Stop keeping on this computer</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Selected days</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>When the backup is done</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Select a folder on &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Select a folder on the hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Every</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Skip files and folders whose names start with a period</translation>
    </message>
    <message>
        <source>Start syncing</source>
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
        <translation>Not backed up yet</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Keep a folder on this computer and a folder on the hub identical.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Choose the days and times at which the backup runs.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Run missed backups as soon as possible</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
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
        <translation>Some of the selected folders no longer exist. Clear them to continue.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Sync direction mismatch</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
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
        <translation>Shared folder not mounted</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Only upload changes to %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Sync the files that others share with me</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Back up temporary files</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Files that others share with you will appear in a folder of their own on this computer.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Web portal</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Storage quota used up</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Home folder disabled</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mon</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Thu</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sat</translation>
    </message>
    <message>
        <source>Local folder not found</source>
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
        <translation>Drive not connected</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Almost done! Your files will soon be available in %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Enter 0 to set no limit.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fri</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Role</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sun</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Tue</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Wed</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>I do not accept the license agreement</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk full</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Initialization failed</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>The local folder may have been moved, renamed, or deleted.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Shared folder quota used up</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>The quota of the shared folder is used up. Please contact your administrator.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Remote folder not found</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>The remote folder may have been moved, renamed, or deleted.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Link permission</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Next backup: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Backup plan</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Sharing link</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Share link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>This computer is already linked to this hub with the same account.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
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
        <translation>Linking to the hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>All files are up to date.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Folder link</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Expiration date</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>You are ready to work with %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Please update %1 to version %2 or later.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Choose the files that the new task keeps in sync.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Open the web portal of %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>The backup has stopped because this version of %1 is too old for the hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Please ask your administrator to update %1 on the hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>A folder named &quot;%1&quot; will be created at this location.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>The folder &quot;%1&quot; could not be created on this computer.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>See all your files without filling up the disk. Each file is downloaded when you open it.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Open the Kelvane Quay web portal</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Tutorial page 1: welcome to %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Task type</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Enable on-demand sync</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>On-demand sync</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Try on-demand sync</translation>
    </message>
    <message>
        <source>Comment</source>
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
        <translation>Enter a file name or extension, such as &quot;*.tmp&quot;</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Roles and permissions</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Space freed up</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Made available on this computer</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
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
        <translation>Everything that others share with you, in one folder</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Please ask your administrator to give you permission to use the package.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
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
        <translation>%1 cannot communicate with the package on the hub. Please update both to the latest version.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Only you can open the link</translation>
    </message>
    <message>
        <source>Continue anyway</source>
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
        <translation>Start the tour</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
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
        <translation>Welcome to Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
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
        <translation>%1 file is being processed</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 and the client have different versions. Please update both to the same version.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Files being processed: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
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
        <translation>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
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
        <translation>Choose what to back up</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>The backup has stopped because your account has been disabled on the hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
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
        <translation>Account disabled</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Show icons on files that are excluded by a filter</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Storage</translation>
    </message>
    <message>
        <source>Dialog box</source>
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
        <translation>You no longer have permission to access the shared folder &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Processing &quot;%1&quot;...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>The task could not be loaded.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>The folder &quot;%1&quot; does not exist.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
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
        <translation>Back up %1 times a day</translation>
    </message>
    <message>
        <source>times</source>
        <translation>times</translation>
    </message>
    <message>
        <source>Backup mode</source>
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
        <translation>Last backup: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Every day</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manual backup</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Once a day</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Continuous backup</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Scheduled backup</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Set the backup plan</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Taking a snapshot...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>The backup plan could not be saved. Please try again.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Show the activity of this task</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Show removed items</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Months</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 of %2 used</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Background task</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Filter settings window</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Please enter a valid time.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Not synced: excluded by a system rule</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edit connection</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Created on</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Backup tasks</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Recently changed</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Back up now</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Equal to</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Less than</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Greater than</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Select a folder on this computer</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>This folder is already part of a backup task of %1. Please choose another folder.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>replied to your comment on</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Open sync status</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Replies</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Not synced</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>No connection to the hub</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Advanced sharing</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>The sharing settings could not be saved. Please try again.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Enable advanced sharing</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Enable link protection</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>is now shared with advanced settings.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Protected sharing</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Link protection</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Are you sure you want to remove the link? It cannot be restored.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Remove this link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Save the logs of the client to a file that you can send to technical support.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Enter a keyword</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Remove link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Troubleshooting</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Record more details in the logs to help technical support find the cause of a problem.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Export logs</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>File deleted</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>The exported file contains:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Information about the operating system of this computer</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Advanced logging</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Advanced logs take up more space on the disk and may slow down the client.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Privacy statement</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>The logs and settings of the client, without passwords</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Turn on advanced logging</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Not synced: excluded by a filter of the task</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Not synced: no permission</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Terms of service</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
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
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
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
        <translation>The hub is now able to index your entire home folder.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>You can now sync your entire home folder with this computer.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Locked</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik disabled</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>The hub is preparing your home folder. Please try again later.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>File renamed</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>&quot;%1&quot; was updated</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
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
        <translation>Add</translation>
    </message>
    <message>
        <source>Delete</source>
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
        <translation>No valid folders</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
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
