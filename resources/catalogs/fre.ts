<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was deleted).</extracomment>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>Menu item/Button: ends the link between this computer and the hub (verb).</extracomment>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <extracomment>Check box/Menu item in the connection settings; Ferrylink is the name of a relay service.</extracomment>
        <translation>Se connecter via Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <extracomment>Button beside a warning about the folder that was chosen.</extracomment>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>Button in a question: puts the files of two folders together.</extracomment>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>Heading/Status: title of a message box, and the state of a task that failed.</extracomment>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <extracomment>Message: %1 is the new file name.</extracomment>
        <translation>Des conflits de fichiers sont survenus. Le fichier a été renommé en %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>La valeur n&apos;est pas valide. Veuillez la vérifier, puis réessayer.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>Le réseau n&apos;est pas disponible. Veuillez vérifier votre connexion, puis réessayer.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>Button on the last page of a wizard and of the installer (verb).</extracomment>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>Label/Column head: above the path of the folder on this computer, and of a list of such folders.</extracomment>
        <translation>Dossier local</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>Menu item in the tray menu: links this computer to the hub again.</extracomment>
        <translation>Associer à nouveau</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Menu item in the tray menu: opens the box with the version and the copyright.</extracomment>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <extracomment>Status, shown while the wizard signs in.</extracomment>
        <translation>Vérification de votre nom d&apos;utilisateur et de votre mot de passe...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <extracomment>Status, shown when the test of the connection is done.</extracomment>
        <translation>Connexion établie</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Les fichiers des deux dossiers seront fusionnés. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <extracomment>Status, shown while the client starts.</extracomment>
        <translation>Démarrage...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Veuillez vérifier les paramètres suivants avant de terminer.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>Status, shown while the wizard tests the connection.</extracomment>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <extracomment>Button beside the path of the sync folder.</extracomment>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <extracomment>Heading of a warning about the folder that was chosen.</extracomment>
        <translation>Le dossier n&apos;est pas vide</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>Label beside a field with the path of a folder.</extracomment>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <extracomment>Label beside the field for the identifier of a hub in the Ferrylink service.</extracomment>
        <translation>Identifiant Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Value&quot;.</extracomment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Name&quot;.</extracomment>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Welcome</source>
        <extracomment>Heading of the first page of a wizard, alone.</extracomment>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Menu item in the tray menu: ends the client.</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>Menu item in the tray menu: opens the list of these files.</extracomment>
        <translation>Fichiers récemment mis à jour</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was downloaded).</extracomment>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Button: opens the help.</extracomment>
        <translation>Aide</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Button: closes a box and takes what was entered, in the installer too.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: closes a box and drops what was entered, in the installer too (verb).</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>Button: goes to the next page of a wizard and of the installer.</extracomment>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: goes to the page before in a wizard and in the installer.</extracomment>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Get started</source>
        <extracomment>Button on the first page of the set-up: begins with it.</extracomment>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Label in the about box, beside the version number.</extracomment>
        <translation>Version</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <extracomment>Status, shown while the client looks through the folders.</extracomment>
        <translation>Recherche de modifications...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <extracomment>Status in the tray.</extracomment>
        <translation>La connexion au hub a été perdue. Reconnexion...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was uploaded).</extracomment>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>Choice: last entry of a list of filters or periods: the user sets one (verb).</extracomment>
        <translation>Personnaliser</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Label/Column head: beside a time of day, and when something happened to a file.</extracomment>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>Choice: how the hub is reached: in the same network.</extracomment>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>Choice: how the hub is reached: straight, without a relay.</extracomment>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <extracomment>Status, short, in the tray: the hub refused username or password.</extracomment>
        <translation>Échec de l&apos;authentification</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>Choice: how the hub is reached: over the Internet.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <extracomment>Status: stands in place of the connection type while it is being found out.</extracomment>
        <translation>Détection du type de connexion...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <extracomment>Choice: how the hub is reached: through the relay server of Ferrylink.</extracomment>
        <translation>Relais Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Le service Ferrylink ne répond pas. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <extracomment>Event in a notification; %1 is a number, always more than one.</extracomment>
        <translation>Fichiers mis à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier. Les modifications effectuées sur cet ordinateur ne seront pas envoyées.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <extracomment>Message of a task, and of a notification.</extracomment>
        <translation>Votre quota de stockage sur le hub est épuisé. Veuillez libérer de l&apos;espace, puis réessayer.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <extracomment>Label beside &quot;Local network&quot;, &quot;Direct connection&quot;, &quot;Internet&quot; or &quot;Ferrylink relay&quot;.</extracomment>
        <translation>Type de connexion</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <extracomment>Heading of a warning: nothing can be changed in the folder.</extracomment>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Menu item/Button/Tab: opens the settings.</extracomment>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <extracomment>Button in the settings of a shared folder.</extracomment>
        <translation>Changer de dossier local</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <extracomment>Heading/Tab: the folders that the hub shares (noun; folders).</extracomment>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <extracomment>Message of the connection settings, and of a task.</extracomment>
        <translation>Le certificat SSL du hub n&apos;a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>Label beside the field for the port number of the proxy server.</extracomment>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <extracomment>Heading of a message box that informs.</extracomment>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>Tab of the settings: the proxy server.</extracomment>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <extracomment>Choice, first of three: none, the system&apos;s, manual.</extracomment>
        <translation>Ne pas utiliser de serveur proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <extracomment>Choice, second of three: none, the system&apos;s, manual.</extracomment>
        <translation>Utiliser les paramètres de proxy du système</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <extracomment>Heading of the box in which a folder is chosen.</extracomment>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>La connexion au serveur de contrôle Ferrylink a échoué. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Vos modifications n&apos;ont pas été enregistrées. Voulez-vous quitter cette page&#xa0;?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <extracomment>Status, short, in the tray: the user&apos;s space on the hub is used up.</extracomment>
        <translation>Stockage saturé</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <extracomment>Heading of the proxy page of the settings.</extracomment>
        <translation>Paramètres du proxy</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>La synchronisation n&apos;a pas pu être activée pour le dossier partagé.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Ce dossier chevauche un dossier déjà synchronisé. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Le nombre de dossiers partagés synchronisés ne peut pas dépasser %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <extracomment>Status, shown while the settings are being stored.</extracomment>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Veuillez saisir un numéro de port compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Veuillez saisir l&apos;adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <extracomment>Choice, third of three: none, the system&apos;s, manual.</extracomment>
        <translation>Configurer le serveur proxy manuellement</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Aucune modification à appliquer.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <extracomment>Check box for a shared folder: it is synced.</extracomment>
        <translation>Activer la synchronisation</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <extracomment>Column head of the list of shared folders.</extracomment>
        <translation>Nom du dossier partagé</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Column head: whether a folder or file is synced.</extracomment>
        <translation>État</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Button: takes over the changes (verb).</extracomment>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Network settings</source>
        <extracomment>Button: opens the network page of the system.</extracomment>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>Menu item/Button: opens the page on which tasks or other things are managed (verb).</extracomment>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <extracomment>Check box of the proxy page: the fields for username and password follow.</extracomment>
        <translation>Le serveur proxy exige une authentification</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <extracomment>Status, short, in the tray and of a task: an unexpected error.</extracomment>
        <translation>Un problème est survenu</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>Status, short, in the tray: the client or a file is being brought up to date.</extracomment>
        <translation>Mise à jour...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Chiffrer la transmission des données avec SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <extracomment>Label beside the field for how to reach the hub.</extracomment>
        <translation>Nom du hub, adresse IP ou identifiant Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Afficher les icônes d&apos;état de synchronisation sur les fichiers et dossiers</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Tab of the settings.</extracomment>
        <translation>Options</translation>
    </message>
    <message>
        <source>General options</source>
        <extracomment>Heading of the general page of the settings.</extracomment>
        <translation>Options générales</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <extracomment>Check box of the general options, and of the display settings.</extracomment>
        <translation>Utiliser une icône en noir et blanc dans la zone de notification</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» est à votre disposition. Vous pouvez activer sa synchronisation avec cet ordinateur.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>Heading of a notification: someone has shared a folder with the user.</extracomment>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Vérification des données...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>La configuration automatique a échoué. Veuillez configurer la connexion manuellement.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <extracomment>Status: last step of the automatic set-up of the client (not of the installer).</extracomment>
        <translation>Finalisation de la configuration...</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>Button: goes on after a warning or a question.</extracomment>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <extracomment>Button: opens the choice of the folders and files that are synced.</extracomment>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <extracomment>Message above the rules of a task&apos;s filter.</extracomment>
        <translation>Les fichiers et dossiers qui correspondent à ces règles ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <extracomment>Status, shown while a new version of the client is being installed.</extracomment>
        <translation>Installation de la mise à jour...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <extracomment>Label above the list of excluded file extensions such as &quot;tmp&quot;.</extracomment>
        <translation>Extensions de fichiers</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <extracomment>Status, short: the shared folder can&apos;t be synced since a volume is mounted in it.</extracomment>
        <translation>Dossier sur un point de montage</translation>
    </message>
    <message>
        <source>Software update</source>
        <extracomment>Heading of the box about a new version of the client (noun).</extracomment>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <extracomment>Status: %1 is a percentage such as 42%.</extracomment>
        <translation>Progression&#xa0;: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <extracomment>Message: question; %1 is the shared folder&apos;s name.</extracomment>
        <translation>Ne plus synchroniser «&#xa0;%1&#xa0;»&#xa0;? Les fichiers présents sur cet ordinateur et sur le hub seront conservés.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Le dossier partagé n&apos;a pas pu être retiré de la liste.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Cette clé de configuration a déjà été utilisée. Veuillez en demander une nouvelle à votre administrateur.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>La nouvelle langue sera appliquée après le redémarrage de l&apos;application.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Choice/Tab: a type of item in a filter or list, and the page with the two folders of a task (noun, singular).</extracomment>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Le disque de cet ordinateur est plein. Veuillez libérer de l&apos;espace, puis réessayer.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>Status, shown while the list of folders comes from the hub.</extracomment>
        <translation>Chargement de la liste des dossiers...</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Button/Menu item/Label: takes an entry off a list, someone&apos;s right off a file, the program off the computer (verb).</extracomment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Voulez-vous vraiment dissocier cet ordinateur du hub&#xa0;?</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>Column head of the list of files: the folder that a file goes to.</extracomment>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <extracomment>Status: state of a task or a file before its transfer.</extracomment>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Envoi...</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>Choice of the list of languages: the one of the system.</extracomment>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>Label beside the list of languages.</extracomment>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>Label beside a field, or a column&apos;s head: the name of a folder.</extracomment>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>Heading of an installer window; [ProductName] becomes a product name; &quot;Setup&quot; is the installer.</extracomment>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <extracomment>Status in the tray; %1 is a number, mostly more than one.</extracomment>
        <translation>Synchronisation des fichiers (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>Status: %1 is a file name.</extracomment>
        <translation>Téléchargement de «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <extracomment>Heading of a page: the folders that the user wants to sync.</extracomment>
        <translation>Dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <extracomment>Button: opens further settings of a task.</extracomment>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <extracomment>Label beside a field: files above this size are not synced.</extracomment>
        <translation>Taille maximale des fichiers</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <extracomment>Label above the list of names of files that are not synced.</extracomment>
        <translation>Noms de fichiers exclus</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <extracomment>Heading of the table of files that are not synced.</extracomment>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>La base de données locale est endommagée. Veuillez dissocier cet ordinateur du hub, puis l&apos;associer à nouveau.</translation>
    </message>
    <message>
        <source>File filter</source>
        <extracomment>Heading of a page: which files are synced and which not (noun).</extracomment>
        <translation>Filtre de fichiers</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <extracomment>Label above the list of names and extensions that are not synced (noun).</extracomment>
        <translation>Liste d&apos;exclusion</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Les dossiers que vous avez désélectionnés seront retirés de cet ordinateur. Ils resteront sur le hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <extracomment>Label beside a list: what happens when a file was changed on both sides.</extracomment>
        <translation>Gestion des conflits</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>Label/Heading: two-way sync, upload only, download only (the way in which is synced).</extracomment>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Status in the tray and of a task (participle; the task or the client was paused).</extracomment>
        <translation>En pause</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Le dossier est un point de montage et ne peut pas être synchronisé. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Le téléchargement de «&#xa0;%1&#xa0;» a été annulé.</translation>
    </message>
    <message>
        <source>Start now</source>
        <extracomment>Button: begins at once what was offered.</extracomment>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>La synchronisation s&apos;est arrêtée car le disque de cet ordinateur est plein.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>La synchronisation s&apos;est arrêtée car votre quota de stockage sur le hub est épuisé.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>Status in the tray: this computer is being linked to the hub.</extracomment>
        <translation>Association...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>Status/Heading, short: the user may not do this, or not use the shared folder.</extracomment>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Les informations de votre compte n&apos;ont pas pu être récupérées depuis le hub.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>Column head of a list, or a label beside a field: the name of this computer.</extracomment>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <extracomment>Status, short, in the tray: the connection comes and goes.</extracomment>
        <translation>La connexion est instable</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>Menu item: makes a link (URL) to the file and copies it.</extracomment>
        <translation>Obtenir le lien</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Association de cet ordinateur au hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>Status, shown while the client tries to sync again.</extracomment>
        <translation>Tentative de synchronisation...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <extracomment>Choice: a role (noun, a person): may open and read; beside Previewer, Commenter, Editor, Manager.</extracomment>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <extracomment>Heading of a warning about the SSL certificate.</extracomment>
        <translation>Avertissement de certificat</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Button/Menu item: interrupts a task, or all, for a while (verb).</extracomment>
        <translation>Mettre en pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Button/Menu item: goes on with a task, or all, after a pause (verb).</extracomment>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <extracomment>Button: opens the rules by which files are not synced (noun).</extracomment>
        <translation>Règles d&apos;exclusion</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Column head: what was done with the file (noun).</extracomment>
        <translation>Action</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>Column head of a list of files.</extracomment>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column head/Label: the size of a file.</extracomment>
        <translation>Taille</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>Column head of a list: an identifier.</extracomment>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>Status of a shared folder: its sync is turned off.</extracomment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>Status of a shared folder: its sync is turned on.</extracomment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <extracomment>Message of a question that offers to stop the sync.</extracomment>
        <translation>Si vous cessez de synchroniser ce dossier partagé, les modifications ultérieures ne seront pas transférées. Les fichiers locaux seront conservés.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Activer le chiffrement SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Sélectionnez le dossier de cet ordinateur que vous souhaitez synchroniser avec le hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos has been shared with you.&quot;</extracomment>
        <translation>a été partagé avec vous.</translation>
    </message>
    <message>
        <source>New share</source>
        <extracomment>Heading of a notification: someone has shared something with the user (noun).</extracomment>
        <translation>Nouveau partage</translation>
    </message>
    <message>
        <source>Download completed</source>
        <extracomment>Heading of a notification.</extracomment>
        <translation>Téléchargement terminé</translation>
    </message>
    <message>
        <source>Download failed</source>
        <extracomment>Heading of a notification, or the state of a file.</extracomment>
        <translation>Échec du téléchargement</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <extracomment>Heading of a page: the hub&apos;s name, version, space and so on.</extracomment>
        <translation>Vue d&apos;ensemble du hub</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Le hub situé à cette adresse a changé. Veuillez associer à nouveau cet ordinateur.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>La synchronisation est en pause.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>Le certificat SSL du hub n&apos;est pas approuvé.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>La synchronisation est en cours.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Le client est trop ancien pour le hub. Veuillez le mettre à jour.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Ce dossier fait déjà partie d&apos;une tâche de sauvegarde Tessaly. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Cette tâche est inactive car le hub est injoignable.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Heading of the state of a task that can&apos;t reach the hub (adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Le fichier ne peut pas être téléchargé. Veuillez vérifier votre connexion et vos autorisations.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>L&apos;historique des versions de ce fichier n&apos;est pas disponible.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Impossible de créer un lien pour cet élément.</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>Heading of the state of a task that waits for work (a state, noun or adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>En attente</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>Label beside a list of actions: what a double click on the tray icon does.</extracomment>
        <translation>En cas de double-clic sur l&apos;icône de la zone de notification</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>Le hub est en train d&apos;indexer ce dossier. Veuillez patienter.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>L&apos;initialisation a échoué. Veuillez redémarrer l&apos;application.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Le programme d&apos;installation ne peut pas remplacer des fichiers ouverts dans d&apos;autres applications.</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Button of the installer: ends it.</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Print</source>
        <extracomment>Button of the installer: prints the license agreement (verb).</extracomment>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <extracomment>Message of the installer, second of two: what happens to programs that have files open.</extracomment>
        <translation>Laisser les applications ouvertes. Vous devrez ensuite redémarrer l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Remet en place les fichiers de programme, raccourcis et entrées de registre manquants ou endommagés.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <extracomment>Check box on the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>Lancer [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] protégera vos fichiers et les gardera synchronisés.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <extracomment>Message of the installer; Finish is its button.</extracomment>
        <translation>Cliquez sur Terminer pour quitter l&apos;installation.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <extracomment>Message of a task; a disk drive of this computer.</extracomment>
        <translation>Le lecteur qui contient le dossier local n&apos;est pas connecté.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Réparer [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>Menu item: opens the list of older versions of the file.</extracomment>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Que souhaitez-vous faire&#xa0;?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>L&apos;installation de [ProductName] sur votre ordinateur est en cours.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>Choice of the sync direction: from the hub to this computer alone, nothing is uploaded.</extracomment>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Une erreur s&apos;est produite et [ProductName] n&apos;a pas été installé. Toutes les modifications effectuées par le programme d&apos;installation ont été annulées. Vous pouvez relancer le programme d&apos;installation à tout moment.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <extracomment>Button of the installer, beside Retry: goes on although files are in use (verb).</extracomment>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Button: answers a question of the installer.</extracomment>
        <translation>Non</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <extracomment>Message: an entry of a list: what the exported file holds about this computer and about the hub.</extracomment>
        <translation>Informations sur cet ordinateur et sur le hub auquel il est associé.</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>Label of the installer, before the step that is being done; a colon ends it.</extracomment>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Install</source>
        <extracomment>Button of the installer (verb).</extracomment>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Cet assistant permet de modifier, de réparer ou de désinstaller [ProductName]. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Désinstaller [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <extracomment>Status of a shared folder: the user may not change it (adjective; belongs to &quot;folder&quot;).</extracomment>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>License agreement</source>
        <extracomment>Heading of an installer page (noun).</extracomment>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <extracomment>Message of the installer, above a list of programs; [ProductName] becomes a product name.</extracomment>
        <translation>Des fichiers que le programme d&apos;installation de [ProductName] doit remplacer sont ouverts dans ces applications&#xa0;:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <extracomment>Heading of a chart of what was transferred lately (noun).</extracomment>
        <translation>Activité de synchronisation</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Label/Button of the installer: puts damaged files right (verb).</extracomment>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <extracomment>Heading of an installer page while it works; [ProductName] becomes a product name.</extracomment>
        <translation>Installation de [ProductName] en cours</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Le dossier local est introuvable. Il a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button of the installer: tries once more (verb).</extracomment>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>Button: answers a question, in the installer too.</extracomment>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Voulez-vous vraiment annuler l&apos;installation de [ProductName]&#xa0;?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Veuillez lire le contrat avant de continuer.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <extracomment>Message of the installer, first of two: what happens to programs that have files open.</extracomment>
        <translation>Fermer les applications maintenant et les rouvrir à la fin de l&apos;installation.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <extracomment>Heading of an installer page: files that other programs have open.</extracomment>
        <translation>Fichiers utilisés</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Fermez les applications et cliquez sur Réessayer. Si vous cliquez sur Ignorer, l&apos;installation de [ProductName] ne sera complète qu&apos;après le prochain redémarrage de l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>Label/Button: takes another value, in the installer other features (verb).</extracomment>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Choisissez les fonctionnalités à installer et leur emplacement.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] est toujours installé avec toutes ses fonctionnalités.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Modifier [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Vous pouvez modifier, réparer ou désinstaller le programme installé.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Désinstalle le programme et retire ses paramètres de votre ordinateur.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Cette opération peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Tessaly peut maintenant être installé. Cliquez sur Installer pour commencer ou sur Précédent pour vérifier vos paramètres.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Le programme d&apos;installation est sur le point de désinstaller le logiciel.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Prêt à désinstaller [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Cliquez sur Retirer pour désinstaller [ProductName] de cet ordinateur. Vos fichiers synchronisés seront conservés.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Le programme d&apos;installation est sur le point de réparer le logiciel.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Repair, Back, Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Cliquez sur Réparer pour commencer, sur Précédent pour choisir une autre action ou sur Annuler pour quitter le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <extracomment>Message of the installer: the user ended it before it had installed anything (canceled, not completed).</extracomment>
        <translation>Vous avez quitté le programme d&apos;installation avant la fin de l&apos;installation de [ProductName]. Votre ordinateur n&apos;a pas été modifié. Vous pouvez relancer le programme d&apos;installation à tout moment.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Cet assistant va installer [ProductName] sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Label of a range of dates, before the first field; &quot;To&quot; stands before the second.</extracomment>
        <translation>Du</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Bienvenue dans l&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>[ProductName] est maintenant installé</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name; the user canceled.</extracomment>
        <translation>L&apos;installation de [ProductName] a été annulée</translation>
    </message>
    <message>
        <source>Download history</source>
        <extracomment>Heading of the list of what was downloaded (noun).</extracomment>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <extracomment>Button: links this computer to a hub that it does not know yet (verb).</extracomment>
        <translation>Associer à un nouveau hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>[ProductName] n&apos;a pas pu être installé</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <extracomment>Status of a shared folder.</extracomment>
        <translation>Synchronisation activée</translation>
    </message>
    <message>
        <source>Add task</source>
        <extracomment>Button: adds a sync task.</extracomment>
        <translation>Ajouter une tâche</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <extracomment>Choice of the installer, first of two; the user speaks.</extracomment>
        <translation>J&apos;accepte le contrat de licence</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Button: empties the fields of a filter (verb).</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Heading of the part of a page with the folders to sync (noun, plural).</extracomment>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <extracomment>Label below the product&apos;s name: a slogan.</extracomment>
        <translation>Vos fichiers, à jour sur tous vos appareils.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Ce hub n&apos;est pas celui auquel %1 était associé. Veuillez associer à nouveau cet ordinateur.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Le partage est désactivé pour votre compte.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <extracomment>Message: %1 is the task&apos;s name.</extracomment>
        <translation>La tâche «&#xa0;%1&#xa0;» s&apos;arrêtera et sa connexion au hub sera supprimée. Les fichiers seront conservés des deux côtés.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>Menu item: opens the folder that a file lies in.</extracomment>
        <translation>Ouvrir le dossier parent</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>L&apos;adresse du fichier n&apos;a pas pu être récupérée depuis le hub.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Choisissez le dossier de cet ordinateur où sont stockés vos fichiers.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <extracomment>Status, short, in the tray: another hub answers at this address.</extracomment>
        <translation>Le hub a changé</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» n&apos;est pas monté sur le hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Choice of a list of periods, or the head of a group of events.</extracomment>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Le volume du dossier distant n&apos;est pas monté sur le hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <extracomment>Label beside the path of a folder.</extracomment>
        <translation>Emplacement du dossier</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <extracomment>Label beside a check box: the folder is synced to this computer (verb).</extracomment>
        <translation>Synchroniser avec cet ordinateur</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Vous n&apos;avez pas ouvert de session en tant qu&apos;administrateur&#xa0;; certaines fonctionnalités risquent de ne pas être installées. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <extracomment>Label below the product&apos;s name: a slogan, three verbs.</extracomment>
        <translation>Synchronisez, partagez et protégez vos fichiers</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Le partage de fichiers via Ferrylink est désactivé sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Choice/Heading: an entry of a list of periods, and the head of a group of events.</extracomment>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Choisissez comment vous souhaitez configurer Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <extracomment>Choice of the wizard, first of two ways to set up the client (not the installer; noun).</extracomment>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <extracomment>Label below a list; %1 and %2 are the numbers of the first and the last item shown, %3 is how many there are.</extracomment>
        <translation>Éléments %1 à %2 sur %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <extracomment>Button: closes a hint: the user has understood it.</extracomment>
        <translation>J&apos;ai compris</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>L&apos;élément a été supprimé ou vous n&apos;êtes plus autorisé à y accéder.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Cliquez avec le bouton droit sur un fichier ou un dossier pour le partager, obtenir un lien ou parcourir ses versions précédentes.</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>Label of a filter, beside two dates.</extracomment>
        <translation>Plage de dates</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <extracomment>Menu item of the file manager, one folder: it is no longer synced.</extracomment>
        <translation>Ne plus synchroniser ce dossier</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Il y a %1&#xa0;h</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Choisissez un dossier sur le hub et un dossier sur cet ordinateur. Leur contenu restera identique.</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Mai</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <extracomment>Heading of a warning of the wizard.</extracomment>
        <translation>Cet ordinateur est déjà associé</translation>
    </message>
    <message>
        <source>Renamed</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was renamed).</extracomment>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Il y a %1&#xa0;j</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>Status: how long ago a file changed: less than a minute.</extracomment>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Il y a %1&#xa0;min</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Choice: a type of item in a filter or list (noun, singular).</extracomment>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Last month</source>
        <extracomment>Choice of a list of periods: the calendar month before this one.</extracomment>
        <translation>Le mois dernier</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>Label beside the field for a word to search for.</extracomment>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Label of a range of dates, before the second field; &quot;From&quot; stands before the first.</extracomment>
        <translation>Au</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Label/Column head: the type of an item or a file.</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>Last week</source>
        <extracomment>Choice of a list of periods: the calendar week before this one.</extracomment>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Avril</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Février</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Août</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Button: begins a search (verb).</extracomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Octobre</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <extracomment>Menu item of the file manager, one folder: it is synced once more.</extracomment>
        <translation>Synchroniser à nouveau ce dossier</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <extracomment>Menu item of the file manager, several folders: they are no longer synced.</extracomment>
        <translation>Ne plus synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>No history to show</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>Aucun historique à afficher</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <extracomment>Menu item of the file manager, several folders: they are synced once more.</extracomment>
        <translation>Synchroniser à nouveau ces dossiers</translation>
    </message>
    <message>
        <source>Send to</source>
        <extracomment>Fragment, first part of a menu item; the name of a hub or folder follows: &quot;Send to Office&quot;.</extracomment>
        <translation>Envoyer vers</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Janvier</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <extracomment>Heading of the list of files that are being synced at present.</extracomment>
        <translation>Synchronisation en cours</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Septembre</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>Choice of a filter of the history: no type of event is left out.</extracomment>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Juillet</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>Column head of the history: the day.</extracomment>
        <translation>Date</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Juin</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Mars</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Décembre</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>Column head of the history: the kind of file.</extracomment>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <extracomment>Menu item/Choice: opens the wizard that sets up the client step by step (noun); not the installer, and not &quot;Advanced settings&quot;.</extracomment>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>Check box below a message.</extracomment>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Commencez à synchroniser en une seule étape avec les paramètres recommandés.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Votre dossier personnel sur le hub et le nouveau dossier sur cet ordinateur resteront désormais identiques.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <extracomment>Heading of the wizard&apos;s last page: the client is set up (not the installer).</extracomment>
        <translation>La configuration est terminée</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Placez des fichiers dans le dossier synchronisé&#xa0;: ils apparaissent sur le hub et sur tous vos autres ordinateurs.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Cliquez sur l&apos;icône de la zone de notification pour voir l&apos;état de la synchronisation et les derniers fichiers modifiés.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <extracomment>Heading of a wizard page: quick or advanced set-up of the client (not the installer).</extracomment>
        <translation>Mode de configuration</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <extracomment>Button: turns an offer down.</extracomment>
        <translation>Non, merci</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Synchronisez vos fichiers</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Gardez un œil sur les modifications</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <extracomment>Button of the wizard.</extracomment>
        <translation>Trouver des hubs sur le réseau local</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>Heading of a box with the state of a task.</extracomment>
        <translation>Informations d&apos;état</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Menu item in the tray menu: there is a newer version of the client (noun and adjective).</extracomment>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>User: %1</source>
        <extracomment>Screen reader: %1 is a user&apos;s name; &quot;User&quot; is the kind of entry.</extracomment>
        <translation>Utilisateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Ce fichier n&apos;appartient à aucune tâche de synchronisation.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Ouvrir la fenêtre principale</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Associer cet ordinateur à un autre hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Synchroniser un autre dossier avec ce hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Nouvelle tâche de synchronisation</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Choisissez vous-même les dossiers, le sens de synchronisation et les filtres.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button: closes the wizard&apos;s last page.</extracomment>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Les fichiers de plus de %1&#xa0;Mo ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>Button: opens the folder.</extracomment>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Ce dossier ne peut pas être synchronisé. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <extracomment>Tooltip of the button that searches.</extracomment>
        <translation>Rechercher des hubs sur le réseau local</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier partagé. Les fichiers seront téléchargés mais pas envoyés.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <extracomment>Message: %1 is a link; keep it as it is.</extracomment>
        <translation>Découvrez d&apos;autres guides dans les &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;didacticiels&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Ce dossier contient un dossier déjà synchronisé ou se trouve dans un tel dossier. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>Menu item: opens the file.</extracomment>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the hub&apos;s name.</extracomment>
        <translation>Cet ordinateur est déjà associé au hub «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <extracomment>Message of the wizard.</extracomment>
        <translation>Un dossier nommé «&#xa0;Tessaly&#xa0;» sera créé à cet emplacement.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <extracomment>Message of the wizard; &quot;link&quot; is that of this computer to the hub, not a URL.</extracomment>
        <translation>Si vous continuez, l&apos;association existante sera remplacée.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Le hub est hors ligne.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <extracomment>Label: the folder of the user on the hub.</extracomment>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Impossible de créer un lien, car Norvik n&apos;est pas disponible sur le hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <extracomment>Message of a task; a button beside it confirms.</extracomment>
        <translation>Le certificat SSL du hub a changé. Veuillez confirmer le nouveau certificat.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Définir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <extracomment>Message of a task; the direction is upload only, download only or two-way.</extracomment>
        <translation>Le sens de synchronisation ne correspond pas à vos autorisations sur le dossier distant.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>L&apos;adresse IP de cet ordinateur est bloquée par le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <extracomment>Label above three choices, ends in a colon.</extracomment>
        <translation>Lorsqu&apos;un fichier a été modifié des deux côtés&#xa0;:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <extracomment>Heading of the wizard&apos;s first page.</extracomment>
        <translation>Bienvenue dans l&apos;assistant de configuration</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>Tooltip of the button that turns to the last page of a list (&quot;last&quot; as the opposite of first).</extracomment>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>Tooltip of the button that turns to the first page of a list.</extracomment>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>Tooltip of the button that turns back several pages; %1 is a number, more than one.</extracomment>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>Tooltip of the button that turns on several pages; %1 is a number, more than one.</extracomment>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>Status, shown while this computer&apos;s link to the hub is being ended.</extracomment>
        <translation>Dissociation...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Trop de tentatives infructueuses. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Le dossier ne peut pas être vérifié, car la connexion au hub a échoué.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>Le dossier partagé n&apos;existe plus sur le hub.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <extracomment>Heading of a wizard page: the folders that are synced (noun).</extracomment>
        <translation>Dossiers synchronisés</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <extracomment>Choice, first of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Conserver la version modifiée en dernier</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>Choice of the sync direction: changes are both uploaded and downloaded.</extracomment>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Choisissez quel dossier du hub synchroniser avec quel dossier de cet ordinateur.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>Choice: a type of folder on the hub (noun).</extracomment>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a template&apos;s: &quot;Ann requested access to the Bureau template Memo&quot;.</extracomment>
        <translation>a demandé l&apos;accès au modèle Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Le dossier est déjà utilisé par une autre tâche de synchronisation sur cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the template&apos;s.</extracomment>
        <translation>%1 a demandé l&apos;accès au modèle Bureau «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Le dossier ne peut pas être vérifié, car le certificat SSL du hub a changé.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Veuillez saisir le code de vérification.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Le code de vérification est incorrect. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <extracomment>Hint in the empty field for the code.</extracomment>
        <translation>Saisissez le code de vérification à 6 chiffres</translation>
    </message>
    <message>
        <source>Hours</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Votre quota de stockage sur le volume de ce dossier est épuisé.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Le dossier ne peut pas être vérifié, car le certificat SSL du hub n&apos;est pas approuvé.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Le dossier ne peut pas être vérifié en raison d&apos;une erreur système sur le hub.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>Tab/Choice: the page of what is synced, and a filter of notifications (noun).</extracomment>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <extracomment>Choice, second of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Toujours conserver la version du hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <extracomment>Choice, third of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Renommer les fichiers en conflit et conserver les deux versions</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>Heading of the wizard&apos;s last page: what was set up.</extracomment>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the template&apos;s name.</extracomment>
        <translation>%1 (%2) demande l&apos;accès suivant au modèle Bureau «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Le contenu des deux dossiers sera fusionné. Aucun fichier ne sera supprimé.</translation>
    </message>
    <message>
        <source>Account</source>
        <extracomment>Label in the wizard&apos;s summary: the user&apos;s account on the hub.</extracomment>
        <translation>Compte</translation>
    </message>
    <message>
        <source>List of connections</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Liste des connexions</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <extracomment>Screen reader: names the hub that this computer has a connection to now; not the same as &quot;Linked hub&quot;.</extracomment>
        <translation>Hub connecté</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <extracomment>Screen reader: names a button; the link is a URL.</extracomment>
        <translation>Copier le lien de partage</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Retirer l&apos;autorisation de cet utilisateur</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <extracomment>Screen reader: %1 is a group&apos;s name; &quot;Group&quot; is the kind of entry.</extracomment>
        <translation>Groupe&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Ouvrir le portail web de Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>Screen reader: names one of the two sides of a task.</extracomment>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <extracomment>Screen reader: names the other of the two sides of a task: the hub that this computer is linked to; not the same as &quot;Connected hub&quot;.</extracomment>
        <translation>Hub associé</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <extracomment>Screen reader: describes a task.</extracomment>
        <translation>Tâche de synchronisation des fichiers que d&apos;autres partagent avec vous</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <extracomment>Screen reader: names a tab: the tab with the files that were changed lately.</extracomment>
        <translation>Onglet Fichiers récemment modifiés</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Page 2 du didacticiel&#xa0;: synchronisez vos fichiers</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Page 3 du didacticiel&#xa0;: gardez un œil sur les modifications</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Page 4 du didacticiel&#xa0;: partagez avec d&apos;autres personnes</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <extracomment>Screen reader: names a list of permissions.</extracomment>
        <translation>Choisir une autorisation de partage</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Avec Tessaly, les fichiers de vos ordinateurs et du hub restent identiques.</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Fragment, unit after a number field: &quot;Every [4] hours&quot;; the number is mostly more than one.</extracomment>
        <translation>heures</translation>
    </message>
    <message>
        <source>Hub</source>
        <extracomment>Label beside the hub&apos;s name or the field for its address.</extracomment>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <extracomment>Button on the wizard&apos;s last page: opens the user&apos;s synced folder.</extracomment>
        <translation>Ouvrir mon dossier</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>Status, short, of a task.</extracomment>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Label in the about box; %1 is a version number.</extracomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Le hub exige l&apos;authentification à deux facteurs. Veuillez la configurer dans le portail web, puis vous authentifier à nouveau.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Le quota du dossier partagé est épuisé.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <extracomment>Message above a form.</extracomment>
        <translation>Certains champs contiennent des valeurs non valides. Veuillez vérifier les champs mis en évidence.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>Label beside a list: two-way sync, upload only, download only.</extracomment>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <extracomment>Message of a notification.</extracomment>
        <translation>Un problème est survenu dans l&apos;une de vos tâches. Ouvrez la fenêtre principale pour en savoir plus.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Seuls les dossiers partagés activés dans Tessaly Server figurent ici.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Vous n&apos;êtes pas autorisé à accéder à ce dossier.</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>Label beside the field for the proxy server&apos;s address in the network.</extracomment>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>Label of a sharing link, before a number of days or a date: &quot;Expires after [30] days&quot;.</extracomment>
        <translation>Expire après</translation>
    </message>
    <message>
        <source>No actions available</source>
        <extracomment>Menu item: can&apos;t be chosen; stands in place of the client&apos;s menu items.</extracomment>
        <translation>Aucune action disponible</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect. Veuillez vous authentifier à nouveau.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <extracomment>Tooltip of a field; &quot;desktop.ini&quot; is an example and stays; Enter is the key.</extracomment>
        <translation>Saisissez un nom de fichier complet, par exemple «&#xa0;desktop.ini&#xa0;», puis appuyez sur Entrée.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Un dossier portant ce nom existe déjà. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Comparer tous les attributs de fichiers lors de la recherche de modifications</translation>
    </message>
    <message>
        <source>Valid until</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Valide jusqu&apos;au</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Ce champ ne peut pas rester vide.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <extracomment>Heading of a part of the page for a sharing link (verb: who may open the link).</extracomment>
        <translation>Restreindre l&apos;accès</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Afficher les actions de synchronisation dans le menu contextuel des fichiers et dossiers</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <extracomment>Message of a task; the service gives each user a home folder.</extracomment>
        <translation>Le service de dossiers personnels est désactivé sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>La mise à jour a échoué. Veuillez &lt;a href=&quot;%1&quot;&gt;télécharger la dernière version&lt;/a&gt; et l&apos;installer manuellement.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <extracomment>Button of the page for a sharing link (URL).</extracomment>
        <translation>Appliquer et copier le lien</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <extracomment>Check box of a sharing link: how often it may be opened.</extracomment>
        <translation>Limiter le nombre de visites</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Valide à partir du</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>Le hub nécessite une version plus récente du client. Voulez-vous effectuer la mise à jour maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>Le dossier distant se trouve sur un volume qui n&apos;est pas monté.</translation>
    </message>
    <message>
        <source>Show information</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Afficher les informations</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Ajouter un nom de fichier</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <extracomment>Screen reader: names the side of a task on this computer.</extracomment>
        <translation>Dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Choisir une langue</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Liste des versions de fichiers en cours de téléchargement</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <extracomment>Button of a sharing link: sets from when until when it may be opened (verb).</extracomment>
        <translation>Personnaliser la période de validité</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <extracomment>Button: opens the tutorial; %1 is a product name.</extracomment>
        <translation>Afficher le didacticiel de %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <extracomment>Screen reader: names the folder on this computer that belongs to a folder on the hub.</extracomment>
        <translation>Dossier de synchronisation associé</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <extracomment>Screen reader: names a button; the history is the list of transfers.</extracomment>
        <translation>Actualiser l&apos;historique</translation>
    </message>
    <message>
        <source>Previous month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <extracomment>Hint in the empty field for a search of the history.</extracomment>
        <translation>Saisissez un mot-clé à rechercher dans l&apos;historique</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Screen reader: names a calendar.</extracomment>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Choisir un type d&apos;événement</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <extracomment>Screen reader: %1 is the task&apos;s name.</extracomment>
        <translation>Tâche de synchronisation «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <extracomment>Screen reader/Label: the side of a task on the hub.</extracomment>
        <translation>Dossier sur le hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Fenêtre des paramètres</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Fermer le didacticiel</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Annuler ce téléchargement</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <extracomment>Screen reader: names a button: the download&apos;s line leaves the list, the file stays.</extracomment>
        <translation>Retirer ce téléchargement de la liste</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Votre mot de passe a expiré. Veuillez le modifier dans le portail web, puis vous authentifier à nouveau.</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>Choice: a role (noun, a person): may open and change; beside Viewer, Previewer, Commenter, Manager.</extracomment>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Renommé sur cet ordinateur</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Renommé sur le hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Veuillez ne pas saisir plus de %1 caractères.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the name of an account.</extracomment>
        <translation>Ce n&apos;est pas le compte avec lequel la tâche a été créée. Veuillez vous authentifier en tant que «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Hub information</source>
        <extracomment>Heading of a page about the hub.</extracomment>
        <translation>Informations sur le hub</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Le service de relais Ferrylink est désactivé sur le hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être téléchargé. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>L&apos;authentification auprès du hub a échoué. Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <extracomment>Heading/Tab: a page, and the tray&apos;s list of notifications.</extracomment>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>commented on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann commented on Plan.txt&quot;.</extracomment>
        <translation>a commenté</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <extracomment>Menu item of a notification: opens what it is about.</extracomment>
        <translation>Ouvrir dans le portail web</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Button: begins to set up what is named beside it (verb).</extracomment>
        <translation>Configurer</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <extracomment>Menu item in the tray menu: opens the folder that is synced.</extracomment>
        <translation>Ouvrir le dossier synchronisé</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <extracomment>Tooltip of a folder; %1 is a product name.</extracomment>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier. %1 n&apos;enverra pas vos modifications.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>%1 est maintenant associé au hub et gardera vos fichiers synchronisés.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Le programme d&apos;installation a recueilli toutes les informations nécessaires.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 est prêt.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>%1 est déjà en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>Avec %1, les fichiers de vos ordinateurs et du hub restent identiques.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <extracomment>Choice: a right on a shared file: look at it without downloading it, and comment on it (verbs).</extracomment>
        <translation>Prévisualiser et commenter</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>%1 n&apos;a pas pu être mis à jour. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>Une version plus récente de Kelvane Quay Client est déjà installée. Le programme d&apos;installation va se fermer.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>Le certificat SSL du hub a changé. Si vous ne vous y attendiez pas, veuillez contacter votre administrateur avant de continuer.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <extracomment>Screen reader: describes a page of the wizard.</extracomment>
        <translation>Choisissez ce que la nouvelle tâche doit synchroniser</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Le dossier appartient à Dropbox. Le synchroniser également avec %1 peut provoquer des conflits de fichiers.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Vos modifications seront perdues. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <extracomment>Screen reader: names the tutorial; %1 is a product name.</extracomment>
        <translation>Didacticiel de %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>L&apos;identifiant Ferrylink n&apos;existe pas ou %1 n&apos;est pas en cours d&apos;exécution sur le hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Seuls les dossiers partagés activés dans %1 figurent ici.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <extracomment>Check box of the general options; %1 is a product name.</extracomment>
        <translation>Démarrer %1 à l&apos;ouverture de ma session sur cet ordinateur</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 est en cours d&apos;initialisation...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Le hub et %1 ne peuvent pas communiquer. Veuillez mettre les deux à jour vers la dernière version.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Cette version de %1 est trop ancienne pour le hub. Veuillez effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <extracomment>Status, short, of a task too: the versions of client and hub don&apos;t fit together.</extracomment>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Le disque est plein. Libérez de l&apos;espace sur cet ordinateur pour que %1 puisse continuer.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 a rencontré un problème. Veuillez le redémarrer.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <extracomment>Screen reader: names a tab: the tab with the notifications.</extracomment>
        <translation>Onglet Notifications</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Le dossier n&apos;est pas vide. %1 fusionnera ses fichiers avec ceux du hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;); %1 is a product name.</extracomment>
        <translation>Uniquement télécharger les modifications depuis %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>%1 est configuré. Ouvrez votre dossier pour commencer à travailler.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Page 1 du didacticiel&#xa0;: bienvenue dans Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Cette version de Kelvane Quay Client est déjà installée. Voulez-vous l&apos;installer à nouveau&#xa0;?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>Configurez %1 pour synchroniser et sauvegarder les fichiers de cet ordinateur.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>C&apos;est presque terminé&#xa0;! Vos fichiers seront bientôt disponibles dans Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>C&apos;est presque terminé&#xa0;! Vos fichiers seront bientôt disponibles sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>L&apos;opération a échoué. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>Un dossier nommé «&#xa0;Kelvane Quay&#xa0;» sera créé à cet emplacement.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Cette version de Tessaly est déjà installée. Voulez-vous l&apos;installer à nouveau&#xa0;?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>Une version plus récente de Tessaly est déjà installée. Le programme d&apos;installation va se fermer.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <extracomment>Screen reader: names the tutorial.</extracomment>
        <translation>Didacticiel de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Semaines</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>Le dossier appartient à Dropbox. Le synchroniser également avec Tessaly peut provoquer des conflits de fichiers.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly est prêt.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <extracomment>Status, label of the start-up dialog.</extracomment>
        <translation>Tessaly est en cours d&apos;initialisation...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>L&apos;identifiant Ferrylink n&apos;existe pas ou Tessaly Server n&apos;est pas en cours d&apos;exécution sur le hub.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Cette version de Tessaly est trop ancienne pour le hub. Veuillez effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <extracomment>Label beside a list of rights on a shared file.</extracomment>
        <translation>Autorisation de partage</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>La version de Tessaly Server sur le hub est trop ancienne pour ce client. Veuillez demander à votre administrateur d&apos;effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <extracomment>Button: opens the tutorial.</extracomment>
        <translation>Afficher le didacticiel de Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Démarrer Tessaly à l&apos;ouverture de ma session sur cet ordinateur</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Tessaly a rencontré un problème. Veuillez le redémarrer.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>La configuration est terminée. Vos fichiers sont en cours de synchronisation.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <extracomment>Message of the wizard&apos;s last page.</extracomment>
        <translation>Cliquez à tout moment sur l&apos;icône de la zone de notification pour voir l&apos;état et modifier les paramètres.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>Le dossier n&apos;est pas vide. Tessaly fusionnera ses fichiers avec ceux du hub.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly est déjà en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Tessaly est configuré. Ouvrez votre dossier pour commencer à travailler.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier. Tessaly n&apos;enverra pas vos modifications.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Ouvrir Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <extracomment>Message in the tray menu; %1 is a version number.</extracomment>
        <translation>La version %1 est disponible. Cliquez ici pour effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Pour utiliser la synchronisation sélective, veuillez demander à votre administrateur de mettre à jour Tessaly Server sur le hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: empties a list or a field (verb).</extracomment>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Date and time</source>
        <extracomment>Column head of a list.</extracomment>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>L&apos;espace disponible sur ce disque est insuffisant. Tessaly a besoin d&apos;au moins %1&#xa0;Mo.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly est maintenant associé au hub et gardera vos fichiers synchronisés.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly ne peut être associé qu&apos;une seule fois au même hub avec le même compte.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Configurez Tessaly pour synchroniser les fichiers de cet ordinateur.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Vous découvrez Tessaly&#xa0;? Consultez d&apos;abord le &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;guide de démarrage rapide&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Peut commenter</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Les utilisateurs du hub disposant du lien peuvent consulter</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Les utilisateurs du hub disposant du lien peuvent modifier</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Seules les personnes invitées peuvent ouvrir le lien</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Toute personne disposant du lien peut commenter</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Toute personne disposant du lien peut consulter</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Les utilisateurs du hub disposant du lien peuvent commenter</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Toute personne disposant du lien peut modifier</translation>
    </message>
    <message>
        <source>Can view</source>
        <extracomment>Choice: a right on a shared file: open it, change nothing.</extracomment>
        <translation>Peut consulter</translation>
    </message>
    <message>
        <source>Can manage</source>
        <extracomment>Choice: a right on a shared folder: change it and give rights to others.</extracomment>
        <translation>Peut gérer</translation>
    </message>
    <message>
        <source>Can edit</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Peut modifier</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Le portail web ne peut pas être ouvert. Veuillez vérifier votre connexion au hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <extracomment>Button: opens a field for the names of people to share with.</extracomment>
        <translation>Inviter des personnes</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>Choice: a right on a shared file: none.</extracomment>
        <translation>Aucun accès</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Il n&apos;y a aucun dossier partagé.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Menu item/Button: fetches the file (verb).</extracomment>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Le partage public est désactivé sur le hub.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Le partage est désactivé. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Menu item: makes an older version of a file the current one (verb).</extracomment>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) demande l&apos;accès suivant au classeur Grida «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <extracomment>Message below the question whether to remove the link (URL).</extracomment>
        <translation>Les personnes disposant du lien ne pourront plus ouvrir le fichier.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s; a Grida spreadsheet is a whole file, not one sheet.</extracomment>
        <translation>%1 a partagé le classeur Grida «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>No data</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>Button/Menu item: opens the page on which an item is shared (verb).</extracomment>
        <translation>Partager</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Le fichier ou le dossier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Vous n&apos;êtes pas autorisé à effectuer cette action.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <extracomment>Choice of a list of days on which a backup runs: Saturday and Sunday.</extracomment>
        <translation>Week-ends</translation>
    </message>
    <message>
        <source>Hub users</source>
        <extracomment>Choice: who may open a sharing link: everyone who has an account on the hub.</extracomment>
        <translation>Utilisateurs du hub</translation>
    </message>
    <message>
        <source>My Quay</source>
        <extracomment>Name of the user&apos;s folder; stays as it is.</extracomment>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Personnes invitées uniquement</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Tab of the settings: how things look.</extracomment>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Toute personne disposant du lien</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Définir une date d&apos;expiration</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <extracomment>Heading of a list: those that an item is shared with.</extracomment>
        <translation>Utilisateurs et groupes</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <extracomment>Check box of the display settings.</extracomment>
        <translation>Afficher les dossiers synchronisés dans la barre latérale du gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Travaillez dans le dossier synchronisé comme dans n&apos;importe quel autre. Vos modifications sont aussitôt transférées sur le hub.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <extracomment>Label below a picture of a tutorial page.</extracomment>
        <translation>Votre ordinateur</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <extracomment>Heading of a tutorial page, alone (no verb).</extracomment>
        <translation>Tous vos fichiers, partout</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Gagnez de l&apos;espace avec la synchronisation à la demande</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Tous les fichiers s&apos;affichent sur votre ordinateur, mais n&apos;occupent de l&apos;espace que lorsque vous les ouvrez.</translation>
    </message>
    <message>
        <source>Online only</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file lies on the hub alone.</extracomment>
        <translation>En ligne uniquement</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file was downloaded.</extracomment>
        <translation>Disponible sur cet ordinateur</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann mentioned you in Plan.txt&quot;.</extracomment>
        <translation>a mentionné votre nom dans</translation>
    </message>
    <message>
        <source>requested access to</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann requested access to Plan.txt&quot;.</extracomment>
        <translation>a demandé l&apos;accès à</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 a partagé le fichier «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <extracomment>Fragment in a list of notifications, after a person&apos;s name and before a file&apos;s: &quot;Ann shared with you Plan.txt&quot;.</extracomment>
        <translation>a partagé avec vous</translation>
    </message>
    <message>
        <source>Shared</source>
        <extracomment>Choice of a filter of notifications: those about files that were shared with the user.</extracomment>
        <translation>Partages</translation>
    </message>
    <message>
        <source>Access request</source>
        <extracomment>Choice of a filter of notifications: someone asks for access (noun).</extracomment>
        <translation>Demande d&apos;accès</translation>
    </message>
    <message>
        <source>Comments</source>
        <extracomment>Choice of a filter of notifications (noun, plural).</extracomment>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <extracomment>Heading of a page: files that others share with the user.</extracomment>
        <translation>Partagés avec moi</translation>
    </message>
    <message>
        <source>Mentions</source>
        <extracomment>Choice of a filter of notifications: someone wrote the user&apos;s name in a comment (noun, plural).</extracomment>
        <translation>Mentions</translation>
    </message>
    <message>
        <source>Upload only</source>
        <extracomment>Choice of the sync direction: from this computer to the hub alone, nothing is downloaded.</extracomment>
        <translation>Envoi uniquement</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <extracomment>Check box of a task&apos;s settings and filters.</extracomment>
        <translation>Conserver les fichiers sur le hub lorsqu&apos;ils sont supprimés de cet ordinateur</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>«&#xa0;%1&#xa0;» a été téléchargé.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Vos fichiers sont à jour sur tous vos appareils.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>Vos fichiers sont également disponibles dans le &lt;a href=&quot;%1&quot;&gt;portail web&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Félicitations&#xa0;!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Vous pouvez maintenant utiliser Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <extracomment>Choice of the wizard, second of two: files that others share with the user.</extracomment>
        <translation>Activer plus tard</translation>
    </message>
    <message>
        <source>Enable now</source>
        <extracomment>Choice of the wizard, first of two: files that others share with the user.</extracomment>
        <translation>Activer maintenant</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Fichiers partagés avec vous</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Créer une tâche de synchronisation</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <extracomment>Choice of the wizard: which files a new task syncs (team: a group of people).</extracomment>
        <translation>Mes fichiers et dossiers d&apos;équipe</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <extracomment>Choice of the wizard: which files a new task syncs.</extracomment>
        <translation>Fichiers partagés avec moi</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Ce hub n&apos;est pas celui auquel Tessaly était associé. Veuillez associer à nouveau cet ordinateur.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Le hub et Tessaly ne peuvent pas communiquer. Veuillez mettre les deux à jour vers la dernière version.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Ne manquez aucune modification</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Le disque est plein. Libérez de l&apos;espace sur cet ordinateur pour que Tessaly puisse continuer.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <extracomment>Choice: a type of folder on the hub (team: a group of people).</extracomment>
        <translation>Dossier d&apos;équipe</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;).</extracomment>
        <translation>Uniquement télécharger les modifications depuis Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Tessaly n&apos;a pas pu être mis à jour. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>L&apos;icône de la zone de notification montre ce qui est en cours de synchronisation et vous signale quand d&apos;autres personnes partagent des fichiers avec vous ou les commentent.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <extracomment>Heading of a tutorial page, an invitation (verb: within seconds).</extracomment>
        <translation>Partagez en quelques secondes</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Cliquez avec le bouton droit sur un fichier ou un dossier, créez un lien et décidez qui peut l&apos;ouvrir et pendant combien de temps.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) demande l&apos;accès suivant à la présentation Pictra «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the folder&apos;s.</extracomment>
        <translation>%1 a partagé le dossier «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the folder&apos;s name.</extracomment>
        <translation>%1 (%2) demande l&apos;accès suivant au dossier «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) demande l&apos;accès suivant au fichier «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) demande l&apos;accès suivant au document Folia «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 a partagé le document Folia «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 a partagé la présentation Pictra «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <extracomment>Heading of a page: who may see what.</extracomment>
        <translation>Paramètres de confidentialité</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Protéger par un mot de passe</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <extracomment>Choice of a list of days on which a backup runs: Monday to Friday.</extracomment>
        <translation>Jours de semaine</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Un dossier nommé «&#xa0;%1&#xa0;» sera créé pour les fichiers que d&apos;autres partagent avec vous.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <extracomment>Menu item/Label of the file manager: the files are downloaded and stay; also below a picture of it.</extracomment>
        <translation>Toujours conserver sur cet ordinateur</translation>
    </message>
    <message>
        <source>Any</source>
        <extracomment>Choice of a filter: no type is left out (belongs to &quot;type&quot;).</extracomment>
        <translation>Tous types</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Column head of the list of files that are being transferred (noun).</extracomment>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Tâche de synchronisation</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Les fichiers sont sauvegardés dès qu&apos;ils sont modifiés.</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Label beside a field: the list below shows what matches (noun).</extracomment>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Les fichiers sont sauvegardés aux heures que vous définissez.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <extracomment>Message: %1 is a number that counts down.</extracomment>
        <translation>La sauvegarde est terminée. L&apos;ordinateur s&apos;éteindra dans %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Tâche de sauvegarde</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <extracomment>Label above a row of check boxes with the days of the week (not dates).</extracomment>
        <translation>Exécuter la sauvegarde les jours suivants</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Se connecter au hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Protégez les fichiers de cet ordinateur en les sauvegardant sur le hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Manuel&#xa0;: la sauvegarde s&apos;exécute uniquement lorsque vous la démarrez.</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Label beside a field for a time of day: when a backup starts (noun).</extracomment>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>Label beside a list: how often a backup runs (noun).</extracomment>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Last end time</source>
        <extracomment>Label beside a date and time: when the backup came to its end last (a moment, not a duration).</extracomment>
        <translation>Fin de la dernière exécution</translation>
    </message>
    <message>
        <source>Last run time</source>
        <extracomment>Label beside a date and time: when the backup ran last (a moment, not a duration).</extracomment>
        <translation>Dernière exécution</translation>
    </message>
    <message>
        <source>Commenter</source>
        <extracomment>Choice: a role (noun, a person): may open and comment; beside Viewer, Previewer, Editor, Manager.</extracomment>
        <translation>Commentateur</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <extracomment>Tooltip of the button beside a sharing link (URL).</extracomment>
        <translation>Modifier qui peut ouvrir ce lien</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Dernier envoi&#xa0;: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <extracomment>Heading of a page.</extracomment>
        <translation>Paramètres de la tâche</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Continu&#xa0;: les fichiers sont sauvegardés à chaque modification.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <extracomment>Menu item: opens the folder in the system&apos;s program for files.</extracomment>
        <translation>Ouvrir dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <extracomment>Message below an end time that is earlier in the day than the start time.</extracomment>
        <translation>Cette heure correspond au lendemain.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Les informations de partage n&apos;ont pas pu être récupérées.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <extracomment>Label beside the path of the folder on the hub that backups are stored in (a place, not a purpose).</extracomment>
        <translation>Destination de la sauvegarde</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <extracomment>Message of a choice; &quot;Back up now&quot; is the text of a button.</extracomment>
        <translation>Les fichiers sont sauvegardés lorsque vous cliquez sur Sauvegarder maintenant.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Autoriser les téléchargements</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Planifié&#xa0;: la sauvegarde s&apos;exécute aux heures que vous définissez.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <extracomment>Heading of a page: the days and times of the backup; not the same as &quot;Backup plan&quot;.</extracomment>
        <translation>Planification de la sauvegarde</translation>
    </message>
    <message>
        <source>Manager</source>
        <extracomment>Choice: a role (noun, a person): may change everything and give rights; beside Viewer, Previewer, Commenter, Editor.</extracomment>
        <translation>Gestionnaire</translation>
    </message>
    <message>
        <source>Previewer</source>
        <extracomment>Choice: a role (noun, a person): may look at a file without downloading it; beside Viewer, Commenter, Editor, Manager.</extracomment>
        <translation>Lecteur (aperçu)</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Créer une tâche de sauvegarde</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Les fichiers dont le nom ou l&apos;extension figure ici seront ignorés.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <extracomment>Check box of a task&apos;s settings (verb: temporary files are synced too).</extracomment>
        <translation>Synchroniser les fichiers temporaires</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Copiez des fichiers de cet ordinateur sur le hub, immédiatement ou selon une planification.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Choisissez quand les fichiers sont sauvegardés.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Veuillez sélectionner au moins un dossier à sauvegarder.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <extracomment>Status of a task; %1 is a number, %2 a size with its unit, %3 the name of a folder or hub, %4 a date.</extracomment>
        <translation>Fichiers sauvegardés dans «&#xa0;%3&#xa0;» le %4&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Heading of the page with what was transferred (noun).</extracomment>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <extracomment>Button of the first page: sets up a backup task.</extracomment>
        <translation>Lancer la sauvegarde</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Les fichiers et dossiers qui correspondent à ces règles ne seront pas sauvegardés.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <extracomment>Status: stands in place of a path.</extracomment>
        <translation>Aucun dossier sélectionné</translation>
    </message>
    <message>
        <source>Free up space</source>
        <extracomment>Menu item of the file manager: the files stay on the hub alone, so that they take no space here.</extracomment>
        <translation>Libérer de l&apos;espace</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <extracomment>Menu item of the file manager: the opposite of &quot;Always keep on this computer&quot;.</extracomment>
        <translation>Ne plus conserver sur cet ordinateur</translation>
    </message>
    <message>
        <source>Selected days</source>
        <extracomment>Choice of a list of days on which a backup runs: days of the week that the user chooses.</extracomment>
        <translation>Jours sélectionnés</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <extracomment>Label before a list: what the computer does then, such as &quot;Shut down the computer&quot;.</extracomment>
        <translation>Une fois la sauvegarde terminée</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the computer&apos;s name.</extracomment>
        <translation>Sélectionnez un dossier sur «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Sélectionnez un dossier sur le hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <extracomment>Fragment before a number field and its unit: &quot;Every [4] hours&quot;.</extracomment>
        <translation>Toutes les</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <extracomment>Check box of a task&apos;s filters (period: the sign &quot;.&quot; before a name).</extracomment>
        <translation>Ignorer les fichiers et dossiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <extracomment>Button of the first page: sets up a sync task.</extracomment>
        <translation>Lancer la synchronisation</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>La sauvegarde s&apos;est arrêtée car le certificat SSL du hub n&apos;a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>La tâche n&apos;a pas pu être enregistrée sur le hub. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>La sauvegarde s&apos;est arrêtée car le hub situé à cette adresse a changé.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>La sauvegarde s&apos;est arrêtée car le hub et le client ne peuvent pas communiquer. Veuillez mettre les deux à jour.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>La sauvegarde s&apos;est arrêtée car cette version de Tessaly est trop ancienne pour le hub.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <extracomment>Message: %1 is a version number.</extracomment>
        <translation>Veuillez mettre Tessaly à jour vers la version %1 ou ultérieure.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe, puis vous authentifier à nouveau.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Veuillez vérifier que le hub est sous tension et que cet ordinateur est connecté au réseau.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>Le hub a bloqué l&apos;adresse IP de cet ordinateur. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>Le certificat SSL du hub n&apos;est pas valide. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Veuillez demander à votre administrateur de mettre à jour Tessaly Server sur le hub.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Pas encore sauvegardé</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Gardez identiques un dossier de cet ordinateur et un dossier du hub.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <extracomment>Link: opens a page of the help; keep the tag as it is.</extracomment>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Choisissez les jours et les heures auxquels la sauvegarde s&apos;exécute.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <extracomment>Check box of a backup&apos;s schedule.</extracomment>
        <translation>Exécuter dès que possible les sauvegardes manquées</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <extracomment>Message of the wizard; the sides are this computer and the hub.</extracomment>
        <translation>Choisissez un dossier de chaque côté.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Saisissez l&apos;adresse du hub et votre compte.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Veuillez vérifier les paramètres de la nouvelle tâche.</translation>
    </message>
    <message>
        <source>Path</source>
        <extracomment>Column head in the wizard&apos;s summary: the place of a folder.</extracomment>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>La sauvegarde s&apos;est arrêtée car l&apos;authentification auprès du hub a échoué.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>La version du paquet sur le hub n&apos;est pas prise en charge. Veuillez demander à votre administrateur d&apos;effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>La sauvegarde s&apos;est arrêtée car le hub a bloqué l&apos;adresse IP de cet ordinateur.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>La sauvegarde s&apos;est arrêtée car le paquet sur le hub est trop ancien pour ce client.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Certains des dossiers sélectionnés n&apos;existent plus. Désélectionnez-les pour continuer.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <extracomment>Heading of the state of a task: it may upload alone or download alone.</extracomment>
        <translation>Sens de synchronisation incompatible</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Kelvane Quay Client peut maintenant être installé. Cliquez sur Installer pour commencer ou sur Précédent pour vérifier vos paramètres.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Choisissez un type de tâche</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Travaillez avec les mêmes fichiers sur tous vos ordinateurs.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Gardez une copie de vos fichiers en lieu sûr sur le hub.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Authentifiez-vous auprès du hub qui stockera vos sauvegardes.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Configurez vos dossiers de synchronisation</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Veuillez libérer de l&apos;espace sur le disque de cet ordinateur.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Choisissez le dossier du hub que vous souhaitez synchroniser.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Les fichiers ne sont téléchargés que lorsque vous les ouvrez, ce qui économise de l&apos;espace sur cet ordinateur.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>La synchronisation à la demande n&apos;est pas disponible pour le dossier sélectionné ou le système d&apos;exploitation de cet ordinateur.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Dossier partagé non monté</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <extracomment>Choice of the sync direction: changes are uploaded and never downloaded (&quot;only&quot; goes with &quot;upload&quot;); %1 is a product name.</extracomment>
        <translation>Uniquement envoyer les modifications vers %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <extracomment>Check box of a page of the settings; the user speaks.</extracomment>
        <translation>Synchroniser les fichiers que d&apos;autres partagent avec moi</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <extracomment>Check box of a backup task (verb: temporary files are backed up too).</extracomment>
        <translation>Sauvegarder les fichiers temporaires</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Les fichiers que d&apos;autres partagent avec vous apparaîtront dans un dossier distinct sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <extracomment>Label beside the address of the hub&apos;s web pages.</extracomment>
        <translation>Portail web</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Quota de stockage épuisé</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <extracomment>Heading of the state of a task: the hub offers no home folders.</extracomment>
        <translation>Dossier personnel désactivé</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Sam</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Dossier local introuvable</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>La tâche n&apos;a pas pu être démarrée. Veuillez redémarrer l&apos;application.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>Le dossier partagé de cette tâche n&apos;est pas monté sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Vous n&apos;êtes plus autorisé à accéder au dossier partagé de cette tâche.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <extracomment>Heading of the state of a task: a disk drive of this computer.</extracomment>
        <translation>Lecteur non connecté</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>C&apos;est presque terminé&#xa0;! Vos fichiers seront bientôt disponibles dans %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Saisissez 0 pour ne définir aucune limite.</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Role</source>
        <extracomment>Column head of the list of people that an item is shared with: Viewer, Editor and so on.</extracomment>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Dim</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Mer</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <extracomment>Choice of the installer, second of two; the user speaks.</extracomment>
        <translation>Je n&apos;accepte pas le contrat de licence</translation>
    </message>
    <message>
        <source>Disk full</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Échec de l&apos;initialisation</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Le dossier local a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Quota du dossier partagé épuisé</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Le quota du dossier partagé est épuisé. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Dossier distant introuvable</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Le dossier distant a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <extracomment>Label beside a list: what people with the link (URL) may do.</extracomment>
        <translation>Autorisation du lien</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Prochaine sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <extracomment>Label of a task: on which days and at which times, as a whole; not the same as &quot;Backup schedule&quot;.</extracomment>
        <translation>Plan de sauvegarde</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>Label above a field with a URL (noun).</extracomment>
        <translation>Lien de partage</translation>
    </message>
    <message>
        <source>Share link</source>
        <extracomment>Button: shows the URL to an item (verb and noun: share the link).</extracomment>
        <translation>Partager le lien</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <extracomment>Message: %1 is a product name, %2 and %3 are version numbers.</extracomment>
        <translation>Les tâches de sauvegarde nécessitent %1 %2 ou une version ultérieure sur le hub. Version installée&#xa0;: %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Cet ordinateur est déjà associé à ce hub avec le même compte.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Chargement des dossiers partagés...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Les modifications sur les lecteurs réseau ne peuvent pas être détectées immédiatement. Elles seront synchronisées avec un délai.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Bienvenue dans Tessaly&#xa0;!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Cliquez sur l&apos;icône de Tessaly dans la zone de notification pour modifier les paramètres.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Cliquez sur l&apos;icône de %1 dans la zone de notification pour modifier les paramètres.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>La synchronisation s&apos;est arrêtée car un volume du hub est plein.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Le paquet sur le hub est trop ancien pour le client.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Association au hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tous les fichiers sont à jour.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Choice: a right on a shared file, or the command: look at it without downloading it.</extracomment>
        <translation>Prévisualiser</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>Status of a task and of the client in the tray (adjective).</extracomment>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Folder link</source>
        <extracomment>Label above a field with a URL to a folder (noun).</extracomment>
        <translation>Lien du dossier</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <extracomment>Label beside a field of a sharing link: the last day on which it may be opened.</extracomment>
        <translation>Date d&apos;expiration</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <extracomment>Message of the tutorial; %1 is a product name.</extracomment>
        <translation>Vous pouvez maintenant utiliser %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Status: how long ago a file changed: at this moment.</extracomment>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>Button: sends the file to the hub (verb).</extracomment>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Veuillez mettre %1 à jour vers la version %2 ou ultérieure.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Choisissez les fichiers que la nouvelle tâche doit garder synchronisés.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <extracomment>Screen reader: names a button; %1 is a product name.</extracomment>
        <translation>Ouvrir le portail web de %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <extracomment>Name of the product, %1 of many texts; fixed.</extracomment>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La sauvegarde s&apos;est arrêtée car cette version de %1 est trop ancienne pour le hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Veuillez demander à votre administrateur de mettre à jour %1 sur le hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Un dossier nommé «&#xa0;%1&#xa0;» sera créé à cet emplacement.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;a pas pu être créé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Affichez tous vos fichiers sans remplir le disque. Chaque fichier est téléchargé lorsque vous l&apos;ouvrez.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Ouvrir le portail web de Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Une version plus récente de Tessaly est déjà installée. Veuillez la désinstaller avant d&apos;installer Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <extracomment>Screen reader: names a page of the tutorial; %1 is a product name.</extracomment>
        <translation>Page 1 du didacticiel&#xa0;: bienvenue dans %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <extracomment>Column head of a list: sync or backup (noun).</extracomment>
        <translation>Type de tâche</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button: takes what was chosen in a list (verb).</extracomment>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Les fonctionnalités de synchronisation et de sauvegarde de Kelvane Quay Client peuvent maintenant être installées. Cliquez sur Installer pour commencer ou sur Précédent pour vérifier vos paramètres.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Activer la synchronisation à la demande</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Le dossier de synchronisation à la demande «&#xa0;%1&#xa0;» est introuvable. Veuillez configurer à nouveau la tâche.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <extracomment>Heading of a part of the settings: a feature&apos;s name (noun).</extracomment>
        <translation>Synchronisation à la demande</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <extracomment>Heading of an offer: a feature&apos;s name follows the verb (&quot;try&quot; as an invitation).</extracomment>
        <translation>Essayez la synchronisation à la demande</translation>
    </message>
    <message>
        <source>Comment</source>
        <extracomment>Choice: a right on a shared file (verb), beside Preview and Edit.</extracomment>
        <translation>Commenter</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Le volume du hub est plein. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Veuillez saisir une date valide.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>L&apos;heure de fin doit être postérieure à l&apos;heure de début.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <extracomment>Tooltip of a cell of the list of excluded files; &quot;*.tmp&quot; is an example and stays.</extracomment>
        <translation>Saisissez un nom ou une extension de fichier, par exemple «&#xa0;*.tmp&#xa0;»</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <extracomment>Heading of a page that explains Viewer, Editor and so on.</extracomment>
        <translation>Rôles et autorisations</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>Button: changes an entry (verb); also a right on a shared file.</extracomment>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <extracomment>Event: what happened to the file, in the history too: it stays on the hub alone (the space was freed up).</extracomment>
        <translation>Espace libéré</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <extracomment>Event: what happened to the file, in the history too: it was downloaded and stays.</extracomment>
        <translation>Rendu disponible sur cet ordinateur</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>La synchronisation à la demande nécessite un dossier sur un lecteur NTFS qui n&apos;est ni un lecteur réseau ni un lecteur amovible.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Gardez les fichiers en ligne jusqu&apos;à ce que vous en ayez besoin. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Fonctionnement de la synchronisation à la demande&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <extracomment>Message: %1 is a product name, %2 a number.</extracomment>
        <translation>L&apos;espace disponible sur ce disque est insuffisant. %1 a besoin d&apos;au moins %2&#xa0;Mo.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Synchronisez votre dossier personnel et les dossiers d&apos;équipe auxquels vous avez accès.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Si vous désactivez cette option, le dossier contenant les fichiers que d&apos;autres partagent avec vous sera retiré de cet ordinateur. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Synchronisez les fichiers que d&apos;autres partagent avec vous afin de pouvoir les ouvrir comme les vôtres.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <extracomment>Check box of the wizard.</extracomment>
        <translation>Activer la synchronisation à la demande pour cette tâche</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>La sauvegarde s&apos;est arrêtée car votre compte n&apos;est pas autorisé à utiliser le paquet sur le hub.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Synchronisez les fichiers et dossiers que d&apos;autres utilisateurs partagent avec vous.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Votre disque est presque plein. Activez la synchronisation à la demande pour libérer de l&apos;espace.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <extracomment>Heading of a wizard page, below its title.</extracomment>
        <translation>Tout ce que d&apos;autres partagent avec vous, dans un seul dossier</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Veuillez demander à votre administrateur de vous accorder l&apos;autorisation d&apos;utiliser le paquet.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Ce client nécessite %1 %2 ou une version ultérieure sur le hub. Veuillez demander à votre administrateur d&apos;effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Vous n&apos;êtes pas autorisé à utiliser le paquet sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>La destination est déjà utilisée par une autre tâche de sauvegarde. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 ne peut pas communiquer avec le paquet sur le hub. Veuillez mettre les deux à jour vers la dernière version.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Vous êtes la seule personne à pouvoir ouvrir le lien</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <extracomment>Button in a warning about the certificate: goes on in spite of it.</extracomment>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly garde vos fichiers identiques sur tous vos ordinateurs et les protège sur le hub.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Partagez un fichier à l&apos;aide d&apos;un lien. Vous décidez qui peut le consulter ou le modifier.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <extracomment>Button on the first page of the tutorial.</extracomment>
        <translation>Démarrer la visite</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: %1 is a product name; keep the link as it is.</extracomment>
        <translation>Vous découvrez %1&#xa0;? Consultez d&apos;abord le &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;guide de démarrage rapide&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Veuillez saisir votre nom d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Tous les fichiers de cette tâche seront téléchargés sur cet ordinateur. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <extracomment>Heading of the first page of the tutorial.</extracomment>
        <translation>Bienvenue dans Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Partagez avec d&apos;autres personnes</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Ouvrez l&apos;historique pour savoir qui a modifié un fichier et quand.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Gardez vos fichiers identiques sur tous vos ordinateurs en les synchronisant avec le hub.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <extracomment>Status of a task; %1 is always 1.</extracomment>
        <translation>%1 fichier en cours de traitement</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 et le client n&apos;ont pas la même version. Veuillez mettre les deux à jour vers la même version.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <extracomment>Status of a task; %1 is any number.</extracomment>
        <translation>Fichiers en cours de traitement&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <extracomment>Status of a task; %1 is a number, more than one.</extracomment>
        <translation>%1 fichiers en cours de traitement</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Le volume de ce dossier ne prend pas en charge les quotas.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Votre quota de stockage personnel est épuisé.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <extracomment>Message: %1 to %4 are sizes with their units: used, of, used, of.</extracomment>
        <translation>Votre dossier personnel utilise %1 sur %2 et les dossiers partagés utilisent %3 sur %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Le quota du dossier partagé «&#xa0;%1&#xa0;» est épuisé.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Certains dossiers ont atteint leur quota.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>La version ne peut pas être restaurée, car le fichier est exclu par un filtre.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Choisissez les dossiers à sauvegarder et l&apos;emplacement de stockage des sauvegardes.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Choisissez les éléments à sauvegarder</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>La sauvegarde s&apos;est arrêtée car votre compte a été désactivé sur le hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Synchronisation...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Veuillez demander à votre administrateur d&apos;activer votre compte.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Votre compte a été désactivé sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <extracomment>Status, short, of a task: the administrator has disabled the user&apos;s account.</extracomment>
        <translation>Compte désactivé</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Afficher des icônes sur les fichiers exclus par un filtre</translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>Tab of the hub&apos;s page: space and quotas.</extracomment>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <extracomment>Screen reader: names a window that asks.</extracomment>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Toutes les tâches liées à ce hub seront retirées de cet ordinateur. Les fichiers seront conservés. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>La sauvegarde a échoué. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>La tâche n&apos;a pas pu être créée. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Vous n&apos;êtes plus autorisé à accéder au dossier partagé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <extracomment>Status of a task; %1 is a file name.</extracomment>
        <translation>Traitement de «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Days</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Jours</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>La tâche n&apos;a pas pu être chargée.</translation>
    </message>
    <message>
        <source>Operation</source>
        <extracomment>Column head of a list: what can be done with an entry (noun).</extracomment>
        <translation>Opération</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <extracomment>Message: %1 is a path.</extracomment>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <extracomment>Choice of a list after &quot;When the backup is done&quot;: what the computer does then (verb).</extracomment>
        <translation>Éteindre l&apos;ordinateur</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Vous n&apos;êtes pas autorisé à éteindre automatiquement cet ordinateur.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>La sauvegarde a été annulée.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>La sauvegarde est terminée.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <extracomment>Choice: how often a backup runs; %1 is a number, more than one.</extracomment>
        <translation>Sauvegarder %1 fois par jour</translation>
    </message>
    <message>
        <source>times</source>
        <extracomment>Fragment, unit after a number field: &quot;[3] times&quot;, a day.</extracomment>
        <translation>fois</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <extracomment>Heading/Label: continuous, scheduled or manual (the way in which is backed up).</extracomment>
        <translation>Mode de sauvegarde</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Voulez-vous démarrer la sauvegarde maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Si cet ordinateur est éteint ou en veille à l&apos;heure planifiée, la sauvegarde démarre dès qu&apos;il fonctionne à nouveau.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Veuillez sélectionner au moins un jour de la semaine.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Dernière sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <extracomment>Choice of the backup mode (noun): runs when the user starts it.</extracomment>
        <translation>Sauvegarde manuelle</translation>
    </message>
    <message>
        <source>Once a day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Une fois par jour</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <extracomment>Choice of the backup mode (noun): runs as soon as a file changes.</extracomment>
        <translation>Sauvegarde continue</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <extracomment>Choice of the backup mode (noun): runs at set times.</extracomment>
        <translation>Sauvegarde planifiée</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Définir le plan de sauvegarde</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <extracomment>Status of a backup: the state of the disk is being recorded.</extracomment>
        <translation>Création d&apos;un instantané...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Le plan de sauvegarde n&apos;a pas pu être enregistré. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Saisissez une taille comprise entre 0 et %1&#xa0;Mo. Saisissez 0 pour ne définir aucune limite.</translation>
    </message>
    <message>
        <source>Connection</source>
        <extracomment>Tab/Heading: the connection to the hub.</extracomment>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Afficher l&apos;activité de cette tâche</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Afficher les éléments retirés</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>Label beside a size: how much space is taken (participle; belongs to &quot;space&quot;).</extracomment>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Months</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Mois</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <extracomment>Label below a bar; %1 and %2 are sizes with their units: &quot;3 GB of 10 GB used&quot;.</extracomment>
        <translation>Utilisé&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <extracomment>Label beside a task that runs without a window.</extracomment>
        <translation>Tâche en arrière-plan</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Fenêtre des paramètres de filtre</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Veuillez saisir une heure valide.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <extracomment>Event in the history, of a file: a rule of the client, not one of the user.</extracomment>
        <translation>Non synchronisé&#xa0;: exclu par une règle système</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <extracomment>Button: opens the settings of the connection to the hub (verb).</extracomment>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Not now</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Created on</source>
        <extracomment>Column head of a list: the day on which a link or a task was made.</extracomment>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Tâches de sauvegarde</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Filters</source>
        <extracomment>Tab of a task&apos;s settings: which files are left out (plural).</extracomment>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <extracomment>Heading of the list of files that were changed lately (plural).</extracomment>
        <translation>Récemment modifiés</translation>
    </message>
    <message>
        <source>Back up now</source>
        <extracomment>Button: starts the backup at once (verb).</extracomment>
        <translation>Sauvegarder maintenant</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Heading of the part of a page with the files to sync (noun, plural).</extracomment>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Equal to</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Égale à</translation>
    </message>
    <message>
        <source>Less than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Inférieure à</translation>
    </message>
    <message>
        <source>Greater than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Supérieure à</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <extracomment>Heading of the box in which a folder is chosen (verb).</extracomment>
        <translation>Sélectionnez un dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Ce dossier fait déjà partie d&apos;une tâche de sauvegarde de %1. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Ce dossier est déjà synchronisé par Kelvane Quay Client et ne peut pas être également sauvegardé. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>IP address</source>
        <extracomment>Label beside the hub&apos;s address in the network.</extracomment>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann replied to your comment on Plan.txt&quot;.</extracomment>
        <translation>a répondu à votre commentaire sur</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <extracomment>Menu item in the tray menu: opens the page with the state of the tasks.</extracomment>
        <translation>Voir l&apos;état de synchronisation</translation>
    </message>
    <message>
        <source>Replies</source>
        <extracomment>Choice of a filter of notifications: replies to the user&apos;s comments (noun, plural).</extracomment>
        <translation>Réponses</translation>
    </message>
    <message>
        <source>Not synced</source>
        <extracomment>Event in the history: the file was left out.</extracomment>
        <translation>Non synchronisé</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La version de Tessaly Server sur le hub est trop ancienne pour %1. Veuillez demander à votre administrateur d&apos;effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Aucune connexion au hub</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes a box.</extracomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <extracomment>Heading of a page: rights, password and validity of a sharing link.</extracomment>
        <translation>Partage avancé</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Les paramètres de partage n&apos;ont pas pu être enregistrés. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <extracomment>Check box for an item.</extracomment>
        <translation>Activer le partage avancé</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <extracomment>Check box for an item: password and validity of its link (URL).</extracomment>
        <translation>Activer la protection des liens</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos is now shared with advanced settings.&quot;</extracomment>
        <translation>est désormais partagé avec des paramètres avancés.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <extracomment>Heading of a page: a link (URL) with password and validity (participle; belongs to &quot;sharing&quot;).</extracomment>
        <translation>Partage protégé</translation>
    </message>
    <message>
        <source>Link protection</source>
        <extracomment>Heading of a page: password and validity of a link (URL).</extracomment>
        <translation>Protection des liens</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Voulez-vous vraiment retirer le lien&#xa0;? Il ne pourra pas être restauré.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <extracomment>Heading of a question; the link is a URL.</extracomment>
        <translation>Retirer ce lien&#xa0;?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Enregistrez les journaux du client dans un fichier que vous pourrez envoyer au support technique.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <extracomment>Hint in an empty field.</extracomment>
        <translation>Saisissez un mot-clé</translation>
    </message>
    <message>
        <source>Remove link</source>
        <extracomment>Button: takes a link (URL) away (verb).</extracomment>
        <translation>Retirer le lien</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <extracomment>Tab of the settings: logs and so on (noun).</extracomment>
        <translation>Dépannage</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Enregistrer plus de détails dans les journaux pour aider le support technique à trouver la cause d&apos;un problème.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Exporter les journaux</translation>
    </message>
    <message>
        <source>File deleted</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Fichier supprimé</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <extracomment>Label above a list, ends in a colon.</extracomment>
        <translation>Le fichier exporté contient&#xa0;:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Des informations sur le système d&apos;exploitation de cet ordinateur</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <extracomment>Heading of a part of the settings: more details are written to the logs.</extracomment>
        <translation>Journalisation avancée</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Les journaux avancés occupent plus d&apos;espace sur le disque et peuvent ralentir le client.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Déclaration de confidentialité</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Les journaux et les paramètres du client, sans les mots de passe</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <extracomment>Check box of the settings: more details are written to the logs.</extracomment>
        <translation>Activer la journalisation avancée</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <extracomment>Event in the history, of a file: a rule of the user.</extracomment>
        <translation>Non synchronisé&#xa0;: exclu par un filtre de la tâche</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <extracomment>Event in the history, of a file.</extracomment>
        <translation>Non synchronisé&#xa0;: aucune autorisation</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Conditions d&apos;utilisation</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Veuillez saisir une taille inférieure à %1&#xa0;Mo.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Ce dossier fait déjà partie d&apos;une autre tâche de sauvegarde. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>La tâche s&apos;est arrêtée en raison d&apos;une erreur inattendue. Veuillez redémarrer l&apos;application.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Ce fichier n&apos;a aucune version précédente.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>La synchronisation à la demande n&apos;a pas pu être activée pour cette tâche.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>La connexion au hub a échoué. Veuillez vérifier l&apos;adresse et votre réseau.</translation>
    </message>
    <message>
        <source>:</source>
        <extracomment>Fragment: the colon between a label and its value; a blank that the language sets before it belongs to it.</extracomment>
        <translation>&#xa0;:</translation>
    </message>
    <message>
        <source>File added</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Fichier ajouté</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Le nom ne peut ni commencer ni se terminer par un espace.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>La sauvegarde s&apos;est arrêtée car le certificat SSL du hub a changé.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>Le certificat SSL du hub a expiré. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>Le hub peut désormais indexer l&apos;ensemble de votre dossier personnel.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Vous pouvez désormais synchroniser l&apos;ensemble de votre dossier personnel avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Status of a file: another program has it open (participle; belongs to &quot;file&quot;).</extracomment>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <extracomment>Status, short, of a task: a service of the hub is turned off.</extracomment>
        <translation>Norvik désactivé</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>Le hub prépare votre dossier personnel. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Fichier renommé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <extracomment>Event in a notification; %1 is a file name.</extracomment>
        <translation>«&#xa0;%1&#xa0;» a été mis à jour</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <extracomment>Message: the signs after the colon are to be kept as they are.</extracomment>
        <translation>Le nom ne peut contenir aucun des caractères suivants&#xa0;: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik est désactivé sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Votre compte a été désactivé sur le hub&#xa0;; le dossier ne peut donc pas être vérifié.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Button: adds an entry to a list (verb).</extracomment>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>Button: deletes an entry (verb).</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Une tâche portant ce nom existe déjà.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Aucun des dossiers sélectionnés ne peut être utilisé. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Aucun dossier valide</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <extracomment>Tooltip: the link is to be kept as it is.</extracomment>
        <translation>Les fichiers restent sur le hub jusqu&apos;à ce que vous les ouvriez. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;En savoir plus sur la synchronisation à la demande&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <extracomment>Check box beside a field: the user names the task.</extracomment>
        <translation>Nom de tâche personnalisé</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Le nom vous aide à distinguer vos tâches. Il ne s&apos;affiche que sur cet ordinateur.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>La synchronisation à la demande peut être activée ou désactivée dans les paramètres de la tâche.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Ce champ est obligatoire.</translation>
    </message>
</context>
</TS>
