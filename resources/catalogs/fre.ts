<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Se connecter via Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Des conflits de fichiers sont survenus. Le fichier s&apos;appelle désormais %1.</translation>
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
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Dossier local</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Associer à nouveau</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Vérification de votre nom d&apos;utilisateur et de votre mot de passe...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Connexion établie</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Les fichiers des deux dossiers seront fusionnés. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Démarrage...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Veuillez vérifier les paramètres suivants avant de terminer.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>Le dossier n&apos;est pas vide</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Identifiant Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Fichiers récemment mis à jour</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Recherche de modifications...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>La connexion au hub a été perdue. Reconnexion...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Personnaliser</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Échec de l&apos;authentification</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Détection du type de connexion...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Relais Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Le service Ferrylink ne répond pas. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Fichiers mis à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier. Les modifications effectuées sur cet ordinateur ne seront pas envoyées.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Votre quota de stockage sur le hub est épuisé. Veuillez libérer de l&apos;espace, puis réessayer.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Type de connexion</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Changer de dossier local</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Le certificat SSL du hub n&apos;a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Ne pas utiliser de serveur proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Utiliser les paramètres de proxy du système</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Select a folder</source>
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
        <translation>Stockage saturé</translation>
    </message>
    <message>
        <source>Proxy settings</source>
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
        <translation>Le nombre de dossiers partagés synchronisés ne peut pas dépasser %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
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
        <translation>Configurer le serveur proxy manuellement</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Aucune modification à appliquer.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Activer la synchronisation</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Nom du dossier partagé</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Le serveur proxy exige une authentification</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Un problème est survenu</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Chiffrer la transmission des données avec SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Nom du hub, adresse IP ou identifiant Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Afficher les icônes d&apos;état de synchronisation sur les fichiers et dossiers</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Options générales</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Utiliser une icône en noir et blanc dans la zone de notification</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» est à votre disposition. Vous pouvez activer sa synchronisation avec cet ordinateur.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Vérification des données...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>La configuration automatique a échoué. Veuillez configurer la connexion manuellement.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Finalisation de la configuration...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchro sélective</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Les fichiers et dossiers qui correspondent à ces règles ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Installation de la mise à jour...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Extensions de fichiers</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Dossier sur un point de montage</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Progression&#xa0;: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
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
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Le disque de cet ordinateur est plein. Veuillez libérer de l&apos;espace, puis réessayer.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Chargement de la liste des dossiers...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Voulez-vous vraiment dissocier cet ordinateur du hub&#xa0;?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Envoi...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Synchronisation des fichiers (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Téléchargement de «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Taille maximale des fichiers</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Noms de fichiers exclus</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>La base de données locale est endommagée. Veuillez dissocier cet ordinateur du hub, puis l&apos;associer à nouveau.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtre de fichiers</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Liste d&apos;exclusion</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Les dossiers que vous avez désélectionnés seront supprimés de cet ordinateur. Ils resteront sur le hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Gestion des conflits</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Mode de synchro</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Le dossier est un point de montage et ne peut pas être synchronisé. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Le téléchargement de «&#xa0;%1&#xa0;» a été annulé.</translation>
    </message>
    <message>
        <source>Start now</source>
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
        <translation>Association...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Les informations de votre compte n&apos;ont pas pu être récupérées depuis le hub.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connexion est instable</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obtenir le lien</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Association de cet ordinateur au hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentative de synchronisation...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avertissement de certificat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Mettre en pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Règles d&apos;exclusion</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Si vous cessez de synchroniser ce dossier partagé, les modifications ultérieures ne seront pas transférées. Les fichiers locaux seront conservés.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Activer le chiffrement SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Sélectionnez le dossier de cet ordinateur que vous souhaitez synchroniser avec le hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>a été partagé avec vous.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Nouveau partage</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Téléchargement terminé</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Échec du téléchargement</translation>
    </message>
    <message>
        <source>Hub overview</source>
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
        <translation>En attente</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
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
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Laisser les applications ouvertes. Vous devrez ensuite redémarrer l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Remet en place les fichiers de programme, raccourcis et entrées de registre manquants ou endommagés.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Lancer [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] protégera vos fichiers et les gardera synchronisés.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Cliquez sur Terminer pour quitter l&apos;installation.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>Le lecteur qui contient le dossier local n&apos;est pas connecté.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Réparer [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
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
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Une erreur s&apos;est produite et [ProductName] n&apos;a pas été installé. Toutes les modifications effectuées par le programme d&apos;installation ont été annulées. Vous pouvez le relancer à tout moment.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Informations sur cet ordinateur et sur le hub auquel il est associé.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Cet assistant permet de modifier, de réparer ou de supprimer [ProductName]. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Supprimer [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Des fichiers que le programme d&apos;installation de [ProductName] doit remplacer sont ouverts dans ces applications&#xa0;:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Activité de synchro</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Le dossier local est introuvable. Il a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Yes</source>
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
        <translation>Fermer les applications maintenant et les rouvrir à la fin de l&apos;installation.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Fichiers utilisés</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Fermez les applications et cliquez sur Réessayer. Si vous cliquez sur Ignorer, l&apos;installation de [ProductName] ne sera complète qu&apos;après le prochain redémarrage de l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Change</source>
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
        <translation>Modifier [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Vous pouvez modifier, réparer ou supprimer le programme installé.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Supprime le programme et ses paramètres de votre ordinateur.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Cette opération peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Tessaly peut maintenant être installé. Cliquez sur Installer pour commencer ou sur Précédent pour vérifier vos paramètres.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Le programme d&apos;installation est sur le point de supprimer le logiciel.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Prêt à supprimer [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Cliquez sur Supprimer pour supprimer [ProductName] de cet ordinateur. Vos fichiers synchronisés seront conservés.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Le programme d&apos;installation est sur le point de réparer le logiciel.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Cliquez sur Réparer pour commencer, sur Précédent pour choisir une autre action ou sur Annuler pour quitter le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Vous avez quitté le programme d&apos;installation avant la fin de l&apos;installation de [ProductName]. Votre ordinateur n&apos;a pas été modifié. Vous pouvez relancer le programme d&apos;installation à tout moment.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Cet assistant va installer [ProductName] sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Bienvenue dans l&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>[ProductName] est maintenant installé</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>L&apos;installation de [ProductName] a été annulée</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Associer à un nouveau hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>[ProductName] n&apos;a pas pu être installé</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Synchronisation activée</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Ajouter une tâche</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>J&apos;accepte le contrat de licence</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Vos fichiers, à jour sur tous vos appareils.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Ce hub n&apos;est pas celui auquel %1 était associé. Veuillez associer à nouveau cet ordinateur.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Le partage est désactivé pour votre compte.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>La tâche «&#xa0;%1&#xa0;» s&apos;arrêtera et sa connexion au hub sera supprimée. Les fichiers seront conservés des deux côtés.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
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
        <translation>Le hub a changé</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» n&apos;est pas monté sur le hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Le volume du dossier distant n&apos;est pas monté sur le hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Emplacement du dossier</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Synchroniser avec cet ordinateur</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Vous n&apos;avez pas ouvert de session en tant qu&apos;administrateur&#xa0;; certaines fonctionnalités risquent de ne pas être installées. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Synchronisez, partagez et protégez vos fichiers</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Le partage de fichiers via Ferrylink est désactivé sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Choisissez comment vous souhaitez configurer Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Éléments %1 à %2 sur %3</translation>
    </message>
    <message>
        <source>Got it</source>
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
        <translation>Plage de dates</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Ne plus synchroniser ce dossier</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Il y a %1&#xa0;h</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Choisissez un dossier sur le hub et un dossier sur cet ordinateur. Leur contenu restera identique.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Cet ordinateur est déjà associé</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Il y a %1&#xa0;j</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Il y a %1&#xa0;min</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Le mois dernier</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Avril</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Février</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Août</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octobre</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synchroniser à nouveau ce dossier</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Ne plus synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Aucun historique à afficher</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synchroniser à nouveau ces dossiers</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Envoyer vers</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janvier</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Synchro en cours</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septembre</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juillet</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juin</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Décembre</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
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
        <translation>Mode de configuration</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Non, merci</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Synchronisez vos fichiers</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Gardez un œil sur les modifications</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Rechercher des hubs sur le réseau local</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informations d&apos;état</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Utilisateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Ce fichier n&apos;appartient à aucune tâche de synchro.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Ouvrir la fenêtre principale</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Associer cet ordinateur à un autre hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Synchroniser un autre dossier avec ce hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nouvelle tâche de synchro</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Choisissez vous-même les dossiers, le sens de synchro et les filtres.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Les fichiers de plus de %1&#xa0;Mo ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Ce dossier ne peut pas être synchronisé. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Rechercher des hubs sur le réseau local</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier partagé. Les fichiers seront téléchargés mais pas envoyés.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Découvrez d&apos;autres guides dans les &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;didacticiels&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Ce dossier contient un dossier déjà synchronisé ou se trouve dans un tel dossier. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Cet ordinateur est déjà associé au hub «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>Un dossier nommé «&#xa0;Tessaly&#xa0;» sera créé à cet emplacement.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Si vous continuez, l&apos;association existante sera remplacée.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Le hub est hors ligne.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Impossible de créer un lien, car Norvik n&apos;est pas disponible sur le hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>Le certificat SSL du hub a changé. Veuillez confirmer le nouveau certificat.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Définir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>Le sens de synchro ne correspond pas à vos autorisations sur le dossier distant.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>L&apos;adresse IP de cet ordinateur est bloquée par le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Lorsqu&apos;un fichier a été modifié des deux côtés&#xa0;:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Bienvenue dans l&apos;assistant de configuration</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Unlinking...</source>
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
        <translation>Dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Conserver la version modifiée en dernier</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Dans les deux sens</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Choisissez quel dossier du hub synchroniser avec quel dossier de cet ordinateur.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>a demandé l&apos;accès au modèle Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Le dossier est déjà utilisé par une autre tâche de synchro sur cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
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
        <translation>Saisissez le code de vérification à 6 chiffres</translation>
    </message>
    <message>
        <source>Hours</source>
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
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Toujours conserver la version du hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Renommer les fichiers en conflit et conserver les deux versions</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) demande l&apos;accès suivant au modèle Bureau «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Le contenu des deux dossiers sera fusionné. Aucun fichier ne sera supprimé.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Liste des connexions</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Hub connecté</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Copier le lien de partage</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Supprimer l&apos;autorisation de cet utilisateur</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Groupe&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Ouvrir le portail web de Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Hub associé</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Tâche de synchro des fichiers que d&apos;autres partagent avec vous</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Onglet Fichiers récemment modifiés</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Page 2 du didacticiel&#xa0;: synchronisez vos fichiers</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Page 3 du didacticiel&#xa0;: gardez un œil sur les modifications</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Page 4 du didacticiel&#xa0;: partagez avec d&apos;autres personnes</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Choisir une autorisation de partage</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Avec Tessaly, les fichiers de vos ordinateurs et du hub restent identiques.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>heures</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Ouvrir mon dossier</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Le hub exige l&apos;authentification à deux facteurs. Veuillez la configurer dans le portail web, puis vous reconnecter.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Le quota du dossier partagé est épuisé.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Certains champs contiennent des valeurs non valides. Veuillez vérifier les champs mis en évidence.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sens de synchro</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
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
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expire après</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Aucune action disponible</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect. Veuillez vous reconnecter.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Saisissez un nom de fichier complet, par exemple «&#xa0;desktop.ini&#xa0;», puis appuyez sur Entrée.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Un dossier portant ce nom existe déjà. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Comparer tous les attributs de fichiers lors de la recherche de modifications</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Valide jusqu&apos;au</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Ce champ ne peut pas rester vide.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restreindre l&apos;accès</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Afficher les actions de synchronisation dans le menu contextuel des fichiers et dossiers</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Le service de dossiers personnels est désactivé sur le hub. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>La mise à jour a échoué. Veuillez &lt;a href=&quot;%1&quot;&gt;télécharger la dernière version&lt;/a&gt; et l&apos;installer manuellement.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Appliquer et copier le lien</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Limiter le nombre de visites</translation>
    </message>
    <message>
        <source>Valid from</source>
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
        <translation>Afficher les informations</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Ajouter un nom de fichier</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Choisir une langue</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Liste des versions de fichiers en cours de téléchargement</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Personnaliser la période de validité</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Afficher le didacticiel de %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Dossier de synchronisation associé</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Actualiser l&apos;historique</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Saisissez un mot-clé à rechercher dans l&apos;historique</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Choisir un type d&apos;événement</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Tâche de synchro «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Dossier sur le hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Fenêtre des paramètres</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Fermer le didacticiel</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Annuler ce téléchargement</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Retirer ce téléchargement de la liste</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Votre mot de passe a expiré. Veuillez le modifier dans le portail web, puis vous reconnecter.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renommé sur cet ordinateur</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Renommé sur le hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Veuillez ne pas saisir plus de %1 caractères.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Ce n&apos;est pas le compte avec lequel la tâche a été créée. Veuillez vous connecter en tant que «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Informations sur le hub</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Le service de relais Ferrylink est désactivé sur le hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être téléchargé. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>L&apos;authentification auprès du hub a échoué. Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>a commenté</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Ouvrir dans le portail web</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Configurer</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Ouvrir le dossier synchronisé</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Vous disposez uniquement d&apos;un accès en lecture à ce dossier. %1 n&apos;enverra pas vos modifications.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 est maintenant associé au hub et gardera vos fichiers synchronisés.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Le programme d&apos;installation a recueilli toutes les informations nécessaires.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 est prêt.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 est déjà en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>Avec %1, les fichiers de vos ordinateurs et du hub restent identiques.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Prévisualiser et commenter</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
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
        <translation>Choisissez ce que la nouvelle tâche doit synchroniser</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>Le dossier appartient à Dropbox. Le synchroniser également avec %1 peut provoquer des conflits de fichiers.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Vos modifications seront perdues. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Didacticiel de %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>L&apos;identifiant Ferrylink n&apos;existe pas ou %1 n&apos;est pas en cours d&apos;exécution sur le hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Seuls les dossiers partagés activés dans %1 figurent ici.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Démarrer %1 à l&apos;ouverture de ma session sur cet ordinateur</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 est en cours d&apos;initialisation...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>Le hub et %1 ne peuvent pas communiquer. Veuillez mettre les deux à jour vers la dernière version.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Cette version de %1 est trop ancienne pour le hub. Veuillez effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Le disque est plein. Libérez de l&apos;espace sur cet ordinateur pour que %1 puisse continuer.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>%1 a rencontré un problème. Veuillez le redémarrer.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Onglet Notifications</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>Le dossier n&apos;est pas vide. %1 fusionnera ses fichiers avec ceux du hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Télécharger uniquement les modifications depuis %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>%1 est configuré. Ouvrez votre dossier pour commencer à travailler.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Page 1 du didacticiel&#xa0;: bienvenue dans Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Cette version de Kelvane Quay Client est déjà installée. Voulez-vous l&apos;installer à nouveau&#xa0;?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
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
        <translation>Didacticiel de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
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
        <translation>Autorisation de partage</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>La version de Tessaly Server sur le hub est trop ancienne pour ce client. Veuillez demander à votre administrateur de la mettre à jour.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Afficher le didacticiel de Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
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
        <translation>Ouvrir Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>La version %1 est disponible. Cliquez ici pour effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Pour utiliser la synchro sélective, veuillez demander à votre administrateur de mettre à jour Tessaly Server sur le hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
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
        <translation>Vous découvrez Tessaly&#xa0;? Consultez d&apos;abord le &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;guide de démarrage rapide&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Peut commenter</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Les utilisateurs du hub disposant du lien peuvent consulter</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Les utilisateurs du hub disposant du lien peuvent modifier</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Seules les personnes invitées peuvent ouvrir le lien</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Toute personne disposant du lien peut commenter</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Toute personne disposant du lien peut consulter</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Les utilisateurs du hub disposant du lien peuvent commenter</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Toute personne disposant du lien peut modifier</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Peut consulter</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Peut gérer</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Peut modifier</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Le portail web ne peut pas être ouvert. Veuillez vérifier votre connexion au hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Inviter des personnes</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Aucun accès</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Il n&apos;y a aucun dossier partagé.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) demande l&apos;accès suivant à la feuille de calcul Grida «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Les personnes disposant du lien ne pourront plus ouvrir le fichier.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 a partagé la feuille de calcul Grida «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>Share</source>
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
        <translation>Week-ends</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Utilisateurs du hub</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Personnes invitées uniquement</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Toute personne disposant du lien</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Définir une date d&apos;expiration</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Utilisateurs et groupes</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Afficher les dossiers synchronisés dans la barre latérale du gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Travaillez dans le dossier synchronisé comme dans n&apos;importe quel autre. Vos modifications sont aussitôt transférées sur le hub.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Votre ordinateur</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Tous vos fichiers, partout</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Gagnez de l&apos;espace avec la synchro à la demande</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Tous les fichiers s&apos;affichent sur votre ordinateur, mais n&apos;occupent de l&apos;espace que lorsque vous les ouvrez.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>En ligne uniquement</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Disponible sur cet ordinateur</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>vous a mentionné(e) dans</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>a demandé l&apos;accès à</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 a partagé le fichier «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>a partagé avec vous</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Partages</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Demande d&apos;accès</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Partagés avec moi</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Mentions</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Envoi uniquement</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Conserver les fichiers sur le hub lorsqu&apos;ils sont supprimés de cet ordinateur</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>«&#xa0;%1&#xa0;» a été téléchargé.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Vos fichiers sont à jour sur tous vos appareils.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
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
        <translation>Activer plus tard</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Activer maintenant</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Fichiers partagés avec vous</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Créer une tâche de synchro</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Mes fichiers et dossiers d&apos;équipe</translation>
    </message>
    <message>
        <source>Files shared with me</source>
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
        <translation>Ne manquez aucune modification</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Le disque est plein. Libérez de l&apos;espace sur cet ordinateur pour que Tessaly puisse continuer.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Dossier d&apos;équipe</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Télécharger uniquement les modifications depuis Tessaly Server</translation>
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
        <translation>Partagez en quelques secondes</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Cliquez avec le bouton droit sur un fichier ou un dossier, créez un lien et décidez qui peut l&apos;ouvrir et pendant combien de temps.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) demande l&apos;accès suivant à la présentation Pictra «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 a partagé le dossier «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) demande l&apos;accès suivant au dossier «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) demande l&apos;accès suivant au fichier «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) demande l&apos;accès suivant au document Folia «&#xa0;%4&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 a partagé le document Folia «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 a partagé la présentation Pictra «&#xa0;%2&#xa0;» avec vous.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Paramètres de confidentialité</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Protéger par un mot de passe</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Jours de semaine</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Un dossier nommé «&#xa0;%1&#xa0;» sera créé pour les fichiers que d&apos;autres partagent avec vous.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Toujours conserver sur cet ordinateur</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Tous types</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Tâche de synchro</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Les fichiers sont sauvegardés dès qu&apos;ils sont modifiés.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Les fichiers sont sauvegardés aux heures que vous définissez.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>La sauvegarde est terminée. L&apos;ordinateur s&apos;éteindra dans %1 s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Tâche de sauvegarde</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Exécuter la sauvegarde les jours suivants</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Se connecter au hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Protégez les fichiers de cet ordinateur en les sauvegardant sur le hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manuel&#xa0;: la sauvegarde s&apos;exécute uniquement lorsque vous la démarrez.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Dernière heure de fin</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Dernière heure d&apos;exécution</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Commentateur</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Modifier qui peut ouvrir ce lien</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Dernier envoi&#xa0;: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Paramètres de la tâche</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Continu&#xa0;: les fichiers sont sauvegardés à chaque modification.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Ouvrir dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Cette heure correspond au lendemain.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Les informations de partage n&apos;ont pas pu être récupérées.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destination de la sauvegarde</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Les fichiers sont sauvegardés lorsque vous cliquez sur Sauvegarder maintenant.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Autoriser les téléchargements</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Planifié&#xa0;: la sauvegarde s&apos;exécute aux heures que vous définissez.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Planification de la sauvegarde</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Gestionnaire</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Lecteur (aperçu)</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Créer une tâche de sauvegarde</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Les fichiers dont le nom ou l&apos;extension figure ici seront ignorés.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
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
        <translation>Fichiers sauvegardés dans «&#xa0;%3&#xa0;» le %4&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Lancer la sauvegarde</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Les fichiers et dossiers qui correspondent à ces règles ne seront pas sauvegardés.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Aucun dossier sélectionné</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Libérer de l&apos;espace</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Ne plus conserver sur cet ordinateur</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Jours sélectionnés</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Une fois la sauvegarde terminée</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Sélectionnez un dossier sur «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Sélectionnez un dossier sur le hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Toutes les</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Ignorer les fichiers et dossiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>Start syncing</source>
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
        <translation>Veuillez mettre Tessaly à jour vers la version %1 ou ultérieure.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe, puis vous reconnecter.</translation>
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
        <translation>Pas encore sauvegardé</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Gardez identiques un dossier de cet ordinateur et un dossier du hub.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Choisissez les jours et les heures auxquels la sauvegarde s&apos;exécute.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Exécuter dès que possible les sauvegardes manquées</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
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
        <translation>Chemin</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>La sauvegarde s&apos;est arrêtée car l&apos;authentification auprès du hub a échoué.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>La version du paquet sur le hub n&apos;est pas prise en charge. Veuillez demander à votre administrateur de la mettre à jour.</translation>
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
        <translation>Certains des dossiers sélectionnés n&apos;existent plus. Désélectionnez-les pour continuer.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Sens de synchro incompatible</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Kelvane Quay Client peut maintenant être installé. Cliquez sur Installer pour commencer ou sur Précédent pour vérifier vos paramètres.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
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
        <translation>Connectez-vous au hub qui stockera vos sauvegardes.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
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
        <translation>La synchro à la demande n&apos;est pas disponible pour le dossier sélectionné ou le système d&apos;exploitation de cet ordinateur.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>Dossier partagé non monté</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Envoyer uniquement les modifications vers %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Synchroniser les fichiers que d&apos;autres partagent avec moi</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Sauvegarder les fichiers temporaires</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Les fichiers que d&apos;autres partagent avec vous apparaîtront dans un dossier distinct sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Portail web</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Quota de stockage épuisé</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Dossier personnel désactivé</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sam</translation>
    </message>
    <message>
        <source>Local folder not found</source>
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
        <translation>Lecteur non connecté</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>C&apos;est presque terminé&#xa0;! Vos fichiers seront bientôt disponibles dans %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Saisissez 0 pour ne définir aucune limite.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dim</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mer</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Je n&apos;accepte pas le contrat de licence</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Échec de l&apos;initialisation</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Le dossier local a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Quota du dossier partagé épuisé</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Le quota du dossier partagé est épuisé. Veuillez contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Dossier distant introuvable</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Le dossier distant a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Autorisation du lien</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Prochaine sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plan de sauvegarde</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Lien de partage</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Partager le lien</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Les tâches de sauvegarde nécessitent %1 %2 ou une version ultérieure sur le hub. Version installée&#xa0;: %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Cet ordinateur est déjà associé à ce hub avec le même compte.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
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
        <translation>Association au hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tous les fichiers sont à jour.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Prévisualiser</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Lien du dossier</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Date d&apos;expiration</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Vous pouvez maintenant utiliser %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Veuillez mettre %1 à jour vers la version %2 ou ultérieure.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Choisissez les fichiers que la nouvelle tâche doit garder synchronisés.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Ouvrir le portail web de %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>La sauvegarde s&apos;est arrêtée car cette version de %1 est trop ancienne pour le hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Veuillez demander à votre administrateur de mettre à jour %1 sur le hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>Un dossier nommé «&#xa0;%1&#xa0;» sera créé à cet emplacement.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;a pas pu être créé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Affichez tous vos fichiers sans remplir le disque. Chaque fichier est téléchargé lorsque vous l&apos;ouvrez.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Ouvrir le portail web de Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Une version plus récente de Tessaly est déjà installée. Veuillez la supprimer avant d&apos;installer Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Page 1 du didacticiel&#xa0;: bienvenue dans %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Type de tâche</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Les fonctionnalités de synchronisation et de sauvegarde de Kelvane Quay Client peuvent maintenant être installées. Cliquez sur Installer pour commencer ou sur Précédent pour vérifier vos paramètres.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Activer la synchro à la demande</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Le dossier de synchro à la demande «&#xa0;%1&#xa0;» est introuvable. Veuillez configurer à nouveau la tâche.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchro à la demande</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Essayez la synchro à la demande</translation>
    </message>
    <message>
        <source>Comment</source>
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
        <translation>Saisissez un nom ou une extension de fichier, par exemple «&#xa0;*.tmp&#xa0;»</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Rôles et autorisations</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Espace libéré</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Rendu disponible sur cet ordinateur</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>La synchro à la demande nécessite un dossier sur un lecteur NTFS qui n&apos;est ni un lecteur réseau ni un lecteur amovible.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Gardez les fichiers en ligne jusqu&apos;à ce que vous en ayez besoin. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Fonctionnement de la synchro à la demande&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>L&apos;espace disponible sur ce disque est insuffisant. %1 a besoin d&apos;au moins %2&#xa0;Mo.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Synchronisez votre dossier personnel et les dossiers d&apos;équipe auxquels vous avez accès.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Si vous désactivez cette option, le dossier contenant les fichiers que d&apos;autres partagent avec vous sera supprimé de cet ordinateur. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Synchronisez les fichiers que d&apos;autres partagent avec vous afin de pouvoir les ouvrir comme les vôtres.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Activer la synchro à la demande pour cette tâche</translation>
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
        <translation>Votre disque est presque plein. Activez la synchro à la demande pour libérer de l&apos;espace.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Tout ce que d&apos;autres partagent avec vous, dans un seul dossier</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Veuillez demander à votre administrateur de vous accorder l&apos;autorisation d&apos;utiliser le paquet.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
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
        <translation>%1 ne peut pas communiquer avec le paquet sur le hub. Veuillez mettre les deux à jour vers la dernière version.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Vous seul pouvez ouvrir le lien</translation>
    </message>
    <message>
        <source>Continue anyway</source>
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
        <translation>Démarrer la visite</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
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
        <translation>Bienvenue dans Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
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
        <translation>%1 fichier en cours de traitement</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 et le client n&apos;ont pas la même version. Veuillez mettre les deux à jour vers la même version.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Fichiers en cours de traitement&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
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
        <translation>Votre dossier personnel utilise %1 sur %2 et les dossiers partagés utilisent %3 sur %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
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
        <translation>Choisissez les éléments à sauvegarder</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>La sauvegarde s&apos;est arrêtée car votre compte a été désactivé sur le hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
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
        <translation>Compte désactivé</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Afficher des icônes sur les fichiers exclus par un filtre</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Toutes les tâches liées à ce hub seront supprimées de cet ordinateur. Les fichiers seront conservés. Voulez-vous continuer&#xa0;?</translation>
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
        <translation>Vous n&apos;êtes plus autorisé à accéder au dossier partagé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Traitement de «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>La tâche n&apos;a pas pu être chargée.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
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
        <translation>Sauvegarder %1 fois par jour</translation>
    </message>
    <message>
        <source>times</source>
        <translation>fois</translation>
    </message>
    <message>
        <source>Backup mode</source>
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
        <translation>Dernière sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Sauvegarde manuelle</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Une fois par jour</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Sauvegarde continue</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Sauvegarde planifiée</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Définir le plan de sauvegarde</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Création d&apos;un instantané...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Le plan de sauvegarde n&apos;a pas pu être enregistré. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Saisissez une taille comprise entre 0 et %1&#xa0;Mo. Saisissez 0 pour ne définir aucune limite.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Afficher l&apos;activité de cette tâche</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Afficher les éléments supprimés</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Utilisé&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Tâche en arrière-plan</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Fenêtre des paramètres de filtre</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Veuillez saisir une heure valide.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Non synchronisé&#xa0;: exclu par une règle système</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Tâches de sauvegarde</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchro</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Récemment modifiés</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sauvegarder maintenant</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Égale à</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Inférieure à</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Supérieure à</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Sélectionnez un dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Ce dossier fait déjà partie d&apos;une tâche de sauvegarde de %1. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Ce dossier est déjà synchronisé par Kelvane Quay Client et ne peut pas être également sauvegardé. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>a répondu à votre commentaire sur</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Voir l&apos;état de synchronisation</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Réponses</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Non synchronisé</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>La version de Tessaly Server sur le hub est trop ancienne pour %1. Veuillez demander à votre administrateur de la mettre à jour.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Aucune connexion au hub</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Partage avancé</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Les paramètres de partage n&apos;ont pas pu être enregistrés. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Activer le partage avancé</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Activer la protection des liens</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>est désormais partagé avec des paramètres avancés.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Partage protégé</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Protection des liens</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Voulez-vous vraiment supprimer le lien&#xa0;? Il ne pourra pas être restauré.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Supprimer ce lien&#xa0;?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Enregistrez les journaux du client dans un fichier que vous pourrez envoyer au support technique.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Saisissez un mot-clé</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Dépannage</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Enregistrer plus de détails dans les journaux pour aider le support technique à trouver la cause d&apos;un problème.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Exporter les journaux</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Fichier supprimé</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Le fichier exporté contient&#xa0;:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Des informations sur le système d&apos;exploitation de cet ordinateur</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Journalisation avancée</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Les journaux avancés occupent plus d&apos;espace sur le disque et peuvent ralentir le client.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Déclaration de confidentialité</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Les journaux et les paramètres du client, sans les mots de passe</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Activer la journalisation avancée</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Non synchronisé&#xa0;: exclu par un filtre de la tâche</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Non synchronisé&#xa0;: aucune autorisation</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Conditions d&apos;utilisation</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
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
        <translation>La synchro à la demande n&apos;a pas pu être activée pour cette tâche.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>La connexion au hub a échoué. Veuillez vérifier l&apos;adresse et votre réseau.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
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
        <translation>Le hub peut désormais indexer l&apos;ensemble de votre dossier personnel.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Vous pouvez désormais synchroniser l&apos;ensemble de votre dossier personnel avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik désactivé</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>Le hub prépare votre dossier personnel. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Fichier renommé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>«&#xa0;%1&#xa0;» a été mis à jour</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
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
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Delete</source>
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
        <translation>Aucun dossier valide</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Les fichiers restent sur le hub jusqu&apos;à ce que vous les ouvriez. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;En savoir plus sur la synchro à la demande&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Nom de tâche personnalisé</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Le nom vous aide à distinguer vos tâches. Il ne s&apos;affiche que sur cet ordinateur.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>La synchro à la demande peut être activée ou désactivée dans les paramètres de la tâche.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Ce champ est obligatoire.</translation>
    </message>
</context>
</TS>
