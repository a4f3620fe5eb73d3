<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Connetti tramite Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Scegli un&apos;altra cartella</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
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
        <translation>Fine</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Cartella locale</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Collega di nuovo</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Verifica del nome utente e della password...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Connessione riuscita</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>I file delle due cartelle verranno uniti. Continuare?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Avvio...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Verificare le impostazioni seguenti prima di terminare.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test della connessione...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Nome utente o password non corretti.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>La cartella non è vuota</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso della cartella</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>ID Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuti</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>File aggiornati di recente</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Scaricato</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Inizia</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Ricerca di modifiche...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>La connessione all&apos;hub è stata persa. Riconnessione...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Caricato</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Personalizza</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Accesso non riuscito</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Rilevamento del tipo di connessione...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Relay Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Il servizio Ferrylink non risponde. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>File aggiornati: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Si dispone del solo accesso in lettura a questa cartella. Le modifiche apportate su questo computer non verranno caricate.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>La quota di archiviazione sull&apos;hub è esaurita. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo di connessione</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Cambia la cartella locale</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Impossibile verificare il certificato SSL dell&apos;hub.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Non utilizzare un server proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Utilizza le impostazioni proxy del sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Select a folder</source>
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
        <translation>Spazio esaurito</translation>
    </message>
    <message>
        <source>Proxy settings</source>
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
        <translation>Il numero di cartelle condivise sincronizzate non può superare %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
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
        <translation>Configura manualmente il server proxy</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Nessuna modifica da applicare.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Attiva sincronizzazione</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Nome della cartella condivisa</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Il server proxy richiede l&apos;accesso</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Si è verificato un problema</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aggiornamento...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Crittografa la trasmissione dei dati con SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Nome dell&apos;hub, indirizzo IP o ID Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra notifiche sul desktop</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostra le icone dello stato di sincronizzazione su file e cartelle</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Opzioni generali</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Utilizza un&apos;icona in bianco e nero nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>La cartella condivisa “%1” è disponibile. È possibile attivarne la sincronizzazione con questo computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Verifica dei dati...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>La configurazione automatica non è riuscita. Configurare manualmente la connessione.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Completamento della configurazione...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>I file e le cartelle che corrispondono a queste regole non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Installazione dell&apos;aggiornamento...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Estensioni dei file</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Cartella in un punto di montaggio</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Avanzamento: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
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
        <translation>Cartella</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Il disco di questo computer è pieno. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Caricamento dell&apos;elenco delle cartelle...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Scollegare questo computer dall&apos;hub?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Upload in corso...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Lingua di sistema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome della cartella</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Sincronizzazione dei file (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Download di “%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomi di file esclusi</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Il database locale è danneggiato. Scollegare questo computer dall&apos;hub e collegarlo di nuovo.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro dei file</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Elenco di esclusione</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Le cartelle deselezionate verranno rimosse da questo computer. Rimarranno sull&apos;hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Gestione dei conflitti</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modalità sync</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>La cartella è un punto di montaggio e non può essere sincronizzata. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Il download di “%1” è stato annullato.</translation>
    </message>
    <message>
        <source>Start now</source>
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
        <translation>Collegamento...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorizzazione negata</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Impossibile recuperare dall&apos;hub le informazioni sull&apos;account.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome del computer</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connessione è instabile</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Ottieni link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Collegamento di questo computer all&apos;hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentativo di sincronizzazione...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Visualizzatore</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avviso sul certificato</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Metti in pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Regole di esclusione</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Se si interrompe la sincronizzazione di questa cartella condivisa, le modifiche successive non verranno trasferite. I file locali verranno mantenuti.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Attiva crittografia SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Selezionare la cartella di questo computer da sincronizzare con l&apos;hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>è stato condiviso con Lei.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Nuova condivisione</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Download completato</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Download non riuscito</translation>
    </message>
    <message>
        <source>Hub overview</source>
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
        <translation>In attesa</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
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
        <translation>Esci</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Lascia aperte le applicazioni. In seguito sarà necessario riavviare il computer.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Ripristina i file di programma, i collegamenti e le voci del Registro di sistema mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Avvia [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] manterrà i file protetti e sincronizzati.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Fare clic su Fine per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>L&apos;unità che contiene la cartella locale non è connessa.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Ripristina [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
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
        <translation>Solo download</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Si è verificato un errore e [ProductName] non è stata installata. Tutte le modifiche apportate dal programma di installazione sono state annullate. È possibile eseguire di nuovo l&apos;installazione in qualsiasi momento.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Informazioni su questo computer e sull&apos;hub a cui è collegato.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Questa procedura guidata consente di modificare, ripristinare o rimuovere [ProductName]. Fare clic su Avanti per continuare o su Annulla per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Rimuovi [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contratto di licenza</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>In queste applicazioni sono aperti file che il programma di installazione di [ProductName] deve sostituire:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Andamento sincronizzazione</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>La cartella locale non è stata trovata. Potrebbe essere stata spostata, rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Yes</source>
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
        <translation>Chiudi ora le applicazioni e riaprile al termine dell&apos;installazione.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Chiudere le applicazioni e fare clic su Riprova. Se si fa clic su Ignora, l&apos;installazione di [ProductName] verrà completata solo dopo il prossimo riavvio del computer.</translation>
    </message>
    <message>
        <source>Change</source>
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
        <translation>Modifica [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>È possibile modificare, ripristinare o rimuovere il programma installato.</translation>
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
        <translation>Pronto per rimuovere [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Fare clic su Rimuovi per rimuovere [ProductName] da questo computer. I file sincronizzati verranno mantenuti.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Il programma di installazione sta per ripristinare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Pronto per ripristinare [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Fare clic su Ripristina per iniziare, su Indietro per scegliere un&apos;altra azione o su Annulla per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>L&apos;installazione di [ProductName] è stata interrotta prima del completamento. Il computer non è stato modificato. È possibile eseguire di nuovo l&apos;installazione in qualsiasi momento.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Questa procedura guidata installerà [ProductName] nel computer. Fare clic su Avanti per continuare o su Annulla per uscire dall&apos;installazione.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Dal</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Benvenuti nell&apos;installazione di [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>L&apos;installazione di [ProductName] è completata</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>L&apos;installazione di [ProductName] è stata annullata</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Cronologia dei download</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Collega a un nuovo hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>Impossibile installare [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Sincronizzazione attivata</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Aggiungi attività</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Accetto il contratto di licenza</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>I file, sempre aggiornati su ogni dispositivo.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Questo non è l&apos;hub a cui era collegata %1. Collegare di nuovo questo computer.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>La condivisione è disabilitata per questo account.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>L&apos;attività “%1” verrà interrotta e la sua connessione all&apos;hub verrà rimossa. I file verranno mantenuti su entrambi i lati.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Apri percorso file</translation>
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
        <translation>L&apos;hub è cambiato</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>La cartella condivisa “%1” non è montata sull&apos;hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Il volume della cartella remota non è montato sull&apos;hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Posizione della cartella</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Sincronizza con questo computer</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>L&apos;accesso non è stato eseguito come amministratore, quindi alcune funzionalità potrebbero non essere installate. Continuare?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Sincronizzazione, condivisione e protezione dei file</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>La condivisione di file tramite Ferrylink è disabilitata sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Scegliere come configurare Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Elementi da %1 a %2 di %3</translation>
    </message>
    <message>
        <source>Got it</source>
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
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Non sincronizzare più questa cartella</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 h fa</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Scegliere una cartella sull&apos;hub e una cartella su questo computer. Il loro contenuto rimarrà identico.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maggio</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Questo computer è già collegato</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 g fa</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Poco fa</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 min fa</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Aprile</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febbraio</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ottobre</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Sincronizza di nuovo questa cartella</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Non sincronizzare più queste cartelle</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Nessuna cronologia da mostrare</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Sincronizza di nuovo queste cartelle</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Invia a</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Gennaio</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>In sincronizzazione</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Settembre</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Luglio</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Giugno</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dicembre</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
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
        <translation>Tipo di configurazione</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Sincronizzare i file</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Tenere d&apos;occhio le modifiche</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Trova hub nella rete locale</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informazioni sullo stato</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Utente: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Questo file non appartiene ad alcuna attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Apri la finestra principale</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Collega questo computer a un altro hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Sincronizza un&apos;altra cartella con questo hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nuova sincronizzazione</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Scegliere personalmente le cartelle, la direzione di sincronizzazione e i filtri.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>I file di dimensioni superiori a %1 MB non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Questa cartella non può essere sincronizzata. Sceglierne un&apos;altra.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Cerca hub nella rete locale</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Si dispone del solo accesso in lettura a questa cartella condivisa. I file verranno scaricati ma non caricati.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Altre guide sono disponibili nei &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorial&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Questa cartella contiene una cartella già sincronizzata o si trova al suo interno. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Questo computer è già collegato all&apos;hub “%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>In questa posizione verrà creata una cartella denominata “Tessaly”.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Se si continua, il collegamento esistente verrà sostituito.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>L&apos;hub è offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Cartella home</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Impossibile creare un link perché Norvik non è disponibile sull&apos;hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>Il certificato SSL dell&apos;hub è cambiato. Confermare il nuovo certificato.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Imposta le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>La direzione di sincronizzazione non corrisponde alle autorizzazioni per la cartella remota.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>L&apos;indirizzo IP di questo computer è bloccato dall&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Quando un file è stato modificato su entrambi i lati:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Benvenuti nella procedura guidata di configurazione</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>Unlinking...</source>
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
        <translation>Cartelle sincronizzate</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Mantieni la versione modificata per ultima</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Bidirezionale</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Scegliere quale cartella dell&apos;hub sincronizzare con quale cartella di questo computer.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>ha richiesto l&apos;accesso al modello Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>La cartella è già utilizzata da un&apos;altra attività di sincronizzazione su questo computer.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
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
        <translation>Immettere il codice di verifica a 6 cifre</translation>
    </message>
    <message>
        <source>Hours</source>
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
        <translation>Sincronizzazione</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Mantieni sempre la versione sull&apos;hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Rinomina i file in conflitto e mantieni entrambe le versioni</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) richiede il seguente accesso al modello Bureau “%4”: %3.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Il contenuto di entrambe le cartelle verrà unito. Nessun file verrà eliminato.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Elenco delle connessioni</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Hub connesso</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Copia il link di condivisione</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Rimuovi l&apos;autorizzazione di questo utente</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Gruppo: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Apri il portale web di Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Hub collegato</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Attività di sincronizzazione per i file condivisi da altri</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Scheda File modificati di recente</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Pagina 2 del tutorial: sincronizzare i file</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Pagina 3 del tutorial: tenere d&apos;occhio le modifiche</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Pagina 4 del tutorial: condividere con altri</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Scegli un&apos;autorizzazione di condivisione</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly mantiene identici i file sui computer e sull&apos;hub.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ore</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Apri la mia cartella</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Cartella condivisa non trovata</translation>
    </message>
    <message>
        <source>Version %1</source>
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
        <translation>Alcuni campi contengono valori non validi. Verificare i campi evidenziati.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direzione sincronizzazione</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
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
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Scade dopo</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Nessuna azione disponibile</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Nome utente o password non corretti. Eseguire di nuovo l&apos;accesso.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Immettere un nome di file completo, ad esempio “desktop.ini”, e premere Invio.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Esiste già una cartella con questo nome. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Confronta tutti gli attributi dei file durante la ricerca di modifiche</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Valido fino al</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Questo campo non può essere vuoto.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Limita l&apos;accesso</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Mostra le azioni di sincronizzazione nel menu di scelta rapida di file e cartelle</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Il servizio cartelle home è disabilitato sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>L&apos;aggiornamento non è riuscito. &lt;a href=&quot;%1&quot;&gt;Scaricare la versione più recente&lt;/a&gt; e installarla manualmente.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Applica e copia il link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Limita il numero di visite</translation>
    </message>
    <message>
        <source>Valid from</source>
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
        <translation>Mostra informazioni</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Aggiungi un nome di file</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Cartella su questo computer</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Scegli una lingua</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Elenco delle versioni dei file di cui è in corso il download</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Personalizza il periodo di validità</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Mostra il tutorial di %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Cambia la cartella sincronizzata</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Cartella sincronizzata collegata</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Aggiorna la cronologia</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Immettere una parola chiave da cercare nella cronologia</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Aggiungi una cartella</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Scegli un tipo di evento</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Sincronizzazione “%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Cartella sull&apos;hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Finestra delle impostazioni</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Chiudi il tutorial</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Annulla questo download</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Rimuovi questo download dall&apos;elenco</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>La password è scaduta. Cambiarla nel portale web ed eseguire di nuovo l&apos;accesso.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Rinominato su questo computer</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Rinominato sull&apos;hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Immettere al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Questo non è l&apos;account con cui è stata creata l&apos;attività. Eseguire l&apos;accesso come “%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Informazioni sull&apos;hub</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Il servizio relay Ferrylink è disabilitato sull&apos;hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>Impossibile scaricare “%1”. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>L&apos;accesso all&apos;hub non è riuscito. Verificare il nome utente e la password.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>ha commentato</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Apri nel portale web</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Configura</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Apri la cartella sincronizzata</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Si dispone del solo accesso in lettura a questa cartella. %1 non caricherà le modifiche.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 è ora collegata all&apos;hub e manterrà i file sincronizzati.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Il programma di installazione ha raccolto tutte le informazioni necessarie.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 pronta.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 è già in esecuzione.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>%1 mantiene identici i file sui computer e sull&apos;hub.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Anteprima e commenti</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
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
        <translation>Scegliere cosa sincronizzare con la nuova attività</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>La cartella appartiene a Dropbox. Sincronizzarla anche con %1 può causare conflitti di file.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Le modifiche andranno perse. Continuare?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Tutorial di %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>L&apos;ID Ferrylink non esiste oppure %1 non è in esecuzione sull&apos;hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Qui sono elencate solo le cartelle condivise attivate in %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Avvia %1 quando accedo a questo computer</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 sta inizializzando...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>L&apos;hub e %1 non possono comunicare. Aggiornarli entrambi alla versione più recente.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Questa versione di %1 è troppo vecchia per l&apos;hub. Aggiornarla.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versioni non corrispondenti</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Il disco è pieno. Liberare spazio su questo computer affinché %1 possa continuare.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>%1 ha riscontrato un problema. Riavviare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Scheda Notifiche</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>La cartella non è vuota. %1 ne unirà i file con quelli sull&apos;hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Scarica solo le modifiche da %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>La configurazione di %1 è completata. Aprire la cartella per iniziare a lavorare.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Pagina 1 del tutorial: benvenuti in Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Questa versione di Kelvane Quay Client è già installata. Installarla di nuovo?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
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
        <translation>Tutorial di Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
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
        <translation>Autorizzazione di condivisione</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>La versione di Tessaly Server sull&apos;hub è troppo vecchia per questo client. Chiedere all&apos;amministratore di aggiornarla.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Mostra il tutorial di Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
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
        <translation>Apri Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>È disponibile la versione %1. Fare clic qui per aggiornare.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Per utilizzare la sincronizzazione selettiva, chiedere all&apos;amministratore di aggiornare Tessaly Server sull&apos;hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Lo spazio su questo disco non è sufficiente. Tessaly richiede almeno %1 MB.</translation>
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
        <translation>Primo utilizzo di Tessaly? Leggere prima la &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;guida introduttiva&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Può commentare</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Gli utenti dell&apos;hub con il link possono visualizzare</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Gli utenti dell&apos;hub con il link possono modificare</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Solo le persone invitate possono aprire il link</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Chiunque abbia il link può commentare</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Chiunque abbia il link può visualizzare</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Gli utenti dell&apos;hub con il link possono commentare</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Chiunque abbia il link può modificare</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Può visualizzare</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Può gestire</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Può modificare</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Impossibile aprire il portale web. Verificare la connessione all&apos;hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Invita persone</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Nessun accesso</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Non sono presenti cartelle condivise.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>La condivisione pubblica è disabilitata sull&apos;hub.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>La condivisione è disabilitata. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) richiede il seguente accesso al foglio di calcolo Grida “%4”: %3.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Chi dispone del link non potrà più aprire il file.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 ha condiviso con Lei il foglio di calcolo Grida “%2”.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Nessun dato</translation>
    </message>
    <message>
        <source>Share</source>
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
        <translation>Fine settimana</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Utenti dell&apos;hub</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Solo persone invitate</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualizzazione</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Chiunque abbia il link</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Imposta una data di scadenza</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Utenti e gruppi</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Mostra le cartelle sincronizzate nella barra laterale del gestore dei file</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>La cartella sincronizzata si usa come qualsiasi altra cartella. Le modifiche vengono trasferite subito sull&apos;hub.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Tutti i file, ovunque</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Risparmiare spazio con la sincronizzazione on demand</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Tutti i file sono visibili sul computer, ma occupano spazio solo dopo l&apos;apertura.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Solo online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Disponibile su questo computer</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>ha menzionato il Suo nome in</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>ha richiesto l&apos;accesso a</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 ha condiviso con Lei il file “%2”.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>ha condiviso con Lei</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Condivisioni</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Richiesta di accesso</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commenti</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Condivisi con me</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Menzioni</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Solo upload</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Mantieni i file sull&apos;hub quando vengono eliminati da questo computer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Il download di “%1” è completato.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>I file sono aggiornati su tutti i dispositivi.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
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
        <translation>Attiva più tardi</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Attiva ora</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>File condivisi con Lei</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Crea un&apos;attività di sincronizzazione</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>I miei file e le cartelle del team</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>File condivisi con me</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Questo non è l&apos;hub a cui era collegata Tessaly. Collegare di nuovo questo computer.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>L&apos;hub e Tessaly non possono comunicare. Aggiornarli entrambi alla versione più recente.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Nessuna modifica passa inosservata</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Il disco è pieno. Liberare spazio su questo computer affinché Tessaly possa continuare.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Cartella del team</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Scarica solo le modifiche da Tessaly Server</translation>
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
        <translation>Condividere in pochi secondi</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Fare clic con il pulsante destro del mouse su un file o una cartella, creare un link e decidere chi può aprirlo e per quanto tempo.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) richiede il seguente accesso alla presentazione Pictra “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 ha condiviso con Lei la cartella “%2”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) richiede il seguente accesso alla cartella “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) richiede il seguente accesso al file “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) richiede il seguente accesso al documento Folia “%4”: %3.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 ha condiviso con Lei il documento Folia “%2”.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 ha condiviso con Lei la presentazione Pictra “%2”.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Impostazioni di privacy</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Proteggi con una password</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Giorni lavorativi</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Verrà creata una cartella denominata “%1” per i file condivisi da altri.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Mantieni sempre su questo computer</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Qualsiasi</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Sincronizzazione</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Il backup viene eseguito non appena i file cambiano.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Il backup dei file viene eseguito agli orari impostati.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>Il backup è completato. Il computer verrà arrestato tra %1 s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Attività di backup</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Esegui nei giorni seguenti</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Connessione all&apos;hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Proteggere i file di questo computer eseguendone il backup sull&apos;hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manuale: il backup viene eseguito solo quando lo si avvia.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Ora di inizio</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Ultima ora di fine</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Ultima ora di esecuzione</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Commentatore</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Cambia chi può aprire questo link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ultimo upload: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Impostazioni dell&apos;attività</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Continuo: il backup dei file viene eseguito a ogni modifica.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Apri nel gestore dei file</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>L&apos;ora si riferisce al giorno successivo.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Impossibile recuperare le informazioni sulla condivisione.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destinazione del backup</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Il backup dei file viene eseguito quando si fa clic su Esegui backup ora.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Consenti i download</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Pianificato: il backup viene eseguito agli orari impostati.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Pianificazione del backup</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Gestore</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Solo anteprima</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Crea un&apos;attività di backup</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>I file con i nomi o le estensioni elencati qui verranno ignorati.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
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
        <translation>Backup in “%3” del %4: %1 file (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Avvia il backup</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Il backup dei file e delle cartelle che corrispondono a queste regole non verrà eseguito.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nessuna cartella selezionata</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Libera spazio</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Non mantenere più su questo computer</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Giorni selezionati</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Al termine del backup</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Selezionare una cartella su “%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Selezionare una cartella sull&apos;hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Ogni</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Ignora file e cartelle con nomi che iniziano con un punto</translation>
    </message>
    <message>
        <source>Start syncing</source>
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
        <translation>Il backup si è interrotto perché l&apos;hub e il client non possono comunicare. Aggiornarli entrambi.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Il backup si è interrotto perché questa versione di Tessaly è troppo vecchia per l&apos;hub.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
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
        <translation>Nessun backup eseguito</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Mantenere identiche una cartella di questo computer e una cartella dell&apos;hub.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Ulteriori informazioni&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Scegliere i giorni e gli orari di esecuzione del backup.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Esegui i backup mancati appena possibile</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
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
        <translation>Percorso</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Il backup si è interrotto perché l&apos;accesso all&apos;hub non è riuscito.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>La versione del pacchetto sull&apos;hub non è supportata. Chiedere all&apos;amministratore di aggiornarlo.</translation>
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
        <translation>Alcune delle cartelle selezionate non esistono più. Deselezionarle per continuare.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Direzione di sincronizzazione errata</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ora è possibile installare Kelvane Quay Client. Fare clic su Installa per iniziare o su Indietro per verificare le impostazioni.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
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
        <translation>Cartella condivisa non montata</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Carica solo le modifiche su %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Sincronizza i file che altri condividono con me</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Esegui il backup dei file temporanei</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>I file condivisi da altri compariranno in una cartella a parte su questo computer.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Portale web</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Quota di archiviazione esaurita</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Cartella home disabilitata</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Gio</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sab</translation>
    </message>
    <message>
        <source>Local folder not found</source>
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
        <translation>Unità non connessa</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Quasi fatto! I file saranno presto disponibili in %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Immettere 0 per non impostare alcun limite.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Ruolo</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dom</translation>
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
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Non accetto il contratto di licenza</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco pieno</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Inizializzazione non riuscita</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>La cartella locale potrebbe essere stata spostata, rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Quota della cartella condivisa esaurita</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>La quota della cartella condivisa è esaurita. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Cartella remota non trovata</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>La cartella remota potrebbe essere stata spostata, rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Autorizzazione del link</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Prossimo backup: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Piano di backup</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Link di condivisione</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Condividi link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Le attività di backup richiedono %1 %2 o versione successiva sull&apos;hub. Versione installata: %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Questo computer è già collegato a questo hub con lo stesso account.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
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
        <translation>Collegamento all&apos;hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tutti i file sono aggiornati.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Link alla cartella</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Data di scadenza</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Ora è possibile utilizzare %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Aggiornare %1 alla versione %2 o successiva.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Scegliere i file che la nuova attività manterrà sincronizzati.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Apri il portale web di %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>Il backup si è interrotto perché questa versione di %1 è troppo vecchia per l&apos;hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Chiedere all&apos;amministratore di aggiornare %1 sull&apos;hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>In questa posizione verrà creata una cartella denominata “%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Impossibile creare la cartella “%1” su questo computer.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Tutti i file sono visibili senza riempire il disco. Ogni file viene scaricato quando viene aperto.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Apri il portale web di Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>È già installata una versione più recente di Tessaly. Rimuoverla prima di installare Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Pagina 1 del tutorial: benvenuti in %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Tipo di attività</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ora è possibile installare le funzionalità di sincronizzazione e backup di Kelvane Quay Client. Fare clic su Installa per iniziare o su Indietro per verificare le impostazioni.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Attiva la sincronizzazione on demand</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>La cartella di sincronizzazione on demand “%1” non è stata trovata. Configurare di nuovo l&apos;attività.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Sincronizzazione on demand</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Novità: sincronizzazione on demand</translation>
    </message>
    <message>
        <source>Comment</source>
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
        <translation>Immettere un nome o un&apos;estensione di file, ad esempio “*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Ruoli e autorizzazioni</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Spazio liberato</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Reso disponibile su questo computer</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>La sincronizzazione on demand richiede una cartella in un&apos;unità NTFS che non sia di rete o rimovibile.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Mantenere i file online finché non servono. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Come funziona la sincronizzazione on demand&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Lo spazio su questo disco non è sufficiente. %1 richiede almeno %2 MB.</translation>
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
        <translation>Tutto ciò che è condiviso da altri, in una sola cartella</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Chiedere all&apos;amministratore di concedere l&apos;autorizzazione a utilizzare il pacchetto.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
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
        <translation>%1 non può comunicare con il pacchetto sull&apos;hub. Aggiornare entrambi alla versione più recente.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Solo Lei può aprire il link</translation>
    </message>
    <message>
        <source>Continue anyway</source>
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
        <translation>Inizia il tour</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
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
        <translation>Benvenuti in Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
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
        <translation>%1 file in elaborazione</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 e il client hanno versioni diverse. Aggiornare entrambi alla stessa versione.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>File in elaborazione: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
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
        <translation>La cartella home utilizza %1 di %2 e le cartelle condivise utilizzano %3 di %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
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
        <translation>Scegliere gli elementi per il backup</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Il backup si è interrotto perché l&apos;account è stato disabilitato sull&apos;hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizzazione...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Chiedere all&apos;amministratore di abilitare l&apos;account.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>L&apos;account è stato disabilitato sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>Account disabilitato</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Mostra icone sui file esclusi da un filtro</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Archiviazione</translation>
    </message>
    <message>
        <source>Dialog box</source>
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
        <translation>Non si dispone più dell&apos;autorizzazione per accedere alla cartella condivisa “%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Elaborazione di “%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Giorni</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Impossibile caricare l&apos;attività.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>La cartella “%1” non esiste.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
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
        <translation>Esegui il backup %1 volte al giorno</translation>
    </message>
    <message>
        <source>times</source>
        <translation>volte</translation>
    </message>
    <message>
        <source>Backup mode</source>
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
        <translation>Ultimo backup: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Ogni giorno</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Backup manuale</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Una volta al giorno</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Backup continuo</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Backup pianificato</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Imposta il piano di backup</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Creazione di uno snapshot...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Impossibile salvare il piano di backup. Riprovare.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Immettere una dimensione compresa tra 0 e %1 MB. Immettere 0 per non impostare alcun limite.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Mostra le operazioni di questa attività</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Mostra gli elementi rimossi</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usato</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Mesi</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Usato: %1 di %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Attività in background</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Finestra delle impostazioni dei filtri</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Immettere un&apos;ora valida.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Non sincronizzato: escluso da una regola di sistema</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Attività di backup</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sincronizzazioni</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Modificati di recente</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Esegui backup ora</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Uguale a</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Minore di</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Maggiore di</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Selezionare una cartella su questo computer</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Questa cartella fa già parte di un&apos;attività di backup di %1. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Questa cartella è già sincronizzata da Kelvane Quay Client e non è possibile eseguirne anche il backup. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Indirizzo IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>ha risposto al Suo commento su</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Apri stato sincronizzazione</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Risposte</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Non sincronizzato</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>La versione di Tessaly Server sull&apos;hub è troppo vecchia per %1. Chiedere all&apos;amministratore di aggiornarla.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Nessuna connessione all&apos;hub</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Condivisione avanzata</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Impossibile salvare le impostazioni di condivisione. Riprovare.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Attiva la condivisione avanzata</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Attiva la protezione dei link</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>è ora condiviso con impostazioni avanzate.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Condivisione protetta</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Protezione dei link</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Rimuovere il link? Non potrà essere ripristinato.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Rimuovere questo link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Salvare i registri del client in un file da inviare al supporto tecnico.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Immettere una parola chiave</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Rimuovi link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Risoluzione dei problemi</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Include più dettagli nei registri per aiutare il supporto tecnico a individuare la causa di un problema.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Esporta registri</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>File eliminato</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Il file esportato contiene:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Informazioni sul sistema operativo di questo computer</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Registrazione avanzata</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>I registri avanzati occupano più spazio sul disco e possono rallentare il client.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>I registri e le impostazioni del client, senza password</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Attiva la registrazione avanzata</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Non sincronizzato: escluso da un filtro dell&apos;attività</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Non sincronizzato: nessuna autorizzazione</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Condizioni d&apos;uso</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Immettere una dimensione inferiore a %1 MB.</translation>
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
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
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
        <translation>L&apos;hub può ora indicizzare l&apos;intera cartella home.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>È ora possibile sincronizzare l&apos;intera cartella home con questo computer.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloccato</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik disabilitato</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>L&apos;hub sta preparando la cartella home. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>File rinominato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” è stato aggiornato</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>Il nome non può contenere i caratteri seguenti: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik è disabilitato sull&apos;hub. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>L&apos;account è stato disabilitato sull&apos;hub, quindi non è possibile verificare la cartella.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Delete</source>
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
        <translation>Nessuna cartella valida</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>I file rimangono sull&apos;hub finché non vengono aperti. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Ulteriori informazioni sulla sincronizzazione on demand&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Nome attività personalizzato</translation>
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
