<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was deleted).</extracomment>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>Menu item/Button: ends the link between this computer and the hub (verb).</extracomment>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <extracomment>Check box/Menu item in the connection settings; Ferrylink is the name of a relay service.</extracomment>
        <translation>Connetti tramite Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <extracomment>Button beside a warning about the folder that was chosen.</extracomment>
        <translation>Scegli un&apos;altra cartella</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>Button in a question: puts the files of two folders together.</extracomment>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>Heading/Status: title of a message box, and the state of a task that failed.</extracomment>
        <translation>Errore</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <extracomment>Message: %1 is the new file name.</extracomment>
        <translation>Si sono verificati conflitti di file. Il file ora si chiama %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Il valore non è valido. Verificarlo e riprovare.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>La rete non è disponibile. Verificare la connessione e riprovare.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>Button on the last page of a wizard and of the installer (verb).</extracomment>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>Label/Column head: above the path of the folder on this computer, and of a list of such folders.</extracomment>
        <translation>Cartella locale</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>Menu item in the tray menu: links this computer to the hub again.</extracomment>
        <translation>Collega di nuovo</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Menu item in the tray menu: opens the box with the version and the copyright.</extracomment>
        <translation>Informazioni su</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <extracomment>Status, shown while the wizard signs in.</extracomment>
        <translation>Verifica del nome utente e della password...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <extracomment>Status, shown when the test of the connection is done.</extracomment>
        <translation>Connessione riuscita</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>I file delle due cartelle verranno uniti. Continuare?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <extracomment>Status, shown while the client starts.</extracomment>
        <translation>Avvio...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Verificare le impostazioni seguenti prima di terminare.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>Status, shown while the wizard tests the connection.</extracomment>
        <translation>Test della connessione...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Nome utente o password non corretti.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <extracomment>Button beside the path of the sync folder.</extracomment>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <extracomment>Heading of a warning about the folder that was chosen.</extracomment>
        <translation>La cartella non è vuota</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>Label beside a field with the path of a folder.</extracomment>
        <translation>Percorso della cartella</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <extracomment>Label beside the field for the identifier of a hub in the Ferrylink service.</extracomment>
        <translation>ID Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Value&quot;.</extracomment>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Name&quot;.</extracomment>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Welcome</source>
        <extracomment>Heading of the first page of a wizard, alone.</extracomment>
        <translation>Benvenuti</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Menu item in the tray menu: ends the client.</extracomment>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>Menu item in the tray menu: opens the list of these files.</extracomment>
        <translation>File aggiornati di recente</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was downloaded).</extracomment>
        <translation>Scaricato</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Button: opens the help.</extracomment>
        <translation>Guida</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Button: closes a box and takes what was entered, in the installer too.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: closes a box and drops what was entered, in the installer too (verb).</extracomment>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>Button: goes to the next page of a wizard and of the installer.</extracomment>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: goes to the page before in a wizard and in the installer.</extracomment>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Get started</source>
        <extracomment>Button on the first page of the set-up: begins with it.</extracomment>
        <translation>Inizia</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Label in the about box, beside the version number.</extracomment>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <extracomment>Status, shown while the client looks through the folders.</extracomment>
        <translation>Ricerca di modifiche...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <extracomment>Status in the tray.</extracomment>
        <translation>La connessione all&apos;hub è stata persa. Riconnessione...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was uploaded).</extracomment>
        <translation>Caricato</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>Choice: last entry of a list of filters or periods: the user sets one (verb).</extracomment>
        <translation>Personalizza</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Label/Column head: beside a time of day, and when something happened to a file.</extracomment>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>Choice: how the hub is reached: in the same network.</extracomment>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>Choice: how the hub is reached: straight, without a relay.</extracomment>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <extracomment>Status, short, in the tray: the hub refused username or password.</extracomment>
        <translation>Accesso non riuscito</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>Choice: how the hub is reached: over the Internet.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <extracomment>Status: stands in place of the connection type while it is being found out.</extracomment>
        <translation>Rilevamento del tipo di connessione...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <extracomment>Choice: how the hub is reached: through the relay server of Ferrylink.</extracomment>
        <translation>Relay Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Il servizio Ferrylink non risponde. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <extracomment>Event in a notification; %1 is a number, always more than one.</extracomment>
        <translation>File aggiornati: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Si dispone del solo accesso in lettura a questa cartella. Le modifiche apportate su questo computer non verranno caricate.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <extracomment>Message of a task, and of a notification.</extracomment>
        <translation>La quota di archiviazione sull&apos;hub è esaurita. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <extracomment>Label beside &quot;Local network&quot;, &quot;Direct connection&quot;, &quot;Internet&quot; or &quot;Ferrylink relay&quot;.</extracomment>
        <translation>Tipo di connessione</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <extracomment>Heading of a warning: nothing can be changed in the folder.</extracomment>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Menu item/Button/Tab: opens the settings.</extracomment>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <extracomment>Button in the settings of a shared folder.</extracomment>
        <translation>Cambia la cartella locale</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <extracomment>Heading/Tab: the folders that the hub shares (noun; folders).</extracomment>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <extracomment>Message of the connection settings, and of a task.</extracomment>
        <translation>Impossibile verificare il certificato SSL dell&apos;hub.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>Label beside the field for the port number of the proxy server.</extracomment>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Information</source>
        <extracomment>Heading of a message box that informs.</extracomment>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>Tab of the settings: the proxy server.</extracomment>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <extracomment>Choice, first of three: none, the system&apos;s, manual.</extracomment>
        <translation>Non utilizzare un server proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <extracomment>Choice, second of three: none, the system&apos;s, manual.</extracomment>
        <translation>Utilizza le impostazioni proxy del sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Password</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <extracomment>Heading of the box in which a folder is chosen.</extracomment>
        <translation>Seleziona una cartella</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>La connessione al server di controllo Ferrylink non è riuscita. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Le modifiche non sono state salvate. Uscire da questa pagina?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <extracomment>Status, short, in the tray: the user&apos;s space on the hub is used up.</extracomment>
        <translation>Spazio di archiviazione esaurito</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <extracomment>Heading of the proxy page of the settings.</extracomment>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Impossibile attivare la sincronizzazione per la cartella condivisa.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Questa cartella si sovrappone a una cartella già sincronizzata. Sceglierne un&apos;altra.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Il numero di cartelle condivise sincronizzate non può superare %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <extracomment>Status, shown while the settings are being stored.</extracomment>
        <translation>Applicazione delle impostazioni...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Immettere un numero di porta compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Immettere l&apos;indirizzo e la porta del server proxy.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <extracomment>Choice, third of three: none, the system&apos;s, manual.</extracomment>
        <translation>Configura manualmente il server proxy</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Nessuna modifica da applicare.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <extracomment>Check box for a shared folder: it is synced.</extracomment>
        <translation>Attiva la sincronizzazione</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <extracomment>Column head of the list of shared folders.</extracomment>
        <translation>Nome della cartella condivisa</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Column head: whether a folder or file is synced.</extracomment>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Button: takes over the changes (verb).</extracomment>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Network settings</source>
        <extracomment>Button: opens the network page of the system.</extracomment>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>Menu item/Button: opens the page on which tasks or other things are managed (verb).</extracomment>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <extracomment>Check box of the proxy page: the fields for username and password follow.</extracomment>
        <translation>Il server proxy richiede l&apos;accesso</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <extracomment>Status, short, in the tray and of a task: an unexpected error.</extracomment>
        <translation>Si è verificato un problema</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>Status, short, in the tray: the client or a file is being brought up to date.</extracomment>
        <translation>Aggiornamento...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Crittografa la trasmissione dei dati con SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <extracomment>Label beside the field for how to reach the hub.</extracomment>
        <translation>Nome dell&apos;hub, indirizzo IP o ID Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostra le notifiche sul desktop</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostra le icone dello stato di sincronizzazione su file e cartelle</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Tab of the settings.</extracomment>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>General options</source>
        <extracomment>Heading of the general page of the settings.</extracomment>
        <translation>Opzioni generali</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <extracomment>Check box of the general options, and of the display settings.</extracomment>
        <translation>Utilizza un&apos;icona in bianco e nero nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>La cartella condivisa “%1” è disponibile. È possibile attivarne la sincronizzazione con questo computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>Heading of a notification: someone has shared a folder with the user.</extracomment>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Verifica dei dati...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>La configurazione automatica non è riuscita. Configurare manualmente la connessione.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <extracomment>Status: last step of the automatic set-up of the client (not of the installer).</extracomment>
        <translation>Completamento della configurazione...</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>Button: goes on after a warning or a question.</extracomment>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <extracomment>Button: opens the choice of the folders and files that are synced.</extracomment>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <extracomment>Message above the rules of a task&apos;s filter.</extracomment>
        <translation>I file e le cartelle che corrispondono a queste regole non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <extracomment>Status, shown while a new version of the client is being installed.</extracomment>
        <translation>Installazione dell&apos;aggiornamento...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <extracomment>Label above the list of excluded file extensions such as &quot;tmp&quot;.</extracomment>
        <translation>Estensioni dei file</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <extracomment>Status, short: the shared folder can&apos;t be synced since a volume is mounted in it.</extracomment>
        <translation>Cartella in un punto di montaggio</translation>
    </message>
    <message>
        <source>Software update</source>
        <extracomment>Heading of the box about a new version of the client (noun).</extracomment>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <extracomment>Status: %1 is a percentage such as 42%.</extracomment>
        <translation>Avanzamento: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <extracomment>Message: question; %1 is the shared folder&apos;s name.</extracomment>
        <translation>Interrompere la sincronizzazione di “%1”? I file su questo computer e sull&apos;hub verranno mantenuti.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Impossibile rimuovere la cartella condivisa dall&apos;elenco.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Questa chiave di configurazione è già stata utilizzata. Richiederne una nuova all&apos;amministratore.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>La nuova lingua verrà applicata dopo il riavvio dell&apos;applicazione.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Choice/Tab: a type of item in a filter or list, and the page with the two folders of a task (noun, singular).</extracomment>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Il disco di questo computer è pieno. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>Status, shown while the list of folders comes from the hub.</extracomment>
        <translation>Caricamento dell&apos;elenco delle cartelle...</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Button/Menu item/Label: takes an entry off a list, someone&apos;s right off a file, the program off the computer (verb).</extracomment>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Scollegare questo computer dall&apos;hub?</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>Column head of the list of files: the folder that a file goes to.</extracomment>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <extracomment>Status: state of a task or a file before its transfer.</extracomment>
        <translation>Preparazione...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Upload in corso...</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>Choice of the list of languages: the one of the system.</extracomment>
        <translation>Lingua di sistema</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>Label beside the list of languages.</extracomment>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>Label beside a field, or a column&apos;s head: the name of a folder.</extracomment>
        <translation>Nome della cartella</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>Heading of an installer window; [ProductName] becomes a product name; &quot;Setup&quot; is the installer.</extracomment>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <extracomment>Status in the tray; %1 is a number, mostly more than one.</extracomment>
        <translation>Sincronizzazione dei file (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>Status: %1 is a file name.</extracomment>
        <translation>Download di “%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <extracomment>Heading of a page: the folders that the user wants to sync.</extracomment>
        <translation>Cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <extracomment>Button: opens further settings of a task.</extracomment>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <extracomment>Label beside a field: files above this size are not synced.</extracomment>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <extracomment>Label above the list of names of files that are not synced.</extracomment>
        <translation>Nomi di file esclusi</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <extracomment>Heading of the table of files that are not synced.</extracomment>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Il database locale è danneggiato. Scollegare questo computer dall&apos;hub e collegarlo di nuovo.</translation>
    </message>
    <message>
        <source>File filter</source>
        <extracomment>Heading of a page: which files are synced and which not (noun).</extracomment>
        <translation>Filtro dei file</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <extracomment>Label above the list of names and extensions that are not synced (noun).</extracomment>
        <translation>Elenco di esclusione</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Le cartelle deselezionate verranno rimosse da questo computer. Rimarranno sull&apos;hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <extracomment>Label beside a list: what happens when a file was changed on both sides.</extracomment>
        <translation>Gestione dei conflitti</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>Label/Heading: two-way sync, upload only, download only (the way in which is synced).</extracomment>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Status in the tray and of a task (participle; the task or the client was paused).</extracomment>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>La cartella è un punto di montaggio e non può essere sincronizzata. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Il download di “%1” è stato annullato.</translation>
    </message>
    <message>
        <source>Start now</source>
        <extracomment>Button: begins at once what was offered.</extracomment>
        <translation>Avvia ora</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>La sincronizzazione si è interrotta perché il disco di questo computer è pieno.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>La sincronizzazione si è interrotta perché la quota di archiviazione sull&apos;hub è esaurita.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>Status in the tray: this computer is being linked to the hub.</extracomment>
        <translation>Collegamento...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>Status/Heading, short: the user may not do this, or not use the shared folder.</extracomment>
        <translation>Autorizzazione negata</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Impossibile recuperare dall&apos;hub le informazioni sull&apos;account.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>Column head of a list, or a label beside a field: the name of this computer.</extracomment>
        <translation>Nome del computer</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <extracomment>Status, short, in the tray: the connection comes and goes.</extracomment>
        <translation>La connessione è instabile</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>Menu item: makes a link (URL) to the file and copies it.</extracomment>
        <translation>Ottieni link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Collegamento di questo computer all&apos;hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>Status, shown while the client tries to sync again.</extracomment>
        <translation>Tentativo di sincronizzazione...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <extracomment>Choice: a role (noun, a person): may open and read; beside Previewer, Commenter, Editor, Manager.</extracomment>
        <translation>Visualizzatore</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <extracomment>Heading of a warning about the SSL certificate.</extracomment>
        <translation>Avviso sul certificato</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Button/Menu item: interrupts a task, or all, for a while (verb).</extracomment>
        <translation>Metti in pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Button/Menu item: goes on with a task, or all, after a pause (verb).</extracomment>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <extracomment>Button: opens the rules by which files are not synced (noun).</extracomment>
        <translation>Regole di esclusione</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Column head: what was done with the file (noun).</extracomment>
        <translation>Azione</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>Column head of a list of files.</extracomment>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column head/Label: the size of a file.</extracomment>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>Column head of a list: an identifier.</extracomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>Status of a shared folder: its sync is turned off.</extracomment>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>Status of a shared folder: its sync is turned on.</extracomment>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <extracomment>Message of a question that offers to stop the sync.</extracomment>
        <translation>Se si interrompe la sincronizzazione di questa cartella condivisa, le modifiche successive non verranno trasferite. I file locali verranno mantenuti.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Attiva la crittografia SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Selezionare la cartella di questo computer da sincronizzare con l&apos;hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos has been shared with you.&quot;</extracomment>
        <translation>è stato condiviso con te.</translation>
    </message>
    <message>
        <source>New share</source>
        <extracomment>Heading of a notification: someone has shared something with the user (noun).</extracomment>
        <translation>Nuova condivisione</translation>
    </message>
    <message>
        <source>Download completed</source>
        <extracomment>Heading of a notification.</extracomment>
        <translation>Download completato</translation>
    </message>
    <message>
        <source>Download failed</source>
        <extracomment>Heading of a notification, or the state of a file.</extracomment>
        <translation>Download non riuscito</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <extracomment>Heading of a page: the hub&apos;s name, version, space and so on.</extracomment>
        <translation>Panoramica dell&apos;hub</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>L&apos;hub a questo indirizzo è cambiato. Collegare di nuovo questo computer.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>La sincronizzazione è in pausa.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>Il certificato SSL dell&apos;hub non è attendibile.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>La sincronizzazione è in corso.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Il client è troppo vecchio per l&apos;hub. Aggiornare il client.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Questa cartella fa già parte di un&apos;attività di backup di Tessaly. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Questa attività è inattiva perché l&apos;hub non è raggiungibile.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Heading of the state of a task that can&apos;t reach the hub (adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>Inattiva</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Impossibile scaricare il file. Verificare la connessione e le autorizzazioni.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>La cronologia delle versioni di questo file non è disponibile.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Impossibile creare un link per questo elemento.</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>Heading of the state of a task that waits for work (a state, noun or adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>Label beside a list of actions: what a double click on the tray icon does.</extracomment>
        <translation>Quando si fa doppio clic sull&apos;icona nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>L&apos;hub sta indicizzando questa cartella. Attendere.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>L&apos;inizializzazione non è riuscita. Riavviare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Il programma di installazione non può sostituire i file aperti in altre applicazioni.</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Button of the installer: ends it.</extracomment>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Print</source>
        <extracomment>Button of the installer: prints the license agreement (verb).</extracomment>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <extracomment>Message of the installer, second of two: what happens to programs that have files open.</extracomment>
        <translation>Lascia aperte le applicazioni. In seguito sarà necessario riavviare il computer.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Ripristina i file di programma, i collegamenti e le voci del Registro di sistema mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <extracomment>Check box on the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>Avvia [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] manterrà i file protetti e sincronizzati.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <extracomment>Message of the installer; Finish is its button.</extracomment>
        <translation>Fare clic su Fine per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <extracomment>Message of a task; a disk drive of this computer.</extracomment>
        <translation>L&apos;unità che contiene la cartella locale non è connessa.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Ripara [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>Menu item: opens the list of older versions of the file.</extracomment>
        <translation>Sfoglia le versioni precedenti</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Quale operazione si desidera eseguire?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>È in corso l&apos;installazione di [ProductName] nel computer.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>Choice of the sync direction: from the hub to this computer alone, nothing is uploaded.</extracomment>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Si è verificato un errore e [ProductName] non è stata installata. Tutte le modifiche apportate dal programma di installazione sono state annullate. È possibile eseguire di nuovo l&apos;installazione in qualsiasi momento.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <extracomment>Button of the installer, beside Retry: goes on although files are in use (verb).</extracomment>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Button: answers a question of the installer.</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <extracomment>Message: an entry of a list: what the exported file holds about this computer and about the hub.</extracomment>
        <translation>Informazioni su questo computer e sull&apos;hub a cui è collegato.</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>Label of the installer, before the step that is being done; a colon ends it.</extracomment>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Install</source>
        <extracomment>Button of the installer (verb).</extracomment>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Questa procedura guidata consente di modificare, riparare o rimuovere [ProductName]. Fare clic su Avanti per continuare o su Annulla per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Rimuovi [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <extracomment>Status of a shared folder: the user may not change it (adjective; belongs to &quot;folder&quot;).</extracomment>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>License agreement</source>
        <extracomment>Heading of an installer page (noun).</extracomment>
        <translation>Contratto di licenza</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <extracomment>Message of the installer, above a list of programs; [ProductName] becomes a product name.</extracomment>
        <translation>In queste applicazioni sono aperti file che il programma di installazione di [ProductName] deve sostituire:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <extracomment>Heading of a chart of what was transferred lately (noun).</extracomment>
        <translation>Andamento della sincronizzazione</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Label/Button of the installer: puts damaged files right (verb).</extracomment>
        <translation>Ripara</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <extracomment>Heading of an installer page while it works; [ProductName] becomes a product name.</extracomment>
        <translation>Installazione di [ProductName] in corso</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>La cartella locale non è stata trovata. Potrebbe essere stata spostata, rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button of the installer: tries once more (verb).</extracomment>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>Button: answers a question, in the installer too.</extracomment>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Annullare l&apos;installazione di [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Leggere il contratto prima di continuare.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <extracomment>Message of the installer, first of two: what happens to programs that have files open.</extracomment>
        <translation>Chiudi ora le applicazioni e riaprile al termine dell&apos;installazione.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <extracomment>Heading of an installer page: files that other programs have open.</extracomment>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Chiudere le applicazioni e fare clic su Riprova. Se si fa clic su Ignora, l&apos;installazione di [ProductName] verrà completata solo dopo il prossimo riavvio del computer.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>Label/Button: takes another value, in the installer other features (verb).</extracomment>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Scegliere le funzionalità da installare e la loro posizione.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] viene sempre installata con tutte le funzionalità.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Modifica [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>È possibile modificare, riparare o rimuovere il programma installato.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Rimuove dal computer il programma e le relative impostazioni.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>L&apos;operazione può richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Pronto per installare [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ora è possibile installare Tessaly. Fare clic su Installa per iniziare o su Indietro per verificare le impostazioni.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Il programma di installazione sta per rimuovere l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Pronto per rimuovere [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Fare clic su Rimuovi per rimuovere [ProductName] da questo computer. I file sincronizzati verranno mantenuti.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Il programma di installazione sta per riparare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Pronto per riparare [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Repair, Back, Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Fare clic su Ripara per iniziare, su Indietro per scegliere un&apos;altra azione o su Annulla per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <extracomment>Message of the installer: the user ended it before it had installed anything (canceled, not completed).</extracomment>
        <translation>È stato scelto di uscire dall&apos;installazione prima che [ProductName] venisse installata. Il computer non è stato modificato. È possibile eseguire di nuovo l&apos;installazione in qualsiasi momento.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Questa procedura guidata installerà [ProductName] nel computer. Fare clic su Avanti per continuare o su Annulla per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Label of a range of dates, before the first field; &quot;To&quot; stands before the second.</extracomment>
        <translation>Dal</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Benvenuti nell&apos;installazione di [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>L&apos;installazione di [ProductName] è completata</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name; the user canceled.</extracomment>
        <translation>L&apos;installazione di [ProductName] è stata annullata</translation>
    </message>
    <message>
        <source>Download history</source>
        <extracomment>Heading of the list of what was downloaded (noun).</extracomment>
        <translation>Cronologia dei download</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <extracomment>Button: links this computer to a hub that it does not know yet (verb).</extracomment>
        <translation>Collega a un nuovo hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Impossibile installare [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <extracomment>Status of a shared folder.</extracomment>
        <translation>Sincronizzazione attivata</translation>
    </message>
    <message>
        <source>Add task</source>
        <extracomment>Button: adds a sync task.</extracomment>
        <translation>Aggiungi attività</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <extracomment>Choice of the installer, first of two; the user speaks.</extracomment>
        <translation>Accetto il contratto di licenza</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Button: empties the fields of a filter (verb).</extracomment>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Heading of the part of a page with the folders to sync (noun, plural).</extracomment>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <extracomment>Label below the product&apos;s name: a slogan.</extracomment>
        <translation>I file, sempre aggiornati su ogni dispositivo.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Questo non è l&apos;hub a cui era collegata %1. Collegare di nuovo questo computer.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>La condivisione è disattivata per questo account.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <extracomment>Message: %1 is the task&apos;s name.</extracomment>
        <translation>L&apos;attività “%1” verrà interrotta e la sua connessione all&apos;hub verrà rimossa. I file verranno mantenuti su entrambi i lati.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>Menu item: opens the folder that a file lies in.</extracomment>
        <translation>Apri la cartella contenitore</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Impossibile recuperare dall&apos;hub l&apos;indirizzo del file.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Scegliere la cartella di questo computer in cui sono archiviati i file.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <extracomment>Status, short, in the tray: another hub answers at this address.</extracomment>
        <translation>L&apos;hub è cambiato</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>La cartella condivisa “%1” non è montata sull&apos;hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Choice of a list of periods, or the head of a group of events.</extracomment>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Il volume della cartella remota non è montato sull&apos;hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <extracomment>Label beside the path of a folder.</extracomment>
        <translation>Posizione della cartella</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <extracomment>Label beside a check box: the folder is synced to this computer (verb).</extracomment>
        <translation>Sincronizza con questo computer</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>L&apos;accesso non è stato eseguito come amministratore, quindi alcune funzionalità potrebbero non essere installate. Continuare?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <extracomment>Label below the product&apos;s name: a slogan, three verbs.</extracomment>
        <translation>Sincronizza, condividi e proteggi i file</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>La condivisione di file tramite Ferrylink è disattivata sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Choice/Heading: an entry of a list of periods, and the head of a group of events.</extracomment>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Scegliere come configurare Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <extracomment>Choice of the wizard, first of two ways to set up the client (not the installer; noun).</extracomment>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <extracomment>Label below a list; %1 and %2 are the numbers of the first and the last item shown, %3 is how many there are.</extracomment>
        <translation>Elementi da %1 a %2 di %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <extracomment>Button: closes a hint: the user has understood it.</extracomment>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>L&apos;elemento è stato eliminato o non si dispone più dell&apos;autorizzazione per accedervi.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Fare clic con il pulsante destro del mouse su un file o una cartella per condividerli, ottenere un link o sfogliarne le versioni precedenti.</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>Label of a filter, beside two dates.</extracomment>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <extracomment>Menu item of the file manager, one folder: it is no longer synced.</extracomment>
        <translation>Non sincronizzare più questa cartella</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>%1&#xa0;h fa</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Scegliere una cartella sull&apos;hub e una cartella su questo computer. Il loro contenuto rimarrà identico.</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Maggio</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <extracomment>Heading of a warning of the wizard.</extracomment>
        <translation>Questo computer è già collegato</translation>
    </message>
    <message>
        <source>Renamed</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was renamed).</extracomment>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>%1&#xa0;g fa</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>Status: how long ago a file changed: less than a minute.</extracomment>
        <translation>Poco fa</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>%1&#xa0;min fa</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Choice: a type of item in a filter or list (noun, singular).</extracomment>
        <translation>File</translation>
    </message>
    <message>
        <source>Last month</source>
        <extracomment>Choice of a list of periods: the calendar month before this one.</extracomment>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>Label beside the field for a word to search for.</extracomment>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Label of a range of dates, before the second field; &quot;From&quot; stands before the first.</extracomment>
        <translation>Al</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Label/Column head: the type of an item or a file.</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Last week</source>
        <extracomment>Choice of a list of periods: the calendar week before this one.</extracomment>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Aprile</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Febbraio</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Button: begins a search (verb).</extracomment>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Ottobre</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <extracomment>Menu item of the file manager, one folder: it is synced once more.</extracomment>
        <translation>Sincronizza di nuovo questa cartella</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <extracomment>Menu item of the file manager, several folders: they are no longer synced.</extracomment>
        <translation>Non sincronizzare più queste cartelle</translation>
    </message>
    <message>
        <source>No history to show</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>Nessuna cronologia da mostrare</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <extracomment>Menu item of the file manager, several folders: they are synced once more.</extracomment>
        <translation>Sincronizza di nuovo queste cartelle</translation>
    </message>
    <message>
        <source>Send to</source>
        <extracomment>Fragment, first part of a menu item; the name of a hub or folder follows: &quot;Send to Office&quot;.</extracomment>
        <translation>Invia a</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Gennaio</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <extracomment>Heading of the list of files that are being synced at present.</extracomment>
        <translation>Sincronizzazione in corso</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Settembre</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>Choice of a filter of the history: no type of event is left out.</extracomment>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Luglio</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>Column head of the history: the day.</extracomment>
        <translation>Data</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Giugno</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Dicembre</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>Column head of the history: the kind of file.</extracomment>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <extracomment>Menu item/Choice: opens the wizard that sets up the client step by step (noun); not the installer, and not &quot;Advanced settings&quot;.</extracomment>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>Check box below a message.</extracomment>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Avviare la sincronizzazione in un solo passaggio con le impostazioni consigliate.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>La cartella home sull&apos;hub e la nuova cartella su questo computer verranno ora mantenute identiche.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <extracomment>Heading of the wizard&apos;s last page: the client is set up (not the installer).</extracomment>
        <translation>La configurazione è completata</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>I file inseriti nella cartella sincronizzata compaiono sull&apos;hub e su tutti gli altri computer.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Fare clic sull&apos;icona nell&apos;area di notifica per vedere lo stato della sincronizzazione e gli ultimi file modificati.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <extracomment>Heading of a wizard page: quick or advanced set-up of the client (not the installer).</extracomment>
        <translation>Modalità di configurazione</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <extracomment>Button: turns an offer down.</extracomment>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Sincronizzare i file</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Tenere d&apos;occhio le modifiche</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <extracomment>Button of the wizard.</extracomment>
        <translation>Trova hub nella rete locale</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>Heading of a box with the state of a task.</extracomment>
        <translation>Informazioni sullo stato</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Menu item in the tray menu: there is a newer version of the client (noun and adjective).</extracomment>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>User: %1</source>
        <extracomment>Screen reader: %1 is a user&apos;s name; &quot;User&quot; is the kind of entry.</extracomment>
        <translation>Utente: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Questo file non appartiene ad alcuna attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Apri la finestra principale</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Collega questo computer a un altro hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Sincronizza un&apos;altra cartella con questo hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Nuova attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Scegliere personalmente le cartelle, la direzione di sincronizzazione e i filtri.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button: closes the wizard&apos;s last page.</extracomment>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>I file di dimensioni superiori a %1&#xa0;MB non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>Button: opens the folder.</extracomment>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Questa cartella non può essere sincronizzata. Sceglierne un&apos;altra.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <extracomment>Tooltip of the button that searches.</extracomment>
        <translation>Cerca hub nella rete locale</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Si dispone del solo accesso in lettura a questa cartella condivisa. I file verranno scaricati ma non caricati.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <extracomment>Message: %1 is a link; keep it as it is.</extracomment>
        <translation>Altre guide sono disponibili nei &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorial&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Questa cartella contiene una cartella già sincronizzata o si trova al suo interno. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>Menu item: opens the file.</extracomment>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the hub&apos;s name.</extracomment>
        <translation>Questo computer è già collegato all&apos;hub “%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <extracomment>Message of the wizard.</extracomment>
        <translation>In questa posizione verrà creata una cartella denominata “Tessaly”.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <extracomment>Message of the wizard; &quot;link&quot; is that of this computer to the hub, not a URL.</extracomment>
        <translation>Se si continua, il collegamento esistente verrà sostituito.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>L&apos;hub è offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <extracomment>Label: the folder of the user on the hub.</extracomment>
        <translation>Cartella home</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Impossibile creare un link perché Norvik non è disponibile sull&apos;hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <extracomment>Message of a task; a button beside it confirms.</extracomment>
        <translation>Il certificato SSL dell&apos;hub è cambiato. Confermare il nuovo certificato.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Imposta le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <extracomment>Message of a task; the direction is upload only, download only or two-way.</extracomment>
        <translation>La direzione di sincronizzazione non corrisponde alle autorizzazioni per la cartella remota.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>L&apos;indirizzo IP di questo computer è bloccato dall&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <extracomment>Label above three choices, ends in a colon.</extracomment>
        <translation>Quando un file è stato modificato su entrambi i lati:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <extracomment>Heading of the wizard&apos;s first page.</extracomment>
        <translation>Benvenuti nella procedura guidata di configurazione</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>Tooltip of the button that turns to the last page of a list (&quot;last&quot; as the opposite of first).</extracomment>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>Tooltip of the button that turns to the first page of a list.</extracomment>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>Tooltip of the button that turns back several pages; %1 is a number, more than one.</extracomment>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>Tooltip of the button that turns on several pages; %1 is a number, more than one.</extracomment>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>Status, shown while this computer&apos;s link to the hub is being ended.</extracomment>
        <translation>Scollegamento...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Troppi tentativi non riusciti. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Impossibile verificare la cartella perché la connessione all&apos;hub non è riuscita.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>La cartella condivisa non esiste più sull&apos;hub.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <extracomment>Heading of a wizard page: the folders that are synced (noun).</extracomment>
        <translation>Cartelle sincronizzate</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <extracomment>Choice, first of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Mantieni la versione modificata per ultima</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>Choice of the sync direction: changes are both uploaded and downloaded.</extracomment>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Scegliere quale cartella dell&apos;hub sincronizzare con quale cartella di questo computer.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>Choice: a type of folder on the hub (noun).</extracomment>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a template&apos;s: &quot;Ann requested access to the Bureau template Memo&quot;.</extracomment>
        <translation>ha richiesto l&apos;accesso al modello Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>La cartella è già utilizzata da un&apos;altra attività di sincronizzazione su questo computer.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the template&apos;s.</extracomment>
        <translation>%1 ha richiesto l&apos;accesso al modello Bureau “%2”.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Impossibile verificare la cartella perché il certificato SSL dell&apos;hub è cambiato.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Immettere il codice di verifica.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Il codice di verifica non è corretto. Riprovare.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <extracomment>Hint in the empty field for the code.</extracomment>
        <translation>Immettere il codice di verifica a 6 cifre</translation>
    </message>
    <message>
        <source>Hours</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Ore</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>La quota di archiviazione sul volume di questa cartella è esaurita.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Impossibile verificare la cartella perché il certificato SSL dell&apos;hub non è attendibile.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Impossibile verificare la cartella a causa di un errore di sistema sull&apos;hub.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>Tab/Choice: the page of what is synced, and a filter of notifications (noun).</extracomment>
        <translation>Sincronizzazione</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <extracomment>Choice, second of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Mantieni sempre la versione sull&apos;hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <extracomment>Choice, third of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Rinomina i file in conflitto e mantieni entrambe le versioni</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>Heading of the wizard&apos;s last page: what was set up.</extracomment>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the template&apos;s name.</extracomment>
        <translation>%1 (%2) richiede il seguente accesso al modello Bureau “%4”: %3.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Il contenuto di entrambe le cartelle verrà unito. Nessun file verrà eliminato.</translation>
    </message>
    <message>
        <source>Account</source>
        <extracomment>Label in the wizard&apos;s summary: the user&apos;s account on the hub.</extracomment>
        <translation>Account</translation>
    </message>
    <message>
        <source>List of connections</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Elenco delle connessioni</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <extracomment>Screen reader: names the hub that this computer has a connection to now; not the same as &quot;Linked hub&quot;.</extracomment>
        <translation>Hub connesso</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <extracomment>Screen reader: names a button; the link is a URL.</extracomment>
        <translation>Copia il link di condivisione</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Rimuovi l&apos;autorizzazione di questo utente</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <extracomment>Screen reader: %1 is a group&apos;s name; &quot;Group&quot; is the kind of entry.</extracomment>
        <translation>Gruppo: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Apri il portale web di Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>Screen reader: names one of the two sides of a task.</extracomment>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <extracomment>Screen reader: names the other of the two sides of a task: the hub that this computer is linked to; not the same as &quot;Connected hub&quot;.</extracomment>
        <translation>Hub collegato</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <extracomment>Screen reader: describes a task.</extracomment>
        <translation>Attività di sincronizzazione per i file condivisi da altri</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <extracomment>Screen reader: names a tab: the tab with the files that were changed lately.</extracomment>
        <translation>Scheda File modificati di recente</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Pagina 2 del tutorial: sincronizzare i file</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Pagina 3 del tutorial: tenere d&apos;occhio le modifiche</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Pagina 4 del tutorial: condividere con altri</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <extracomment>Screen reader: names a list of permissions.</extracomment>
        <translation>Scegli un&apos;autorizzazione di condivisione</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly mantiene identici i file sui computer e sull&apos;hub.</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Fragment, unit after a number field: &quot;Every [4] hours&quot;; the number is mostly more than one.</extracomment>
        <translation>ore</translation>
    </message>
    <message>
        <source>Hub</source>
        <extracomment>Label beside the hub&apos;s name or the field for its address.</extracomment>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <extracomment>Button on the wizard&apos;s last page: opens the user&apos;s synced folder.</extracomment>
        <translation>Apri la mia cartella</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>Status, short, of a task.</extracomment>
        <translation>Cartella condivisa non trovata</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Label in the about box; %1 is a version number.</extracomment>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>L&apos;hub richiede l&apos;autenticazione a 2 fattori. Configurarla nel portale web ed eseguire di nuovo l&apos;accesso.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>La quota della cartella condivisa è esaurita.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <extracomment>Message above a form.</extracomment>
        <translation>Alcuni campi contengono valori non validi. Verificare i campi evidenziati.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>Label beside a list: two-way sync, upload only, download only.</extracomment>
        <translation>Direzione di sincronizzazione</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <extracomment>Message of a notification.</extracomment>
        <translation>Si è verificato un problema in una delle attività. Aprire la finestra principale per i dettagli.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Qui sono elencate solo le cartelle condivise attivate in Tessaly Server.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Non si dispone dell&apos;autorizzazione per accedere a questa cartella.</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>Label beside the field for the proxy server&apos;s address in the network.</extracomment>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>Label of a sharing link, before a number of days or a date: &quot;Expires after [30] days&quot;.</extracomment>
        <translation>Scade dopo</translation>
    </message>
    <message>
        <source>No actions available</source>
        <extracomment>Menu item: can&apos;t be chosen; stands in place of the client&apos;s menu items.</extracomment>
        <translation>Nessuna azione disponibile</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Nome utente o password non corretti. Eseguire di nuovo l&apos;accesso.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <extracomment>Tooltip of a field; &quot;desktop.ini&quot; is an example and stays; Enter is the key.</extracomment>
        <translation>Immettere un nome di file completo, ad esempio “desktop.ini”, e premere Invio.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Esiste già una cartella con questo nome. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Confronta tutti gli attributi dei file durante la ricerca di modifiche</translation>
    </message>
    <message>
        <source>Valid until</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Valido fino al</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Questo campo non può essere vuoto.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <extracomment>Heading of a part of the page for a sharing link (verb: who may open the link).</extracomment>
        <translation>Limita l&apos;accesso</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostra le azioni di sincronizzazione nel menu di scelta rapida di file e cartelle</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <extracomment>Message of a task; the service gives each user a home folder.</extracomment>
        <translation>Il servizio cartelle home è disattivato sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>L&apos;aggiornamento non è riuscito. &lt;a href=&quot;%1&quot;&gt;Scaricare la versione più recente&lt;/a&gt; e installarla manualmente.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <extracomment>Button of the page for a sharing link (URL).</extracomment>
        <translation>Applica e copia il link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <extracomment>Check box of a sharing link: how often it may be opened.</extracomment>
        <translation>Limita il numero di visite</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Valido dal</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>L&apos;hub richiede una versione più recente del client. Aggiornare ora?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>La cartella remota si trova su un volume non montato.</translation>
    </message>
    <message>
        <source>Show information</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Mostra informazioni</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Aggiungi un nome di file</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <extracomment>Screen reader: names the side of a task on this computer.</extracomment>
        <translation>Cartella su questo computer</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Scegli una lingua</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Elenco delle versioni dei file di cui è in corso il download</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <extracomment>Button of a sharing link: sets from when until when it may be opened (verb).</extracomment>
        <translation>Personalizza il periodo di validità</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <extracomment>Button: opens the tutorial; %1 is a product name.</extracomment>
        <translation>Mostra il tutorial di %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Cambia la cartella sincronizzata</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <extracomment>Screen reader: names the folder on this computer that belongs to a folder on the hub.</extracomment>
        <translation>Cartella sincronizzata collegata</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <extracomment>Screen reader: names a button; the history is the list of transfers.</extracomment>
        <translation>Aggiorna la cronologia</translation>
    </message>
    <message>
        <source>Previous month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <extracomment>Hint in the empty field for a search of the history.</extracomment>
        <translation>Immettere una parola chiave da cercare nella cronologia</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Aggiungi una cartella</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Screen reader: names a calendar.</extracomment>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Scegli un tipo di evento</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <extracomment>Screen reader: %1 is the task&apos;s name.</extracomment>
        <translation>Attività di sincronizzazione “%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <extracomment>Screen reader/Label: the side of a task on the hub.</extracomment>
        <translation>Cartella sull&apos;hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Finestra delle impostazioni</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Chiudi il tutorial</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Annulla questo download</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <extracomment>Screen reader: names a button: the download&apos;s line leaves the list, the file stays.</extracomment>
        <translation>Rimuovi questo download dall&apos;elenco</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>La password è scaduta. Cambiarla nel portale web ed eseguire di nuovo l&apos;accesso.</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>Choice: a role (noun, a person): may open and change; beside Viewer, Previewer, Commenter, Manager.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Rinominato su questo computer</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Rinominato sull&apos;hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Immettere al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the name of an account.</extracomment>
        <translation>Questo non è l&apos;account con cui è stata creata l&apos;attività. Eseguire l&apos;accesso come “%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <extracomment>Heading of a page about the hub.</extracomment>
        <translation>Informazioni sull&apos;hub</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Il servizio relay Ferrylink è disattivato sull&apos;hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Impossibile scaricare “%1”. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>L&apos;accesso all&apos;hub non è riuscito. Verificare il nome utente e la password.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <extracomment>Heading/Tab: a page, and the tray&apos;s list of notifications.</extracomment>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>commented on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann commented on Plan.txt&quot;.</extracomment>
        <translation>ha commentato</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <extracomment>Menu item of a notification: opens what it is about.</extracomment>
        <translation>Apri nel portale web</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Button: begins to set up what is named beside it (verb).</extracomment>
        <translation>Configura</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <extracomment>Menu item in the tray menu: opens the folder that is synced.</extracomment>
        <translation>Apri la cartella sincronizzata</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <extracomment>Tooltip of a folder; %1 is a product name.</extracomment>
        <translation>Si dispone del solo accesso in lettura a questa cartella. %1 non caricherà le modifiche.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>%1 è ora collegata all&apos;hub e manterrà i file sincronizzati.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Il programma di installazione ha raccolto tutte le informazioni necessarie.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 pronta.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>%1 è già in esecuzione.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>%1 mantiene identici i file sui computer e sull&apos;hub.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <extracomment>Choice: a right on a shared file: look at it without downloading it, and comment on it (verbs).</extracomment>
        <translation>Anteprima e commenti</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>Impossibile aggiornare %1. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>È già installata una versione più recente di Kelvane Quay Client. Il programma di installazione verrà chiuso.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>Il certificato SSL dell&apos;hub è cambiato. Se il cambiamento è inatteso, contattare l&apos;amministratore prima di continuare.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <extracomment>Screen reader: describes a page of the wizard.</extracomment>
        <translation>Scegliere cosa sincronizzare con la nuova attività</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La cartella appartiene a Dropbox. Sincronizzarla anche con %1 può causare conflitti di file.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Le modifiche andranno perse. Continuare?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <extracomment>Screen reader: names the tutorial; %1 is a product name.</extracomment>
        <translation>Tutorial di %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>L&apos;ID Ferrylink non esiste oppure %1 non è in esecuzione sull&apos;hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Qui sono elencate solo le cartelle condivise attivate in %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <extracomment>Check box of the general options; %1 is a product name.</extracomment>
        <translation>Avvia %1 quando accedo a questo computer</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 sta inizializzando...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>L&apos;hub e %1 non possono comunicare. Aggiornare entrambi alla versione più recente.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Questa versione di %1 è troppo vecchia per l&apos;hub. Aggiornarla.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <extracomment>Status, short, of a task too: the versions of client and hub don&apos;t fit together.</extracomment>
        <translation>Versioni non corrispondenti</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Il disco è pieno. Liberare spazio su questo computer affinché %1 possa continuare.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 ha riscontrato un problema. Riavviare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <extracomment>Screen reader: names a tab: the tab with the notifications.</extracomment>
        <translation>Scheda Notifiche</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La cartella non è vuota. %1 ne unirà i file con quelli sull&apos;hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;); %1 is a product name.</extracomment>
        <translation>Solo download delle modifiche da %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>La configurazione di %1 è completata. Aprire la cartella per iniziare a lavorare.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Pagina 1 del tutorial: benvenuti in Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Questa versione di Kelvane Quay Client è già installata. Installarla di nuovo?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>Configurare %1 per sincronizzare i file di questo computer ed eseguirne il backup.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Quasi fatto! I file saranno presto disponibili in Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Quasi fatto! I file saranno presto disponibili su questo computer.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>L&apos;operazione non è riuscita. Riprovare.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>In questa posizione verrà creata una cartella denominata “Kelvane Quay”.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Questa versione di Tessaly è già installata. Installarla di nuovo?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>È già installata una versione più recente di Tessaly. Il programma di installazione verrà chiuso.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <extracomment>Screen reader: names the tutorial.</extracomment>
        <translation>Tutorial di Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Settimane</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>La cartella appartiene a Dropbox. Sincronizzarla anche con Tessaly può causare conflitti di file.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly è pronta.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <extracomment>Status, label of the start-up dialog.</extracomment>
        <translation>Tessaly sta inizializzando...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>L&apos;ID Ferrylink non esiste oppure Tessaly Server non è in esecuzione sull&apos;hub.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Questa versione di Tessaly è troppo vecchia per l&apos;hub. Aggiornarla.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <extracomment>Label beside a list of rights on a shared file.</extracomment>
        <translation>Autorizzazione di condivisione</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>La versione di Tessaly Server sull&apos;hub è troppo vecchia per questo client. Chiedere all&apos;amministratore di eseguire l&apos;aggiornamento.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <extracomment>Button: opens the tutorial.</extracomment>
        <translation>Mostra il tutorial di Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Avvia Tessaly quando accedo a questo computer</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Tessaly ha riscontrato un problema. Riavviare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>La configurazione è completata. La sincronizzazione dei file è in corso.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <extracomment>Message of the wizard&apos;s last page.</extracomment>
        <translation>Fare clic sull&apos;icona nell&apos;area di notifica in qualsiasi momento per vedere lo stato e modificare le impostazioni.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>La cartella non è vuota. Tessaly ne unirà i file con quelli sull&apos;hub.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly è già in esecuzione.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>La configurazione di Tessaly è completata. Aprire la cartella per iniziare a lavorare.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Si dispone del solo accesso in lettura a questa cartella. Tessaly non caricherà le modifiche.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Apri Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <extracomment>Message in the tray menu; %1 is a version number.</extracomment>
        <translation>È disponibile la versione %1. Fare clic qui per aggiornare.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Per utilizzare la sincronizzazione selettiva, chiedere all&apos;amministratore di aggiornare Tessaly Server sull&apos;hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: empties a list or a field (verb).</extracomment>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Date and time</source>
        <extracomment>Column head of a list.</extracomment>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Lo spazio su questo disco non è sufficiente. Tessaly richiede almeno %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly è ora collegata all&apos;hub e manterrà i file sincronizzati.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly può essere collegata allo stesso hub una sola volta con lo stesso account.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Configurare Tessaly per sincronizzare i file di questo computer.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Primo utilizzo di Tessaly? Leggere prima la &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;guida introduttiva&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Può commentare</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Gli utenti dell&apos;hub con il link possono visualizzare</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Gli utenti dell&apos;hub con il link possono modificare</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Solo le persone invitate possono aprire il link</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Chiunque abbia il link può commentare</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Chiunque abbia il link può visualizzare</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Gli utenti dell&apos;hub con il link possono commentare</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Chiunque abbia il link può modificare</translation>
    </message>
    <message>
        <source>Can view</source>
        <extracomment>Choice: a right on a shared file: open it, change nothing.</extracomment>
        <translation>Può visualizzare</translation>
    </message>
    <message>
        <source>Can manage</source>
        <extracomment>Choice: a right on a shared folder: change it and give rights to others.</extracomment>
        <translation>Può gestire</translation>
    </message>
    <message>
        <source>Can edit</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Può modificare</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Impossibile aprire il portale web. Verificare la connessione all&apos;hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <extracomment>Button: opens a field for the names of people to share with.</extracomment>
        <translation>Invita persone</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>Choice: a right on a shared file: none.</extracomment>
        <translation>Nessun accesso</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Non sono presenti cartelle condivise.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Menu item/Button: fetches the file (verb).</extracomment>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>La condivisione pubblica è disattivata sull&apos;hub.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>La condivisione è disattivata. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Menu item: makes an older version of a file the current one (verb).</extracomment>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) richiede il seguente accesso al foglio di calcolo Grida “%4”: %3.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <extracomment>Message below the question whether to remove the link (URL).</extracomment>
        <translation>Chi dispone del link non potrà più aprire il file.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s; a Grida spreadsheet is a whole file, not one sheet.</extracomment>
        <translation>%1 ha condiviso con te il foglio di calcolo Grida “%2”.</translation>
    </message>
    <message>
        <source>No data</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>Nessun dato</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>Button/Menu item: opens the page on which an item is shared (verb).</extracomment>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Il file o la cartella non esiste.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Non si dispone dell&apos;autorizzazione per eseguire questa azione.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <extracomment>Choice of a list of days on which a backup runs: Saturday and Sunday.</extracomment>
        <translation>Fine settimana</translation>
    </message>
    <message>
        <source>Hub users</source>
        <extracomment>Choice: who may open a sharing link: everyone who has an account on the hub.</extracomment>
        <translation>Utenti dell&apos;hub</translation>
    </message>
    <message>
        <source>My Quay</source>
        <extracomment>Name of the user&apos;s folder; stays as it is.</extracomment>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Solo persone invitate</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Tab of the settings: how things look.</extracomment>
        <translation>Visualizzazione</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Chiunque abbia il link</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Imposta una data di scadenza</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <extracomment>Heading of a list: those that an item is shared with.</extracomment>
        <translation>Utenti e gruppi</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <extracomment>Check box of the display settings.</extracomment>
        <translation>Mostra le cartelle sincronizzate nella barra laterale del gestore dei file</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>La cartella sincronizzata si usa come qualsiasi altra cartella. Le modifiche vengono trasferite subito sull&apos;hub.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <extracomment>Label below a picture of a tutorial page.</extracomment>
        <translation>Il tuo computer</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <extracomment>Heading of a tutorial page, alone (no verb).</extracomment>
        <translation>Tutti i file, ovunque</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Risparmiare spazio con la sincronizzazione on demand</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Tutti i file sono visibili sul computer, ma occupano spazio solo dopo l&apos;apertura.</translation>
    </message>
    <message>
        <source>Online only</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file lies on the hub alone.</extracomment>
        <translation>Solo online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file was downloaded.</extracomment>
        <translation>Disponibile su questo computer</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann mentioned you in Plan.txt&quot;.</extracomment>
        <translation>ti ha menzionato in</translation>
    </message>
    <message>
        <source>requested access to</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann requested access to Plan.txt&quot;.</extracomment>
        <translation>ha richiesto l&apos;accesso a</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 ha condiviso con te il file “%2”.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <extracomment>Fragment in a list of notifications, after a person&apos;s name and before a file&apos;s: &quot;Ann shared with you Plan.txt&quot;.</extracomment>
        <translation>ha condiviso con te</translation>
    </message>
    <message>
        <source>Shared</source>
        <extracomment>Choice of a filter of notifications: those about files that were shared with the user.</extracomment>
        <translation>Condivisioni</translation>
    </message>
    <message>
        <source>Access request</source>
        <extracomment>Choice of a filter of notifications: someone asks for access (noun).</extracomment>
        <translation>Richiesta di accesso</translation>
    </message>
    <message>
        <source>Comments</source>
        <extracomment>Choice of a filter of notifications (noun, plural).</extracomment>
        <translation>Commenti</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <extracomment>Heading of a page: files that others share with the user.</extracomment>
        <translation>Condivisi con me</translation>
    </message>
    <message>
        <source>Mentions</source>
        <extracomment>Choice of a filter of notifications: someone wrote the user&apos;s name in a comment (noun, plural).</extracomment>
        <translation>Menzioni</translation>
    </message>
    <message>
        <source>Upload only</source>
        <extracomment>Choice of the sync direction: from this computer to the hub alone, nothing is downloaded.</extracomment>
        <translation>Solo upload</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <extracomment>Check box of a task&apos;s settings and filters.</extracomment>
        <translation>Mantieni i file sull&apos;hub quando vengono eliminati da questo computer</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Il download di “%1” è completato.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>I file sono aggiornati su tutti i dispositivi.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>I file sono disponibili anche nel &lt;a href=&quot;%1&quot;&gt;portale web&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Congratulazioni!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Ora è possibile utilizzare Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <extracomment>Choice of the wizard, second of two: files that others share with the user.</extracomment>
        <translation>Attiva più tardi</translation>
    </message>
    <message>
        <source>Enable now</source>
        <extracomment>Choice of the wizard, first of two: files that others share with the user.</extracomment>
        <translation>Attiva ora</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>File condivisi con te</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Crea un&apos;attività di sincronizzazione</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <extracomment>Choice of the wizard: which files a new task syncs (team: a group of people).</extracomment>
        <translation>I miei file e le cartelle del team</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <extracomment>Choice of the wizard: which files a new task syncs.</extracomment>
        <translation>File condivisi con me</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Questo non è l&apos;hub a cui era collegata Tessaly. Collegare di nuovo questo computer.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>L&apos;hub e Tessaly non possono comunicare. Aggiornare entrambi alla versione più recente.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Nessuna modifica passa inosservata</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Il disco è pieno. Liberare spazio su questo computer affinché Tessaly possa continuare.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <extracomment>Choice: a type of folder on the hub (team: a group of people).</extracomment>
        <translation>Cartella del team</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;).</extracomment>
        <translation>Solo download delle modifiche da Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Impossibile aggiornare Tessaly. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>L&apos;icona nell&apos;area di notifica mostra gli elementi in fase di sincronizzazione e segnala quando altri condividono file o li commentano.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <extracomment>Heading of a tutorial page, an invitation (verb: within seconds).</extracomment>
        <translation>Condividere in pochi secondi</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Fare clic con il pulsante destro del mouse su un file o una cartella, creare un link e decidere chi può aprirlo e per quanto tempo.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) richiede il seguente accesso alla presentazione Pictra “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the folder&apos;s.</extracomment>
        <translation>%1 ha condiviso con te la cartella “%2”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the folder&apos;s name.</extracomment>
        <translation>%1 (%2) richiede il seguente accesso alla cartella “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) richiede il seguente accesso al file “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) richiede il seguente accesso al documento Folia “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 ha condiviso con te il documento Folia “%2”.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 ha condiviso con te la presentazione Pictra “%2”.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <extracomment>Heading of a page: who may see what.</extracomment>
        <translation>Impostazioni di privacy</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Proteggi con una password</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <extracomment>Choice of a list of days on which a backup runs: Monday to Friday.</extracomment>
        <translation>Giorni lavorativi</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Verrà creata una cartella denominata “%1” per i file condivisi da altri.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <extracomment>Menu item/Label of the file manager: the files are downloaded and stay; also below a picture of it.</extracomment>
        <translation>Mantieni sempre su questo computer</translation>
    </message>
    <message>
        <source>Any</source>
        <extracomment>Choice of a filter: no type is left out (belongs to &quot;type&quot;).</extracomment>
        <translation>Qualsiasi</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Column head of the list of files that are being transferred (noun).</extracomment>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Connessione...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Il backup viene eseguito non appena i file cambiano.</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Label beside a field: the list below shows what matches (noun).</extracomment>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Il backup dei file viene eseguito agli orari impostati.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <extracomment>Message: %1 is a number that counts down.</extracomment>
        <translation>Il backup è completato. Il computer verrà arrestato tra %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Attività di backup</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <extracomment>Label above a row of check boxes with the days of the week (not dates).</extracomment>
        <translation>Esegui nei giorni seguenti</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Connessione all&apos;hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Proteggere i file di questo computer eseguendone il backup sull&apos;hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Manuale: il backup viene eseguito solo quando lo si avvia.</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Label beside a field for a time of day: when a backup starts (noun).</extracomment>
        <translation>Ora di inizio</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>Label beside a list: how often a backup runs (noun).</extracomment>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Last end time</source>
        <extracomment>Label beside a date and time: when the backup came to its end last (a moment, not a duration).</extracomment>
        <translation>Fine dell&apos;ultima esecuzione</translation>
    </message>
    <message>
        <source>Last run time</source>
        <extracomment>Label beside a date and time: when the backup ran last (a moment, not a duration).</extracomment>
        <translation>Ultima esecuzione</translation>
    </message>
    <message>
        <source>Commenter</source>
        <extracomment>Choice: a role (noun, a person): may open and comment; beside Viewer, Previewer, Editor, Manager.</extracomment>
        <translation>Commentatore</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <extracomment>Tooltip of the button beside a sharing link (URL).</extracomment>
        <translation>Cambia chi può aprire questo link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Ultimo upload: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <extracomment>Heading of a page.</extracomment>
        <translation>Impostazioni dell&apos;attività</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Continuo: il backup dei file viene eseguito a ogni modifica.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <extracomment>Menu item: opens the folder in the system&apos;s program for files.</extracomment>
        <translation>Apri nel gestore dei file</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <extracomment>Message below an end time that is earlier in the day than the start time.</extracomment>
        <translation>L&apos;ora si riferisce al giorno successivo.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Impossibile recuperare le informazioni sulla condivisione.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <extracomment>Label beside the path of the folder on the hub that backups are stored in (a place, not a purpose).</extracomment>
        <translation>Destinazione del backup</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <extracomment>Message of a choice; &quot;Back up now&quot; is the text of a button.</extracomment>
        <translation>Il backup dei file viene eseguito quando si fa clic su Esegui backup ora.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Consenti i download</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Pianificato: il backup viene eseguito agli orari impostati.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <extracomment>Heading of a page: the days and times of the backup; not the same as &quot;Backup plan&quot;.</extracomment>
        <translation>Pianificazione del backup</translation>
    </message>
    <message>
        <source>Manager</source>
        <extracomment>Choice: a role (noun, a person): may change everything and give rights; beside Viewer, Previewer, Commenter, Editor.</extracomment>
        <translation>Gestore</translation>
    </message>
    <message>
        <source>Previewer</source>
        <extracomment>Choice: a role (noun, a person): may look at a file without downloading it; beside Viewer, Commenter, Editor, Manager.</extracomment>
        <translation>Solo anteprima</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Crea un&apos;attività di backup</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>I file con i nomi o le estensioni elencati qui verranno ignorati.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <extracomment>Check box of a task&apos;s settings (verb: temporary files are synced too).</extracomment>
        <translation>Sincronizza i file temporanei</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Copiare i file da questo computer all&apos;hub, subito o in base a una pianificazione.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Scegliere quando eseguire il backup dei file.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Selezionare almeno una cartella di cui eseguire il backup.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <extracomment>Status of a task; %1 is a number, %2 a size with its unit, %3 the name of a folder or hub, %4 a date.</extracomment>
        <translation>Backup in “%3” del %4: %1 file (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Heading of the page with what was transferred (noun).</extracomment>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <extracomment>Button of the first page: sets up a backup task.</extracomment>
        <translation>Avvia il backup</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Il backup dei file e delle cartelle che corrispondono a queste regole non verrà eseguito.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <extracomment>Status: stands in place of a path.</extracomment>
        <translation>Nessuna cartella selezionata</translation>
    </message>
    <message>
        <source>Free up space</source>
        <extracomment>Menu item of the file manager: the files stay on the hub alone, so that they take no space here.</extracomment>
        <translation>Libera spazio</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <extracomment>Menu item of the file manager: the opposite of &quot;Always keep on this computer&quot;.</extracomment>
        <translation>Non mantenere più su questo computer</translation>
    </message>
    <message>
        <source>Selected days</source>
        <extracomment>Choice of a list of days on which a backup runs: days of the week that the user chooses.</extracomment>
        <translation>Giorni selezionati</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <extracomment>Label before a list: what the computer does then, such as &quot;Shut down the computer&quot;.</extracomment>
        <translation>Al termine del backup</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the computer&apos;s name.</extracomment>
        <translation>Selezionare una cartella su “%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Selezionare una cartella sull&apos;hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <extracomment>Fragment before a number field and its unit: &quot;Every [4] hours&quot;.</extracomment>
        <translation>Ogni</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <extracomment>Check box of a task&apos;s filters (period: the sign &quot;.&quot; before a name).</extracomment>
        <translation>Ignora file e cartelle con nomi che iniziano con un punto</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <extracomment>Button of the first page: sets up a sync task.</extracomment>
        <translation>Avvia la sincronizzazione</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>Il backup si è interrotto perché non è stato possibile verificare il certificato SSL dell&apos;hub.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Impossibile registrare l&apos;attività sull&apos;hub. Riprovare.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>Il backup si è interrotto perché l&apos;hub a questo indirizzo è cambiato.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>Il backup si è interrotto perché l&apos;hub e il client non possono comunicare. Aggiornare entrambi.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Il backup si è interrotto perché questa versione di Tessaly è troppo vecchia per l&apos;hub.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <extracomment>Message: %1 is a version number.</extracomment>
        <translation>Aggiornare Tessaly alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Verificare il nome utente e la password, quindi eseguire di nuovo l&apos;accesso.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Verificare che l&apos;hub sia acceso e che questo computer sia connesso alla rete.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>L&apos;hub ha bloccato l&apos;indirizzo IP di questo computer. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>Il certificato SSL dell&apos;hub non è valido. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Chiedere all&apos;amministratore di aggiornare Tessaly Server sull&apos;hub.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Nessun backup eseguito</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Mantenere identiche una cartella di questo computer e una cartella dell&apos;hub.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <extracomment>Link: opens a page of the help; keep the tag as it is.</extracomment>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Ulteriori informazioni&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Scegliere i giorni e gli orari di esecuzione del backup.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <extracomment>Check box of a backup&apos;s schedule.</extracomment>
        <translation>Esegui i backup mancati appena possibile</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <extracomment>Message of the wizard; the sides are this computer and the hub.</extracomment>
        <translation>Scegliere una cartella su ciascun lato.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Immettere l&apos;indirizzo dell&apos;hub e il proprio account.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Verificare le impostazioni della nuova attività.</translation>
    </message>
    <message>
        <source>Path</source>
        <extracomment>Column head in the wizard&apos;s summary: the place of a folder.</extracomment>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Il backup si è interrotto perché l&apos;accesso all&apos;hub non è riuscito.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>La versione del pacchetto sull&apos;hub non è supportata. Chiedere all&apos;amministratore di eseguire l&apos;aggiornamento.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>Il backup si è interrotto perché l&apos;hub ha bloccato l&apos;indirizzo IP di questo computer.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>Il backup si è interrotto perché il pacchetto sull&apos;hub è troppo vecchio per questo client.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Alcune delle cartelle selezionate non esistono più. Deselezionarle per continuare.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <extracomment>Heading of the state of a task: it may upload alone or download alone.</extracomment>
        <translation>Direzione di sincronizzazione non corrispondente</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ora è possibile installare Kelvane Quay Client. Fare clic su Installa per iniziare o su Indietro per verificare le impostazioni.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Scegliere un tipo di attività</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Lavorare con gli stessi file su tutti i computer.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Conservare una copia sicura dei file sull&apos;hub.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Accedere all&apos;hub in cui verranno archiviati i backup.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Configura le cartelle sincronizzate</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Liberare spazio sul disco di questo computer.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Scegliere la cartella dell&apos;hub da sincronizzare.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>I file vengono scaricati solo quando vengono aperti, risparmiando spazio su questo computer.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>La sincronizzazione on demand non è disponibile per la cartella selezionata o per il sistema operativo di questo computer.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Cartella condivisa non montata</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <extracomment>Choice of the sync direction: changes are uploaded and never downloaded (&quot;only&quot; goes with &quot;upload&quot;); %1 is a product name.</extracomment>
        <translation>Solo upload delle modifiche su %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <extracomment>Check box of a page of the settings; the user speaks.</extracomment>
        <translation>Sincronizza i file che altri condividono con me</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <extracomment>Check box of a backup task (verb: temporary files are backed up too).</extracomment>
        <translation>Esegui il backup dei file temporanei</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>I file condivisi da altri compariranno in una cartella a parte su questo computer.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <extracomment>Label beside the address of the hub&apos;s web pages.</extracomment>
        <translation>Portale web</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Quota di archiviazione esaurita</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <extracomment>Heading of the state of a task: the hub offers no home folders.</extracomment>
        <translation>Cartella home disattivata</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Gio</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Sab</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Cartella locale non trovata</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Impossibile avviare l&apos;attività. Riavviare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>La cartella condivisa di questa attività non è montata sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Non si dispone più dell&apos;autorizzazione per accedere alla cartella condivisa di questa attività.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <extracomment>Heading of the state of a task: a disk drive of this computer.</extracomment>
        <translation>Unità non connessa</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Quasi fatto! I file saranno presto disponibili in %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Immettere 0 per non impostare alcun limite.</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Role</source>
        <extracomment>Column head of the list of people that an item is shared with: Viewer, Editor and so on.</extracomment>
        <translation>Ruolo</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Dom</translation>
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
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <extracomment>Choice of the installer, second of two; the user speaks.</extracomment>
        <translation>Non accetto il contratto di licenza</translation>
    </message>
    <message>
        <source>Disk full</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Disco pieno</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Inizializzazione non riuscita</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>La cartella locale potrebbe essere stata spostata, rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Quota della cartella condivisa esaurita</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>La quota della cartella condivisa è esaurita. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Cartella remota non trovata</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>La cartella remota potrebbe essere stata spostata, rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <extracomment>Label beside a list: what people with the link (URL) may do.</extracomment>
        <translation>Autorizzazione del link</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Prossimo backup: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <extracomment>Label of a task: on which days and at which times, as a whole; not the same as &quot;Backup schedule&quot;.</extracomment>
        <translation>Piano di backup</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>Label above a field with a URL (noun).</extracomment>
        <translation>Link di condivisione</translation>
    </message>
    <message>
        <source>Share link</source>
        <extracomment>Button: shows the URL to an item (verb and noun: share the link).</extracomment>
        <translation>Condividi link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <extracomment>Message: %1 is a product name, %2 and %3 are version numbers.</extracomment>
        <translation>Le attività di backup richiedono %1 %2 o versione successiva sull&apos;hub. Versione installata: %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Questo computer è già collegato a questo hub con lo stesso account.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Caricamento delle cartelle condivise...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Le modifiche sulle unità di rete non possono essere rilevate immediatamente. Verranno sincronizzate con un ritardo.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Benvenuti in Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Fare clic sull&apos;icona di Tessaly nell&apos;area di notifica per modificare le impostazioni.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Fare clic sull&apos;icona di %1 nell&apos;area di notifica per modificare le impostazioni.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>La sincronizzazione si è interrotta perché un volume dell&apos;hub è pieno.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Il pacchetto sull&apos;hub è troppo vecchio per il client.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Collegamento all&apos;hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tutti i file sono aggiornati.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Choice: a right on a shared file, or the command: look at it without downloading it.</extracomment>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>Status of a task and of the client in the tray (adjective).</extracomment>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Folder link</source>
        <extracomment>Label above a field with a URL to a folder (noun).</extracomment>
        <translation>Link alla cartella</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <extracomment>Label beside a field of a sharing link: the last day on which it may be opened.</extracomment>
        <translation>Data di scadenza</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <extracomment>Message of the tutorial; %1 is a product name.</extracomment>
        <translation>Ora è possibile utilizzare %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Status: how long ago a file changed: at this moment.</extracomment>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>Button: sends the file to the hub (verb).</extracomment>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Aggiornare %1 alla versione %2 o successiva.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Scegliere i file che la nuova attività manterrà sincronizzati.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <extracomment>Screen reader: names a button; %1 is a product name.</extracomment>
        <translation>Apri il portale web di %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <extracomment>Name of the product, %1 of many texts; fixed.</extracomment>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Il backup si è interrotto perché questa versione di %1 è troppo vecchia per l&apos;hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Chiedere all&apos;amministratore di aggiornare %1 sull&apos;hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>In questa posizione verrà creata una cartella denominata “%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Impossibile creare la cartella “%1” su questo computer.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Tutti i file sono visibili senza riempire il disco. Ogni file viene scaricato quando viene aperto.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Apri il portale web di Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>È già installata una versione più recente di Tessaly. Rimuoverla prima di installare Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <extracomment>Screen reader: names a page of the tutorial; %1 is a product name.</extracomment>
        <translation>Pagina 1 del tutorial: benvenuti in %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <extracomment>Column head of a list: sync or backup (noun).</extracomment>
        <translation>Tipo di attività</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button: takes what was chosen in a list (verb).</extracomment>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ora è possibile installare le funzionalità di sincronizzazione e backup di Kelvane Quay Client. Fare clic su Installa per iniziare o su Indietro per verificare le impostazioni.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Attiva la sincronizzazione on demand</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>La cartella di sincronizzazione on demand “%1” non è stata trovata. Configurare di nuovo l&apos;attività.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <extracomment>Heading of a part of the settings: a feature&apos;s name (noun).</extracomment>
        <translation>Sincronizzazione on demand</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <extracomment>Heading of an offer: a feature&apos;s name follows the verb (&quot;try&quot; as an invitation).</extracomment>
        <translation>Provare la sincronizzazione on demand</translation>
    </message>
    <message>
        <source>Comment</source>
        <extracomment>Choice: a right on a shared file (verb), beside Preview and Edit.</extracomment>
        <translation>Commenta</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Il volume dell&apos;hub è pieno. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Immettere una data valida.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>L&apos;ora di fine deve essere successiva all&apos;ora di inizio.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <extracomment>Tooltip of a cell of the list of excluded files; &quot;*.tmp&quot; is an example and stays.</extracomment>
        <translation>Immettere un nome o un&apos;estensione di file, ad esempio “*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <extracomment>Heading of a page that explains Viewer, Editor and so on.</extracomment>
        <translation>Ruoli e autorizzazioni</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>Button: changes an entry (verb); also a right on a shared file.</extracomment>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <extracomment>Event: what happened to the file, in the history too: it stays on the hub alone (the space was freed up).</extracomment>
        <translation>Spazio liberato</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <extracomment>Event: what happened to the file, in the history too: it was downloaded and stays.</extracomment>
        <translation>Reso disponibile su questo computer</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>La sincronizzazione on demand richiede una cartella in un&apos;unità NTFS che non sia di rete o rimovibile.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Mantenere i file online finché non servono. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Come funziona la sincronizzazione on demand&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <extracomment>Message: %1 is a product name, %2 a number.</extracomment>
        <translation>Lo spazio su questo disco non è sufficiente. %1 richiede almeno %2&#xa0;MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Sincronizzare la cartella home e le cartelle del team a cui si ha accesso.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Se si disattiva questa opzione, la cartella con i file condivisi da altri verrà rimossa da questo computer. Continuare?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Sincronizzare i file condivisi da altri per poterli aprire come i propri.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <extracomment>Check box of the wizard.</extracomment>
        <translation>Attiva la sincronizzazione on demand per questa attività</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>Il backup si è interrotto perché l&apos;account non è autorizzato a utilizzare il pacchetto sull&apos;hub.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Sincronizzare i file e le cartelle condivisi da altri utenti.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Il disco è quasi pieno. Attivare la sincronizzazione on demand per liberare spazio.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <extracomment>Heading of a wizard page, below its title.</extracomment>
        <translation>Tutto ciò che è condiviso da altri, in una sola cartella</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Chiedere all&apos;amministratore di concedere l&apos;autorizzazione a utilizzare il pacchetto.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Questo client richiede %1 %2 o versione successiva sull&apos;hub. Chiedere all&apos;amministratore di eseguire l&apos;aggiornamento.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Non si dispone dell&apos;autorizzazione per utilizzare il pacchetto sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>La destinazione è già utilizzata da un&apos;altra attività di backup. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 non può comunicare con il pacchetto sull&apos;hub. Aggiornare entrambi alla versione più recente.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Solo tu puoi aprire il link</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <extracomment>Button in a warning about the certificate: goes on in spite of it.</extracomment>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly mantiene identici i file su tutti i computer e li protegge sull&apos;hub.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Condividere un file con un link e decidere chi può visualizzarlo o modificarlo.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <extracomment>Button on the first page of the tutorial.</extracomment>
        <translation>Inizia il tour</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: %1 is a product name; keep the link as it is.</extracomment>
        <translation>Primo utilizzo di %1? Leggere prima la &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;guida introduttiva&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Immettere il nome utente.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Tutti i file di questa attività verranno scaricati su questo computer. Continuare?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <extracomment>Heading of the first page of the tutorial.</extracomment>
        <translation>Benvenuti in Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Condividere con altri</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Aprire la cronologia per scoprire chi ha modificato un file e quando.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Mantenere identici i file su tutti i computer sincronizzandoli con l&apos;hub.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <extracomment>Status of a task; %1 is always 1.</extracomment>
        <translation>%1 file in elaborazione</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 e il client hanno versioni diverse. Aggiornare entrambi alla stessa versione.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <extracomment>Status of a task; %1 is any number.</extracomment>
        <translation>File in elaborazione: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <extracomment>Status of a task; %1 is a number, more than one.</extracomment>
        <translation>%1 file in elaborazione</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Il volume di questa cartella non supporta le quote.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>La quota di archiviazione personale è esaurita.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <extracomment>Message: %1 to %4 are sizes with their units: used, of, used, of.</extracomment>
        <translation>La cartella home utilizza %1 di %2 e le cartelle condivise utilizzano %3 di %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>La quota della cartella condivisa “%1” è esaurita.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Alcune cartelle hanno raggiunto la propria quota.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Impossibile ripristinare la versione perché il file è escluso da un filtro.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Scegliere le cartelle di cui eseguire il backup e dove archiviare i backup.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Scegliere gli elementi per il backup</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Il backup si è interrotto perché l&apos;account è stato disattivato sull&apos;hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Sincronizzazione...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Chiedere all&apos;amministratore di attivare l&apos;account.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>L&apos;account è stato disattivato sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <extracomment>Status, short, of a task: the administrator has disabled the user&apos;s account.</extracomment>
        <translation>Account disattivato</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostra icone sui file esclusi da un filtro</translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>Tab of the hub&apos;s page: space and quotas.</extracomment>
        <translation>Archiviazione</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <extracomment>Screen reader: names a window that asks.</extracomment>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Tutte le attività con questo hub verranno rimosse da questo computer. I file verranno mantenuti. Continuare?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Il backup non è riuscito. Riprovare.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Impossibile creare l&apos;attività. Riprovare.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Non si dispone più dell&apos;autorizzazione per accedere alla cartella condivisa “%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <extracomment>Status of a task; %1 is a file name.</extracomment>
        <translation>Elaborazione di “%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Giorni</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Impossibile caricare l&apos;attività.</translation>
    </message>
    <message>
        <source>Operation</source>
        <extracomment>Column head of a list: what can be done with an entry (noun).</extracomment>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <extracomment>Message: %1 is a path.</extracomment>
        <translation>La cartella “%1” non esiste.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <extracomment>Choice of a list after &quot;When the backup is done&quot;: what the computer does then (verb).</extracomment>
        <translation>Arresta il computer</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Non si dispone dell&apos;autorizzazione per arrestare automaticamente questo computer.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Il backup è stato annullato.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Il backup è completato.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <extracomment>Choice: how often a backup runs; %1 is a number, more than one.</extracomment>
        <translation>Esegui il backup %1 volte al giorno</translation>
    </message>
    <message>
        <source>times</source>
        <extracomment>Fragment, unit after a number field: &quot;[3] times&quot;, a day.</extracomment>
        <translation>volte</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <extracomment>Heading/Label: continuous, scheduled or manual (the way in which is backed up).</extracomment>
        <translation>Modalità di backup</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Avviare il backup ora?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Se all&apos;ora pianificata questo computer è spento o in sospensione, il backup viene avviato non appena il computer torna in funzione.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Selezionare almeno un giorno della settimana.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Ultimo backup: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Ogni giorno</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <extracomment>Choice of the backup mode (noun): runs when the user starts it.</extracomment>
        <translation>Backup manuale</translation>
    </message>
    <message>
        <source>Once a day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Una volta al giorno</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <extracomment>Choice of the backup mode (noun): runs as soon as a file changes.</extracomment>
        <translation>Backup continuo</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <extracomment>Choice of the backup mode (noun): runs at set times.</extracomment>
        <translation>Backup pianificato</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Imposta il piano di backup</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <extracomment>Status of a backup: the state of the disk is being recorded.</extracomment>
        <translation>Creazione di uno snapshot...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Impossibile salvare il piano di backup. Riprovare.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Immettere una dimensione compresa tra 0 e %1&#xa0;MB. Immettere 0 per non impostare alcun limite.</translation>
    </message>
    <message>
        <source>Connection</source>
        <extracomment>Tab/Heading: the connection to the hub.</extracomment>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Mostra le operazioni di questa attività</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Mostra gli elementi rimossi</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>Label beside a size: how much space is taken (participle; belongs to &quot;space&quot;).</extracomment>
        <translation>Usato</translation>
    </message>
    <message>
        <source>Months</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Mesi</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <extracomment>Label below a bar; %1 and %2 are sizes with their units: &quot;3 GB of 10 GB used&quot;.</extracomment>
        <translation>Usato: %1 di %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <extracomment>Label beside a task that runs without a window.</extracomment>
        <translation>Attività in background</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Finestra delle impostazioni dei filtri</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Immettere un&apos;ora valida.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <extracomment>Event in the history, of a file: a rule of the client, not one of the user.</extracomment>
        <translation>Non sincronizzato: escluso da una regola di sistema</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <extracomment>Button: opens the settings of the connection to the hub (verb).</extracomment>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Not now</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>Created on</source>
        <extracomment>Column head of a list: the day on which a link or a task was made.</extracomment>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Attività di backup</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Filters</source>
        <extracomment>Tab of a task&apos;s settings: which files are left out (plural).</extracomment>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <extracomment>Heading of the list of files that were changed lately (plural).</extracomment>
        <translation>Modificati di recente</translation>
    </message>
    <message>
        <source>Back up now</source>
        <extracomment>Button: starts the backup at once (verb).</extracomment>
        <translation>Esegui backup ora</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Heading of the part of a page with the files to sync (noun, plural).</extracomment>
        <translation>File</translation>
    </message>
    <message>
        <source>Equal to</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Uguale a</translation>
    </message>
    <message>
        <source>Less than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Minore di</translation>
    </message>
    <message>
        <source>Greater than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Maggiore di</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <extracomment>Heading of the box in which a folder is chosen (verb).</extracomment>
        <translation>Selezionare una cartella su questo computer</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Questa cartella fa già parte di un&apos;attività di backup di %1. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Questa cartella è già sincronizzata da Kelvane Quay Client e non è possibile eseguirne anche il backup. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>IP address</source>
        <extracomment>Label beside the hub&apos;s address in the network.</extracomment>
        <translation>Indirizzo IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann replied to your comment on Plan.txt&quot;.</extracomment>
        <translation>ha risposto al tuo commento su</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <extracomment>Menu item in the tray menu: opens the page with the state of the tasks.</extracomment>
        <translation>Apri lo stato di sincronizzazione</translation>
    </message>
    <message>
        <source>Replies</source>
        <extracomment>Choice of a filter of notifications: replies to the user&apos;s comments (noun, plural).</extracomment>
        <translation>Risposte</translation>
    </message>
    <message>
        <source>Not synced</source>
        <extracomment>Event in the history: the file was left out.</extracomment>
        <translation>Non sincronizzato</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La versione di Tessaly Server sull&apos;hub è troppo vecchia per %1. Chiedere all&apos;amministratore di eseguire l&apos;aggiornamento.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Nessuna connessione all&apos;hub</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes a box.</extracomment>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <extracomment>Heading of a page: rights, password and validity of a sharing link.</extracomment>
        <translation>Condivisione avanzata</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Impossibile salvare le impostazioni di condivisione. Riprovare.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <extracomment>Check box for an item.</extracomment>
        <translation>Attiva la condivisione avanzata</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <extracomment>Check box for an item: password and validity of its link (URL).</extracomment>
        <translation>Attiva la protezione dei link</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos is now shared with advanced settings.&quot;</extracomment>
        <translation>è ora condiviso con impostazioni avanzate.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <extracomment>Heading of a page: a link (URL) with password and validity (participle; belongs to &quot;sharing&quot;).</extracomment>
        <translation>Condivisione protetta</translation>
    </message>
    <message>
        <source>Link protection</source>
        <extracomment>Heading of a page: password and validity of a link (URL).</extracomment>
        <translation>Protezione dei link</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Rimuovere il link? Non potrà essere ripristinato.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <extracomment>Heading of a question; the link is a URL.</extracomment>
        <translation>Rimuovere questo link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Salvare i registri del client in un file da inviare al supporto tecnico.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <extracomment>Hint in an empty field.</extracomment>
        <translation>Immettere una parola chiave</translation>
    </message>
    <message>
        <source>Remove link</source>
        <extracomment>Button: takes a link (URL) away (verb).</extracomment>
        <translation>Rimuovi link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <extracomment>Tab of the settings: logs and so on (noun).</extracomment>
        <translation>Risoluzione dei problemi</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Include più dettagli nei registri per aiutare il supporto tecnico a individuare la causa di un problema.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Esporta registri</translation>
    </message>
    <message>
        <source>File deleted</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>File eliminato</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <extracomment>Label above a list, ends in a colon.</extracomment>
        <translation>Il file esportato contiene:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Informazioni sul sistema operativo di questo computer</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <extracomment>Heading of a part of the settings: more details are written to the logs.</extracomment>
        <translation>Registrazione avanzata</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>I registri avanzati occupano più spazio sul disco e possono rallentare il client.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>I registri e le impostazioni del client, senza password</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <extracomment>Check box of the settings: more details are written to the logs.</extracomment>
        <translation>Attiva la registrazione avanzata</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <extracomment>Event in the history, of a file: a rule of the user.</extracomment>
        <translation>Non sincronizzato: escluso da un filtro dell&apos;attività</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <extracomment>Event in the history, of a file.</extracomment>
        <translation>Non sincronizzato: nessuna autorizzazione</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Condizioni d&apos;uso</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Immettere una dimensione inferiore a %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Questa cartella fa già parte di un&apos;altra attività di backup. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>L&apos;attività si è interrotta a causa di un errore imprevisto. Riavviare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Questo file non ha versioni precedenti.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Impossibile attivare la sincronizzazione on demand per questa attività.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>La connessione all&apos;hub non è riuscita. Verificare l&apos;indirizzo e la rete.</translation>
    </message>
    <message>
        <source>:</source>
        <extracomment>Fragment: the colon between a label and its value; a blank that the language sets before it belongs to it.</extracomment>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>File aggiunto</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Il nome non può iniziare o terminare con uno spazio.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>Il backup si è interrotto perché il certificato SSL dell&apos;hub è cambiato.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>Il certificato SSL dell&apos;hub è scaduto. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>L&apos;hub può ora indicizzare l&apos;intera cartella home.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>È ora possibile sincronizzare l&apos;intera cartella home con questo computer.</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Status of a file: another program has it open (participle; belongs to &quot;file&quot;).</extracomment>
        <translation>Bloccato</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <extracomment>Status, short, of a task: a service of the hub is turned off.</extracomment>
        <translation>Norvik disattivato</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>L&apos;hub sta preparando la cartella home. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>File rinominato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <extracomment>Event in a notification; %1 is a file name.</extracomment>
        <translation>“%1” è stato aggiornato</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <extracomment>Message: the signs after the colon are to be kept as they are.</extracomment>
        <translation>Il nome non può contenere i caratteri seguenti: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik è disattivato sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>L&apos;account è stato disattivato sull&apos;hub, quindi non è possibile verificare la cartella.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Button: adds an entry to a list (verb).</extracomment>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>Button: deletes an entry (verb).</extracomment>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Esiste già un&apos;attività con questo nome.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Nessuna delle cartelle selezionate può essere utilizzata. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Nessuna cartella valida</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <extracomment>Tooltip: the link is to be kept as it is.</extracomment>
        <translation>I file rimangono sull&apos;hub finché non vengono aperti. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Ulteriori informazioni sulla sincronizzazione on demand&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <extracomment>Check box beside a field: the user names the task.</extracomment>
        <translation>Nome personalizzato dell&apos;attività</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Il nome aiuta a distinguere le attività. Viene mostrato solo su questo computer.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>La sincronizzazione on demand può essere attivata o disattivata nelle impostazioni dell&apos;attività.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Questo campo è obbligatorio.</translation>
    </message>
</context>
</TS>
