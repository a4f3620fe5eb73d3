<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Opret forbindelse via Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Der opstod filkonflikter. Filen er nu omdøbt til %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Værdien er ugyldig. Kontroller den, og prøv igen.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>Netværket er ikke tilgængeligt. Kontroller forbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Tilknyt igen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kontrollerer dit brugernavn og din adgangskode...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Forbindelsen er oprettet</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Filerne i de to mapper bliver flettet. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Starter...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Gennemgå følgende indstillinger, før du afslutter.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Brugernavnet eller adgangskoden er forkert.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Ferrylink-id</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Senest opdaterede filer</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloadet</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kom i gang</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Søger efter ændringer...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>Forbindelsen til hubben blev afbrudt. Opretter forbindelse igen...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploadet</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Tilpas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Login mislykkedes</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Registrerer forbindelsestypen...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Ferrylink-relæ</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Ferrylink-tjenesten svarer ikke. Prøv igen senere.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Opdaterede filer: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Du har kun læseadgang til denne mappe. Ændringer, du foretager på denne computer, bliver ikke uploadet.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Din lagerkvote på hubben er brugt op. Frigør plads, og prøv igen.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Forbindelsestype</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Skift den lokale mappe</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Hubbens SSL-certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Brug ikke en proxyserver</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vælg en mappe</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Der kunne ikke oprettes forbindelse til Ferrylink-kontrolserveren. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Dine ændringer er ikke gemt. Vil du forlade denne side?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Lagerpladsen er fuld</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Synkronisering kunne ikke aktiveres for den delte mappe.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Denne mappe overlapper med en mappe, der allerede synkroniseres. Vælg en anden.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>Der kan højst synkroniseres %1 delte mapper.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Anvender indstillingerne...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Angiv et portnummer fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Angiv proxyserverens adresse og port.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>Konfigurer proxyserveren manuelt</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Der er ingen ændringer at anvende.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Aktiver synkronisering</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Navn på delt mappe</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxyserveren kræver login</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Noget gik galt</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Opdaterer...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Krypter dataoverførslen med SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Hubnavn, IP-adresse eller Ferrylink-id</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsnotifikationer</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Generelle valgmuligheder</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Brug et sort-hvidt ikon i systembakken</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Den delte mappe “%1” er tilgængelig for dig. Du kan vælge at synkronisere den med denne computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Den automatiske konfiguration mislykkedes. Konfigurer forbindelsen manuelt.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Afslutter konfigurationen...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Filer og mapper, der opfylder disse regler, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Installerer opdateringen...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Filtypenavne</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Mappe på et monteringspunkt</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Softwareopdatering</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Fremdrift: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>Vil du stoppe synkroniseringen af “%1”? Filerne på denne computer og på hubben bevares.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Den delte mappe kunne ikke fjernes fra listen.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Denne konfigurationsnøgle er allerede brugt. Bed din administrator om en ny.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>Det nye sprog træder i kraft, når du har genstartet programmet.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Disken på denne computer er fuld. Frigør plads, og prøv igen.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Indlæser mappelisten...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Er du sikker på, at du vil fjerne denne computers tilknytning til hubben?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation af [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Synkroniserer filer (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Downloader “%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Udelukkede filnavne</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Udelukkede filer</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Den lokale database er beskadiget. Fjern denne computers tilknytning til hubben, og tilknyt den igen.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Udelukkelsesliste</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>De mapper, du har fravalgt, fjernes fra denne computer. De bliver på hubben.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Konflikthåndtering</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringstype</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Mappen er et monteringspunkt og kan ikke synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Download af “%1” blev annulleret.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>Synkroniseringen er stoppet, fordi disken på denne computer er fuld.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>Synkroniseringen er stoppet, fordi din lagerkvote på hubben er brugt op.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Tilknytter...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Dine kontooplysninger kunne ikke hentes fra hubben.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Forbindelsen er ustabil</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hent link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Tilknytter denne computer til hubben...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Forsøger at synkronisere...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Læser</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatadvarsel</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Udelukkelsesregler</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Hvis du stopper synkroniseringen af denne delte mappe, bliver senere ændringer ikke overført. De lokale filer bevares.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Aktiver SSL-kryptering</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Vælg den mappe på denne computer, som du vil synkronisere med hubben.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>er blevet delt med dig.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Ny deling</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Download fuldført</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Download mislykkedes</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>Huboversigt</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Hubben på denne adresse er ændret. Tilknyt denne computer igen.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>Synkroniseringen er sat på pause.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>Der er ikke tillid til hubbens SSL-certifikat.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>Synkroniseringen er i gang.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Klienten er for gammel til hubben. Opdater klienten.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Denne mappe er allerede en del af en backupopgave i Tessaly. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Denne opgave er inaktiv, fordi der ikke er forbindelse til hubben.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Filen kan ikke downloades. Kontroller din forbindelse og dine tilladelser.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>Versionshistorikken for denne fil er ikke tilgængelig.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Der kan ikke oprettes et link til dette element.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Når der dobbeltklikkes på ikonet i systembakken</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>Hubben indekserer denne mappe. Vent et øjeblik.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Initialiseringen mislykkedes. Genstart programmet.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Installationsprogrammet kan ikke erstatte filer, som andre programmer har åbne.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Udskriv</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Lad programmerne være åbne. Du skal genstarte computeren bagefter.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Gendanner manglende eller beskadigede programfiler, genveje og poster i registreringsdatabasen.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Start [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] holder dine filer sikre og synkroniserede.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Klik på Udfør for at lukke installationsprogrammet.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>Drevet med den lokale mappe er ikke tilsluttet.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparer [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Hvad vil du gøre?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>[ProductName] installeres på computeren.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Der opstod en fejl, og [ProductName] blev ikke installeret. Alle ændringer, som installationsprogrammet havde foretaget, er fortrudt. Du kan køre installationsprogrammet igen når som helst.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Oplysninger om denne computer og den hub, den er tilknyttet.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Brug denne guide til at ændre, reparere eller fjerne [ProductName]. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Fjern [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensaftale</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Disse programmer har filer åbne, som installationsprogrammet til [ProductName] skal erstatte:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Synkroniseringsaktivitet</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installerer [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Den lokale mappe mangler. Den kan være blevet flyttet, omdøbt eller slettet.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Er du sikker på, at du vil annullere installationen af [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Læs aftalen, før du fortsætter.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>Luk programmerne nu, og åbn dem igen, når installationen er færdig.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i brug</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Luk programmerne, og klik på Prøv igen. Hvis du klikker på Ignorer, er [ProductName] først komplet, når computeren er blevet genstartet.</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ændr</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Vælg, hvilke funktioner der skal installeres, og hvor.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] installeres altid med alle funktioner.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>Ændr [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Du kan ændre, reparere eller fjerne det installerede program.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Fjerner programmet og dets indstillinger fra computeren.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Dette kan tage flere minutter.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar til at installere [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Tessaly kan nu installeres. Klik på Installer for at starte eller på Tilbage for at kontrollere dine indstillinger.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Installationsprogrammet er klar til at fjerne programmet.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar til at fjerne [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Klik på Fjern for at fjerne [ProductName] fra denne computer. Dine synkroniserede filer bevares.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Installationsprogrammet er klar til at reparere programmet.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar til at reparere [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Klik på Reparer for at starte, på Tilbage for at vælge en anden handling eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Du afsluttede installationsprogrammet, før [ProductName] blev installeret. Intet på computeren er ændret. Du kan køre installationsprogrammet igen når som helst.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Denne guide installerer [ProductName] på computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Velkommen til installationen af [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>[ProductName] er nu installeret</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Installationen af [ProductName] blev annulleret</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Tilknyt en ny hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>[ProductName] kunne ikke installeres</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Synkronisering aktiveret</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Tilføj opgave</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Jeg accepterer licensaftalen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Dine filer, opdateret på alle enheder.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Dette er ikke den hub, som %1 var tilknyttet. Tilknyt denne computer igen.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Deling er deaktiveret for din konto.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>Opgaven “%1” stoppes, og dens forbindelse til hubben fjernes. Filerne på begge sider bevares.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åbn mappen med filen</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Filens adresse kunne ikke hentes fra hubben.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Vælg den mappe på denne computer, hvor dine filer gemmes.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>Hubben er ændret</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>Den delte mappe “%1” er ikke monteret på hubben.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Diskenheden med fjernmappen er ikke monteret på hubben.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Mappens placering</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Synkroniser til denne computer</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Du er ikke logget ind som administrator, så nogle funktioner bliver muligvis ikke installeret. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Synkroniser, del og beskyt dine filer</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Fildeling via Ferrylink er deaktiveret på hubben. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Vælg, hvordan du vil konfigurere Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtig konfiguration</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Element %1 til %2 af %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>Elementet blev slettet, eller du har ikke længere tilladelse til at åbne det.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Højreklik på en fil eller mappe for at dele den, hente et link eller gennemse dens tidligere versioner.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Stop synkronisering af denne mappe</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 t. siden</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Vælg en mappe på hubben og en mappe på denne computer. Deres indhold holdes identisk.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Denne computer er allerede tilknyttet</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 døgn siden</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 min. siden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nøgleord</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkroniser denne mappe igen</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Stop synkronisering af disse mapper</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Der er ingen historik at vise</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkroniser disse mapper igen</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send til</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Synkroniseres nu</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marts</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avanceret konfiguration</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Begynd at synkronisere i ét trin med de anbefalede indstillinger.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Din hjemmemappe på hubben og den nye mappe på denne computer holdes nu identiske.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>Konfigurationen er færdig</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Læg filer i den synkroniserede mappe, så vises de på hubben og på alle dine andre computere.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Klik på ikonet i systembakken for at se synkroniseringsstatus og de senest ændrede filer.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>Konfigurationstype</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tak</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Synkroniser dine filer</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Hold øje med ændringer</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Find hubber på det lokale netværk</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Opdatering tilgængelig</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Bruger: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Denne fil hører ikke til en synkroniseringsopgave.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Åbn hovedvinduet</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Tilknyt denne computer til en anden hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Synkroniser en anden mappe med denne hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Vælg selv mapper, synkroniseringsretning og filtre.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Udført</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer, der er større end %1 MB, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Denne mappe kan ikke synkroniseres. Vælg en anden.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Søg efter hubber på det lokale netværk</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Du har kun læseadgang til denne delte mappe. Filer bliver downloadet, men ikke uploadet.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Find mere hjælp i &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;vejledningerne&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Denne mappe ligger i eller over en mappe, der allerede synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Denne computer er allerede tilknyttet hubben “%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>Der oprettes en mappe med navnet “Tessaly” på denne placering.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Hvis du fortsætter, erstattes den eksisterende tilknytning.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Hubben er offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Hjemmemappe</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Der kan ikke oprettes et link, fordi Norvik ikke er tilgængelig på hubben.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>Hubbens SSL-certifikat er ændret. Bekræft det nye certifikat.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Angiv de mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>Synkroniseringsretningen passer ikke til dine tilladelser til fjernmappen.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>IP-adressen på denne computer er blokeret af hubben. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Når en fil er blevet ændret på begge sider:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Velkommen til konfigurationsguiden</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 sider tilbage</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 sider frem</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøg. Prøv igen senere.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Mappen kan ikke kontrolleres, fordi forbindelsen til hubben mislykkedes.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>Den delte mappe findes ikke længere på hubben.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>Synkroniserede mapper</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Behold den senest ændrede version</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Vælg, hvilken mappe på hubben der skal synkroniseres med hvilken mappe på denne computer.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>anmodede om adgang til Bureau-skabelonen</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Mappen bruges allerede af en anden synkroniseringsopgave på denne computer.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 anmodede om adgang til Bureau-skabelonen “%2”.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Mappen kan ikke kontrolleres, fordi hubbens SSL-certifikat er ændret.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Angiv bekræftelseskoden.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Bekræftelseskoden er forkert. Prøv igen.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Angiv den 6-cifrede bekræftelseskode</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Timer</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Din lagerkvote på diskenheden med denne mappe er brugt op.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Mappen kan ikke kontrolleres, fordi der ikke er tillid til hubbens SSL-certifikat.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Mappen kan ikke kontrolleres på grund af en systemfejl på hubben.</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Behold altid versionen på hubben</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Omdøb filer i konflikt, og behold begge versioner</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) anmoder om adgang (%3) til Bureau-skabelonen “%4”.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Indholdet af begge mapper bliver flettet. Ingen filer bliver slettet.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Liste over forbindelser</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Forbundet hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Kopier delingslinket</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Fjern denne brugers tilladelse</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Gruppe: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Åbn webportalen til Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Tilknyttet hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Synkroniseringsopgave for de filer, som andre deler med dig</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Fanen Senest ændrede filer</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Vejledning, side 2: Synkroniser dine filer</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Vejledning, side 3: Hold øje med ændringer</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Vejledning, side 4: Del med andre</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Vælg en delingstilladelse</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly holder filerne på dine computere og på hubben identiske.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>timer</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Åbn min mappe</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delte mappe blev ikke fundet</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Hubben kræver tofaktorgodkendelse. Konfigurer den i webportalen, og log ind igen.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Den delte mappes kvote er brugt op.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Nogle felter indeholder ugyldige værdier. Kontroller de markerede felter.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>Noget gik galt i en af dine opgaver. Åbn hovedvinduet for at få flere oplysninger.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Kun delte mapper, der er aktiveret i Tessaly Server, vises her.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Du har ikke tilladelse til at åbne denne mappe.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Udløber efter</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Ingen tilgængelige handlinger</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Brugernavnet eller adgangskoden er forkert. Log ind igen.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Angiv et helt filnavn, f.eks. “desktop.ini”, og tryk på Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Der findes allerede en mappe med dette navn. Vælg et andet navn.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Sammenlign alle filattributter ved søgning efter ændringer</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gyldig til</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Dette felt må ikke være tomt.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begræns adgang</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Vis synkroniseringshandlinger i genvejsmenuen for filer og mapper</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Hjemmemappetjenesten er deaktiveret på hubben. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>Opdateringen mislykkedes. &lt;a href=&quot;%1&quot;&gt;Download den nyeste version&lt;/a&gt;, og installer den manuelt.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Anvend og kopier link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Begræns antallet af besøg</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gyldig fra</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>Hubben kræver en nyere version af klienten. Vil du opdatere nu?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>Fjernmappen ligger på en diskenhed, der ikke er monteret.</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>Vis oplysninger</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Tilføj et filnavn</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Mappe på denne computer</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Vælg et sprog</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Liste over de filversioner, der downloades</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Tilpas gyldighedsperioden</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Vis vejledningen til %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Skift den synkroniserede mappe</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Tilknyttet synkroniseret mappe</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Opdater historikken</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Angiv et nøgleord for at søge i historikken</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Tilføj en mappe</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Næste måned</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Vælg en hændelsestype</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Synkroniseringsopgave “%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Mappe på hubben</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Indstillingsvindue</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Luk vejledningen</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Annuller denne download</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Fjern denne download fra listen</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Din adgangskode er udløbet. Skift den i webportalen, og log ind igen.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Redaktør</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Omdøbt på denne computer</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Omdøbt på hubben</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Angiv højst %1 tegn.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Dette er ikke den konto, som opgaven blev oprettet med. Log ind som “%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Huboplysninger</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Ferrylink-relætjenesten er deaktiveret på hubben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>“%1” kunne ikke downloades. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Login på hubben mislykkedes. Kontroller dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifikationer</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>kommenterede</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Åbn i webportalen</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Konfigurer</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Åbn synkroniseret mappe</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Du har kun læseadgang til denne mappe. %1 uploader ikke dine ændringer.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 er nu tilknyttet hubben og holder dine filer synkroniserede.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Installationsprogrammet har indsamlet alle nødvendige oplysninger.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 er klar.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 kører allerede.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>%1 holder filerne på dine computere og på hubben identiske.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Forhåndsvis og kommenter</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>%1 kunne ikke opdateres. Prøv igen senere.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>En nyere version af Kelvane Quay Client er allerede installeret. Installationsprogrammet afsluttes nu.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>Hubbens SSL-certifikat er ændret. Hvis du ikke forventede dette, skal du kontakte din administrator, før du fortsætter.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>Vælg, hvad der skal synkroniseres med den nye opgave</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>Mappen tilhører Dropbox. Hvis den også synkroniseres med %1, kan der opstå filkonflikter.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Dine ændringer går tabt. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Vejledning til %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>Ferrylink-id&apos;et findes ikke, eller %1 kører ikke på hubben.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Kun delte mapper, der er aktiveret i %1, vises her.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Start %1, når jeg logger ind på denne computer</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 initialiserer...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>Hubben og %1 kan ikke kommunikere. Opdater begge til den nyeste version.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Denne version af %1 er for gammel til hubben. Opdater den.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerne passer ikke sammen</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Disken er fuld. Frigør plads på denne computer, så %1 kan fortsætte.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>Der er opstået et problem i %1. Genstart programmet.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Fanen Notifikationer</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>Mappen er ikke tom. %1 fletter mappens filer med filerne på hubben.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Download kun ændringer fra %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>%1 er konfigureret. Åbn din mappe for at begynde at arbejde.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Vejledning, side 1: Velkommen til Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Denne version af Kelvane Quay Client er allerede installeret. Vil du installere den igen?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>Konfigurer %1 for at synkronisere og tage backup af filerne på denne computer.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Næsten færdig! Dine filer er snart tilgængelige i Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Næsten færdig! Dine filer er snart tilgængelige på denne computer.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>Handlingen mislykkedes. Prøv igen.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>Der oprettes en mappe med navnet “Kelvane Quay” på denne placering.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Denne version af Tessaly er allerede installeret. Vil du installere den igen?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>En nyere version af Tessaly er allerede installeret. Installationsprogrammet afsluttes nu.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>Vejledning til Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Uger</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>Mappen tilhører Dropbox. Hvis den også synkroniseres med Tessaly, kan der opstå filkonflikter.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly er klar.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>Tessaly initialiserer...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>Ferrylink-id&apos;et findes ikke, eller Tessaly Server kører ikke på hubben.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Denne version af Tessaly er for gammel til hubben. Opdater den.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>Delingstilladelse</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Tessaly Server på hubben er for gammel til denne klient. Bed din administrator om at opdatere den.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Vis vejledningen til Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>Start Tessaly, når jeg logger ind på denne computer</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Der er opstået et problem i Tessaly. Genstart programmet.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Konfigurationen er færdig. Dine filer synkroniseres nu.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>Klik på ikonet i systembakken når som helst for at se status og ændre indstillingerne.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>Mappen er ikke tom. Tessaly fletter mappens filer med filerne på hubben.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly kører allerede.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Tessaly er konfigureret. Åbn din mappe for at begynde at arbejde.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Du har kun læseadgang til denne mappe. Tessaly uploader ikke dine ændringer.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Åbn Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>Version %1 er tilgængelig. Klik her for at opdatere.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Hvis du vil bruge selektiv synkronisering, skal du bede din administrator om at opdatere Tessaly Server på hubben.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Ryd</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslæt</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Der er ikke nok plads på denne disk. Tessaly kræver mindst %1 MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly er nu tilknyttet hubben og holder dine filer synkroniserede.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly kan kun tilknyttes den samme hub én gang med den samme konto.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Konfigurer Tessaly for at synkronisere filerne på denne computer.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Er Tessaly nyt for dig? Læs først &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;lynvejledningen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Kan kommentere</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Hubbrugere med linket kan se</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Hubbrugere med linket kan redigere</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Kun inviterede personer kan åbne linket</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Alle med linket kan kommentere</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Alle med linket kan se</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Hubbrugere med linket kan kommentere</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Alle med linket kan redigere</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan se</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Kan administrere</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan redigere</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Webportalen kan ikke åbnes. Kontroller forbindelsen til hubben.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Inviter personer</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Ingen adgang</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Der er ingen delte mapper.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Offentlig deling er deaktiveret på hubben.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Deling er deaktiveret. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gendan</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) anmoder om adgang (%3) til Grida-regnearket “%4”.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Personer med linket vil ikke længere kunne åbne filen.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 delte Grida-regnearket “%2” med dig.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Ingen data</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Filen eller mappen findes ikke.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Du har ikke tilladelse til at udføre denne handling.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>Weekender</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Hubbrugere</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Kun inviterede personer</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visning</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alle med linket</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Angiv en udløbsdato</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Brugere og grupper</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Vis de synkroniserede mapper i filhåndteringens sidepanel</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Arbejd i den synkroniserede mappe som i enhver anden mappe. Dine ændringer overføres straks til hubben.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Din computer</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Alle dine filer, overalt</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Spar plads med synkronisering efter behov</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Alle filer vises på computeren, men de optager først plads, når du åbner dem.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Kun online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Tilgængelig på denne computer</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>nævnte dig i</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>anmodede om adgang til</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 delte filen “%2” med dig.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>delte med dig:</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Delt</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Anmodning om adgang</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentarer</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Delt med mig</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Omtaler</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Kun upload</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Behold filer på hubben, når de slettes fra denne computer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senere</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>“%1” er blevet downloadet.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Dine filer er opdateret på alle dine enheder.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>Dine filer er også tilgængelige i &lt;a href=&quot;%1&quot;&gt;webportalen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Tillykke!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Du er klar til at arbejde med Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>Aktiver senere</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Aktiver nu</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Filer, der er delt med dig</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Opret en synkroniseringsopgave</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Mine filer og teammapper</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Filer, der er delt med mig</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Dette er ikke den hub, som Tessaly var tilknyttet. Tilknyt denne computer igen.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Hubben og Tessaly kan ikke kommunikere. Opdater begge til den nyeste version.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Gå aldrig glip af en ændring</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Disken er fuld. Frigør plads på denne computer, så Tessaly kan fortsætte.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Teammappe</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Download kun ændringer fra Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Tessaly kunne ikke opdateres. Prøv igen senere.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>Ikonet i systembakken viser, hvad der synkroniseres, og fortæller dig, når andre deler filer med dig eller kommenterer dem.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>Del på få sekunder</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Højreklik på en fil eller mappe, opret et link, og bestem, hvem der må åbne det, og hvor længe.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) anmoder om adgang (%3) til Pictra-præsentationen “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 delte mappen “%2” med dig.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) anmoder om adgang (%3) til mappen “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) anmoder om adgang (%3) til filen “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) anmoder om adgang (%3) til Folia-dokumentet “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 delte Folia-dokumentet “%2” med dig.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 delte Pictra-præsentationen “%2” med dig.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Privatlivsindstillinger</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Beskyt med en adgangskode</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Hverdage</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Der oprettes en mappe med navnet “%1” til de filer, som andre deler med dig.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Behold altid på denne computer</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Der tages backup af filer, så snart de ændres.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Der tages backup af filer på de tidspunkter, du angiver.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>Backuppen er færdig. Computeren lukker ned om %1 sekunder.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Backupopgave</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Kør på følgende dage</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Opret forbindelse til hubben</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Beskyt filerne på denne computer ved at tage backup af dem til hubben.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manuel: Backuppen kører kun, når du starter den.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Starttidspunkt</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Hyppighed</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Seneste sluttidspunkt</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Seneste kørselstidspunkt</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Kommentator</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Ændr, hvem der kan åbne dette link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Seneste upload: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Opgaveindstillinger</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Løbende: Der tages backup af filer, hver gang de ændres.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Åbn i filhåndtering</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Tidspunktet er den følgende dag.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Delingsoplysningerne kunne ikke hentes.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Backupdestination</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Der tages backup af filer, når du klikker på Tag backup nu.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Tillad downloads</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Planlagt: Backuppen kører på de tidspunkter, du angiver.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Tidsplan for backup</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Ansvarlig</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Kun forhåndsvisning</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Opret en backupopgave</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Filer, hvis navne eller filtypenavne er angivet her, springes over.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synkroniser midlertidige filer</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Kopier filer fra denne computer til hubben med det samme eller efter en tidsplan.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Vælg, hvornår der skal tages backup af filerne.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Vælg mindst én mappe, der skal tages backup af.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>Backup til “%3” den %4 – filer: %1 (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Begynd at tage backup</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Der tages ikke backup af filer og mapper, der opfylder disse regler.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mappe valgt</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Frigør plads</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Behold ikke længere på denne computer</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Valgte dage</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Når backuppen er færdig</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Vælg en mappe på “%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Vælg en mappe på hubben.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Interval</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Spring over filer og mapper, hvis navn begynder med et punktum</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>Begynd at synkronisere</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>Backuppen er stoppet, fordi hubbens SSL-certifikat ikke kunne bekræftes.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Opgaven kunne ikke registreres på hubben. Prøv igen.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>Backuppen er stoppet, fordi hubben på denne adresse er ændret.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>Backuppen er stoppet, fordi hubben og klienten ikke kan kommunikere. Opdater begge.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Backuppen er stoppet, fordi denne version af Tessaly er for gammel til hubben.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>Opdater Tessaly til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Kontroller dit brugernavn og din adgangskode, og log ind igen.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Kontroller, at hubben er tændt, og at denne computer er tilsluttet netværket.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>Hubben har blokeret IP-adressen på denne computer. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>Hubbens SSL-certifikat er ikke gyldigt. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Bed din administrator om at opdatere Tessaly Server på hubben.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Ingen backup endnu</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Hold en mappe på denne computer og en mappe på hubben identiske.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Få mere at vide&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Vælg de dage og tidspunkter, hvor backuppen skal køre.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Kør oversprungne backups så hurtigt som muligt</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>Vælg en mappe på hver side.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Angiv hubbens adresse og din konto.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Kontroller indstillingerne for den nye opgave.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Sti</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Backuppen er stoppet, fordi login på hubben mislykkedes.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>Pakkens version på hubben understøttes ikke. Bed din administrator om at opdatere den.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>Backuppen er stoppet, fordi hubben har blokeret IP-adressen på denne computer.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>Backuppen er stoppet, fordi pakken på hubben er for gammel til denne klient.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>Nogle af de valgte mapper findes ikke længere. Fravælg dem for at fortsætte.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Forkert synkroniseringsretning</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Kelvane Quay Client kan nu installeres. Klik på Installer for at starte eller på Tilbage for at kontrollere dine indstillinger.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>Vælg en opgavetype</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Arbejd med de samme filer på alle dine computere.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Opbevar en sikker kopi af dine filer på hubben.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Log ind på den hub, hvor dine backups skal gemmes.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>Konfigurer dine synkroniserede mapper</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Frigør plads på disken på denne computer.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Vælg den mappe på hubben, som du vil synkronisere.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Filer downloades først, når du åbner dem, hvilket sparer plads på denne computer.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>Synkronisering efter behov er ikke tilgængelig for den valgte mappe eller operativsystemet på denne computer.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>Den delte mappe er ikke monteret</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Upload kun ændringer til %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Synkroniser de filer, som andre deler med mig</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Tag backup af midlertidige filer</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Filer, som andre deler med dig, vises i en særskilt mappe på denne computer.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Webportal</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Lagerkvoten er brugt op</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Hjemmemappen er deaktiveret</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>man</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>tor</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>lør</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <translation>Den lokale mappe blev ikke fundet</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Opgaven kunne ikke startes. Genstart programmet.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>Opgavens delte mappe er ikke monteret på hubben. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Du har ikke længere tilladelse til at åbne opgavens delte mappe.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>Drevet er ikke tilsluttet</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Næsten færdig! Dine filer er snart tilgængelige i %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Angiv 0 for ingen grænse.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>fre</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>søn</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>tir</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>ons</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Søndag</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tirsdag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Jeg accepterer ikke licensaftalen</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er fuld</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Initialiseringen mislykkedes</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Den lokale mappe kan være blevet flyttet, omdøbt eller slettet.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Den delte mappes kvote er brugt op</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Den delte mappes kvote er brugt op. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Fjernmappen blev ikke fundet</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Fjernmappen kan være blevet flyttet, omdøbt eller slettet.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Linktilladelse</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Næste backup: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Backupplan</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Delingslink</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Del link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Backupopgaver kræver %1 %2 eller nyere på hubben. Den installerede version er %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Denne computer er allerede tilknyttet denne hub med den samme konto.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Indlæser de delte mapper...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Ændringer på netværksdrev kan ikke registreres med det samme. De synkroniseres med en forsinkelse.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Velkommen til Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Klik på Tessaly-ikonet i systembakken for at ændre indstillingerne.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>Klik på ikonet for %1 i systembakken for at ændre indstillingerne.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>Synkroniseringen er stoppet, fordi en af hubbens diskenheder er fuld.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Pakken på hubben er for gammel til klienten.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>Opretter tilknytning til hubben...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er opdateret.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvis</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Mappelink</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Udløbsdato</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Du er klar til at arbejde med %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
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
        <translation>Opdater %1 til version %2 eller nyere.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Vælg de filer, som den nye opgave skal holde synkroniserede.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Åbn webportalen til %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>Backuppen er stoppet, fordi denne version af %1 er for gammel til hubben.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Bed din administrator om at opdatere %1 på hubben.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>Der oprettes en mappe med navnet “%1” på denne placering.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Mappen “%1” kunne ikke oprettes på denne computer.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Se alle dine filer uden at fylde disken op. Hver fil downloades, når du åbner den.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Åbn Kelvane Quay-webportalen</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>En nyere version af Tessaly er allerede installeret. Fjern den, før du installerer Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Vejledning, side 1: Velkommen til %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Opgavetype</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Synkroniserings- og backupfunktionerne i Kelvane Quay Client kan nu installeres. Klik på Installer for at starte eller på Tilbage for at kontrollere dine indstillinger.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Aktiver synkronisering efter behov</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Mappen “%1” til synkronisering efter behov mangler. Konfigurer opgaven igen.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synkronisering efter behov</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Prøv synkronisering efter behov</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommenter</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Hubbens diskenhed er fuld. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Angiv en gyldig dato.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>Sluttidspunktet skal være senere end starttidspunktet.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>Angiv et filnavn eller filtypenavn, f.eks. “*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Roller og tilladelser</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Plads frigjort</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Gjort tilgængelig på denne computer</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Synkronisering efter behov kræver en mappe på et NTFS-drev, der ikke er et netværksdrev eller flytbart drev.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Behold filer online, indtil du har brug for dem. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Sådan fungerer synkronisering efter behov&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Der er ikke nok plads på denne disk. %1 kræver mindst %2 MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Synkroniser din hjemmemappe og de teammapper, som du har adgang til.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Hvis du slår dette fra, fjernes mappen med de filer, som andre deler med dig, fra denne computer. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Synkroniser de filer, som andre deler med dig, så du kan åbne dem ligesom dine egne.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Aktiver synkronisering efter behov for denne opgave</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>Backuppen er stoppet, fordi din konto ikke har tilladelse til at bruge pakken på hubben.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Synkroniser de filer og mapper, som andre brugere deler med dig.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Din disk er ved at være fuld. Aktiver synkronisering efter behov for at frigøre plads.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Alt, hvad andre deler med dig, samlet i én mappe</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Bed din administrator om at give dig tilladelse til at bruge pakken.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Denne klient kræver %1 %2 eller nyere på hubben. Bed din administrator om at opdatere.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Du har ikke tilladelse til at bruge pakken på hubben. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>Destinationen bruges allerede af en anden backupopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>%1 kan ikke kommunikere med pakken på hubben. Opdater begge til den nyeste version.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Kun du kan åbne linket</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly holder dine filer identiske på alle dine computere og beskytter dem på hubben.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Del en fil med et link. Du bestemmer, hvem der kan se eller redigere den.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Start rundvisningen</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Er %1 nyt for dig? Læs først &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;lynvejledningen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Angiv dit brugernavn.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Alle filer i denne opgave bliver downloadet til denne computer. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Velkommen til Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Del med andre</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Åbn historikken for at se, hvem der har ændret en fil, og hvornår.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Hold dine filer identiske på alle dine computere ved at synkronisere dem med hubben.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>%1 fil behandles</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 og klienten har forskellige versioner. Opdater begge til samme version.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Filer under behandling: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>%1 filer behandles</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Diskenheden med denne mappe understøtter ikke kvoter.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Din personlige lagerkvote er brugt op.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>Din hjemmemappe bruger %1 af %2, og de delte mapper bruger %3 af %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>Kvoten for den delte mappe “%1” er brugt op.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Nogle mapper har nået deres kvote.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Versionen kan ikke gendannes, fordi filen er udelukket af et filter.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Vælg de mapper, der skal tages backup af, og hvor backuppen skal gemmes.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>Vælg, hvad der skal tages backup af</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Backuppen er stoppet, fordi din konto er blevet deaktiveret på hubben.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Bed din administrator om at aktivere din konto.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Din konto er blevet deaktiveret på hubben. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>Kontoen er deaktiveret</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Vis ikoner på filer, der er udelukket af et filter</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagerplads</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogboks</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Alle opgaver med denne hub fjernes fra denne computer. Filerne bevares. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Backuppen mislykkedes. Prøv igen.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Opgaven kunne ikke oprettes. Prøv igen.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>Du har ikke længere tilladelse til at åbne den delte mappe “%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Behandler “%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dage</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Opgaven kunne ikke indlæses.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Mappen “%1” findes ikke.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>Luk computeren ned</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Du har ikke tilladelse til at lukke denne computer ned automatisk.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Backuppen blev annulleret.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Backuppen er færdig.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>Tag backup %1 gange om dagen</translation>
    </message>
    <message>
        <source>times</source>
        <translation>gange</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Backuptype</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Vil du starte backuppen nu?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Hvis denne computer er slukket eller i dvale på det planlagte tidspunkt, starter backuppen, så snart computeren kører igen.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Vælg mindst én ugedag.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Seneste backup: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Hver dag</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuel backup</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Én gang om dagen</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Løbende backup</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Planlagt backup</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Angiv backupplanen</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Tager et øjebliksbillede...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Backupplanen kunne ikke gemmes. Prøv igen.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Angiv en størrelse fra 0 til %1 MB. Angiv 0 for ingen grænse.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Forbindelse</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Vis aktiviteten for denne opgave</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutter</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Vis fjernede elementer</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Brugt</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Måneder</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 af %2 brugt</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Baggrundsopgave</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Vindue med filterindstillinger</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Angiv et gyldigt klokkeslæt.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Ikke synkroniseret: udelukket af en systemregel</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ikke nu</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Oprettet den</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Backupopgaver</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Senest ændret</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Tag backup nu</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lig med</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mindre end</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Større end</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Vælg en mappe på denne computer</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Denne mappe er allerede en del af en backupopgave i %1. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Denne mappe synkroniseres allerede af Kelvane Quay Client, og der kan ikke også tages backup af den. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adresse</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>besvarede din kommentar til</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Åbn synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Svar</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Ikke synkroniseret</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Tessaly Server på hubben er for gammel til %1. Bed din administrator om at opdatere den.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Ingen forbindelse til hubben</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Avanceret deling</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Delingsindstillingerne kunne ikke gemmes. Prøv igen.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Aktiver avanceret deling</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Aktiver linkbeskyttelse</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>deles nu med avancerede indstillinger.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Beskyttet deling</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Linkbeskyttelse</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Er du sikker på, at du vil fjerne linket? Det kan ikke gendannes.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Vil du fjerne dette link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Gem klientens logfiler i en fil, som du kan sende til teknisk support.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Angiv et nøgleord</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Fjern link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Fejlfinding</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Registrer flere detaljer i logfilerne for at hjælpe teknisk support med at finde årsagen til et problem.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Eksporter logfiler</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Fil slettet</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Den eksporterede fil indeholder:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Oplysninger om operativsystemet på denne computer</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Avanceret logføring</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Avancerede logfiler fylder mere på disken og kan gøre klienten langsommere.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Privatlivserklæring</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Klientens logfiler og indstillinger, uden adgangskoder</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Slå avanceret logføring til</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Ikke synkroniseret: udelukket af et filter i opgaven</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Ikke synkroniseret: ingen tilladelse</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Servicevilkår</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Angiv en størrelse på mindre end %1 MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Denne mappe er allerede en del af en anden backupopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>Opgaven er stoppet på grund af en uventet fejl. Genstart programmet.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Denne fil har ingen tidligere versioner.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Synkronisering efter behov kunne ikke aktiveres for denne opgave.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Forbindelsen til hubben mislykkedes. Kontroller adressen og dit netværk.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>Fil tilføjet</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Navnet må ikke begynde eller slutte med et mellemrum.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>Backuppen er stoppet, fordi hubbens SSL-certifikat er ændret.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>Hubbens SSL-certifikat er udløbet. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>Hubben kan nu indeksere hele din hjemmemappe.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Du kan nu synkronisere hele din hjemmemappe med denne computer.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik er deaktiveret</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>Hubben er ved at klargøre din hjemmemappe. Prøv igen senere.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Fil omdøbt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” blev opdateret</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>Navnet må ikke indeholde nogen af følgende tegn: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik er deaktiveret på hubben. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Din konto er blevet deaktiveret på hubben, så mappen kan ikke kontrolleres.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Der findes allerede en opgave med dette navn.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Ingen af de valgte mapper kan bruges. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>Ingen gyldige mapper</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Filerne bliver på hubben, indtil du åbner dem. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Få mere at vide om synkronisering efter behov&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Brugerdefineret opgavenavn</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Navnet hjælper dig med at skelne dine opgaver fra hinanden. Det vises kun på denne computer.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>Synkronisering efter behov kan slås til eller fra i opgavens indstillinger.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Dette felt er obligatorisk.</translation>
    </message>
</context>
</TS>
