<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en_US">
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
        <translation>Koble til via Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Det oppstod filkonflikter. Filen har nå fått navnet %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Verdien er ugyldig. Kontroller den, og prøv på nytt.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>Nettverket er ikke tilgjengelig. Kontroller tilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Knytt til på nytt</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kontrollerer brukernavnet og passordet ditt...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Tilkoblingen er opprettet</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Filene i de to mappene blir slått sammen. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Starter...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Se gjennom innstillingene nedenfor før du fullfører.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Brukernavnet eller passordet er feil.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Bytt mappe</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Ferrylink-ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nylig oppdaterte filer</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Lastet ned</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kom i gang</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Ser etter endringer...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>Tilkoblingen til huben ble brutt. Kobler til på nytt...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Lastet opp</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Tilpass</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Påloggingen mislyktes</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Finner tilkoblingstypen...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Ferrylink-videresending</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Ferrylink-tjenesten svarer ikke. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Oppdaterte filer: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Du har bare lesetilgang til denne mappen. Endringer du gjør på denne datamaskinen, blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Lagringskvoten din på huben er brukt opp. Frigjør plass, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tilkoblingstype</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Bytt den lokale mappen</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>SSL-sertifikatet til huben kunne ikke bekreftes.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Ikke bruk en proxy-server</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Bruk systemets proxy-innstillinger</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Kunne ikke koble til Ferrylink-kontrollserveren. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Endringene dine er ikke lagret. Vil du forlate denne siden?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Lagringsplassen er full</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy-innstillinger</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Synkronisering kunne ikke aktiveres for den delte mappen.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Denne mappen overlapper med en mappe som allerede synkroniseres. Velg en annen.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>Det kan ikke synkroniseres flere enn %1 delte mapper.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Tar i bruk innstillingene...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Angi et portnummer fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Angi adressen og porten til proxy-serveren.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>Konfigurer proxy-serveren manuelt</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Det er ingen endringer å ta i bruk.</translation>
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
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxy-serveren krever pålogging</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Noe gikk galt</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Oppdaterer...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Krypter dataoverføringen med SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Hubnavn, IP-adresse eller Ferrylink-ID</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativer</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Generelle alternativer</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Bruk et svart-hvitt ikon i systemstatusfeltet</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Den delte mappen «%1» er tilgjengelig for deg. Du kan velge å synkronisere den med denne datamaskinen.</translation>
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
        <translation>Det automatiske oppsettet mislyktes. Konfigurer tilkoblingen manuelt.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Fullfører oppsettet...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Filer og mapper som samsvarer med disse reglene, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Installerer oppdateringen...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Filendelser</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Mappe på et monteringspunkt</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Programvareoppdatering</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Fremdrift: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>Vil du slutte å synkronisere «%1»? Filene på denne datamaskinen og på huben blir beholdt.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Den delte mappen kunne ikke fjernes fra listen.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Denne oppsettsnøkkelen er allerede brukt. Be administratoren om en ny.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>Det nye språket tas i bruk når du har startet programmet på nytt.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Disken på denne datamaskinen er full. Frigjør plass, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Laster inn mappelisten...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Er du sikker på at du vil fjerne denne datamaskinens tilknytning til huben?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installasjon av [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Synkroniserer filer (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Laster ned «%1»...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Ekskluderte filnavn</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ekskluderte filer</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Den lokale databasen er skadet. Fjern denne datamaskinens tilknytning til huben, og knytt den til på nytt.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Ekskluderingsliste</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Mappene du fjernet merkingen for, blir fjernet fra denne datamaskinen. De blir værende på huben.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Konflikthåndtering</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringstype</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Mappen er et monteringspunkt og kan ikke synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Nedlastingen av «%1» ble avbrutt.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>Synkroniseringen har stoppet fordi disken på denne datamaskinen er full.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>Synkroniseringen har stoppet fordi lagringskvoten din på huben er brukt opp.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Knytter til...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Tilgang nektet</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Kontoinformasjonen din kunne ikke hentes fra huben.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Tilkoblingen er ustabil</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hent lenke</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Knytter denne datamaskinen til huben...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Prøver å synkronisere...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Leser</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Sertifikatadvarsel</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Ekskluderingsregler</translation>
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
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Hvis du slutter å synkronisere denne delte mappen, blir senere endringer ikke overført. De lokale filene blir beholdt.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Aktiver SSL-kryptering</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Velg mappen på denne datamaskinen som du vil synkronisere med huben.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>er delt med deg.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Ny deling</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Nedlastingen er fullført</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Nedlastingen mislyktes</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>Huboversikt</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Huben på denne adressen er endret. Knytt denne datamaskinen til på nytt.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>Synkroniseringen er satt på pause.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>SSL-sertifikatet til huben er ikke klarert.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>Synkronisering pågår.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Klienten er for gammel for huben. Oppdater klienten.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Denne mappen er allerede del av en sikkerhetskopijobb i Tessaly. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Denne jobben er inaktiv fordi huben ikke kan nås.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Filen kan ikke lastes ned. Kontroller tilkoblingen og tillatelsene dine.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>Versjonshistorikken for denne filen er ikke tilgjengelig.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Det kan ikke opprettes en lenke for dette elementet.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklikk på ikonet i systemstatusfeltet</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>Huben indekserer denne mappen. Vent litt.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Oppstarten mislyktes. Start programmet på nytt.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Installasjonsprogrammet kan ikke erstatte filer som andre programmer har åpne.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>La programmene være åpne. Du må starte datamaskinen på nytt etterpå.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Gjenoppretter manglende eller skadde programfiler, snarveier og registeroppføringer.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Start [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] holder filene dine trygge og synkroniserte.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Klikk Fullfør for å lukke installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>Stasjonen med den lokale mappen er ikke tilkoblet.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparer [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Hva vil du gjøre?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>[ProductName] blir installert på datamaskinen.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Det oppstod en feil, og [ProductName] ble ikke installert. Alle endringer som installasjonsprogrammet gjorde, er angret. Du kan kjøre installasjonsprogrammet på nytt når som helst.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Informasjon om denne datamaskinen og huben den er tilknyttet.</translation>
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
        <translation>Bruk denne veiviseren til å endre, reparere eller fjerne [ProductName]. Klikk Neste for å fortsette eller Avbryt for å avslutte installasjonsprogrammet.</translation>
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
        <translation>Lisensavtale</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Disse programmene har åpne filer som installasjonsprogrammet for [ProductName] må erstatte:</translation>
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
        <translation>Den lokale mappen mangler. Den kan ha blitt flyttet, slettet eller fått nytt navn.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv på nytt</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Er du sikker på at du vil avbryte installasjonen av [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Les avtalen før du fortsetter.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>Lukk programmene nå, og åpne dem igjen når installasjonen er ferdig.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i bruk</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Lukk programmene, og klikk Prøv på nytt. Hvis du klikker Ignorer, blir [ProductName] først komplett når datamaskinen er startet på nytt.</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Endre</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Velg hvilke funksjoner som skal installeres, og hvor.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] installeres alltid med alle funksjoner.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>Endre [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Du kan endre, reparere eller fjerne det installerte programmet.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Fjerner programmet og innstillingene fra datamaskinen.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Dette kan ta flere minutter.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar til å installere [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Tessaly kan nå installeres. Klikk Installer for å starte eller Tilbake for å kontrollere innstillingene.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Installasjonsprogrammet er klart til å fjerne programmet.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar til å fjerne [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Klikk Fjern for å fjerne [ProductName] fra denne datamaskinen. De synkroniserte filene dine blir beholdt.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Installasjonsprogrammet er klart til å reparere programmet.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar til å reparere [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Klikk Reparer for å starte, Tilbake for å velge en annen handling eller Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Du avsluttet installasjonsprogrammet før [ProductName] ble installert. Ingenting på datamaskinen er endret. Du kan kjøre installasjonsprogrammet på nytt når som helst.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Denne veiviseren installerer [ProductName] på datamaskinen. Klikk Neste for å fortsette eller Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Velkommen til installasjonen av [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>[ProductName] er nå installert</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Installasjonen av [ProductName] ble avbrutt</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedlastingshistorikk</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Knytt til en ny hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>[ProductName] kunne ikke installeres</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Synkronisering aktivert</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Legg til jobb</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Jeg godtar lisensavtalen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Filene dine, oppdatert på alle enheter.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Dette er ikke huben som %1 var tilknyttet. Knytt denne datamaskinen til på nytt.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Deling er deaktivert for kontoen din.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>Jobben «%1» stopper, og tilkoblingen til huben blir fjernet. Filene på begge sider blir beholdt.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åpne mappen med filen</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Adressen til filen kunne ikke hentes fra huben.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Velg mappen på denne datamaskinen der filene dine lagres.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>Huben er endret</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>Den delte mappen «%1» er ikke montert på huben.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Volumet med den eksterne mappen er ikke montert på huben.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Mappeplassering</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Synkroniser til denne datamaskinen</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Du er ikke logget på som administrator, så noen funksjoner blir kanskje ikke installert. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Synkroniser, del og beskytt filene dine</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Fildeling via Ferrylink er deaktivert på huben. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Velg hvordan du vil konfigurere Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtigoppsett</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Element %1 til %2 av %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Skjønner</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>Elementet er slettet, eller du har ikke lenger tillatelse til å åpne det.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Høyreklikk på en fil eller mappe for å dele den, hente en lenke eller bla gjennom tidligere versjoner.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointervall</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Slutt å synkronisere denne mappen</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 t siden</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Velg en mappe på huben og en mappe på denne datamaskinen. Innholdet i dem holdes identisk.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Denne datamaskinen er allerede tilknyttet</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Fikk nytt navn</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 døgn siden</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 min siden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
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
        <translation>Forrige uke</translation>
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
        <translation>Søk</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkroniser denne mappen igjen</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Slutt å synkronisere disse mappene</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Ingen historikk å vise</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkroniser disse mappene igjen</translation>
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
        <translation>Synkroniseres nå</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
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
        <translation>Mars</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Desember</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avansert oppsett</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Begynn å synkronisere i ett trinn med de anbefalte innstillingene.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Hjemmemappen din på huben og den nye mappen på denne datamaskinen holdes nå identiske.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>Oppsettet er fullført</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Legg filer i den synkroniserte mappen, så vises de på huben og på alle de andre datamaskinene dine.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Klikk på ikonet i systemstatusfeltet for å se synkroniseringsstatusen og filene som sist ble endret.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>Oppsettstype</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nei takk</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Synkroniser filene dine</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Følg med på endringer</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Finn huber på det lokale nettverket</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformasjon</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Oppdatering tilgjengelig</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Bruker: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Denne filen hører ikke til en synkroniseringsjobb.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Åpne hovedvinduet</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Knytt denne datamaskinen til en annen hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Synkroniser en annen mappe med denne huben</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkroniseringsjobb</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Velg mapper, synkroniseringsretning og filtre selv.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer som er større enn %1 MB, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Denne mappen kan ikke synkroniseres. Velg en annen.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Søk etter huber på det lokale nettverket</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Du har bare lesetilgang til denne delte mappen. Filer blir lastet ned, men ikke lastet opp.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Finn mer hjelp i &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;veiledningene&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Denne mappen ligger i eller over en mappe som allerede synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åpne fil</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Denne datamaskinen er allerede tilknyttet huben «%1».</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>En mappe med navnet «Tessaly» blir opprettet på denne plasseringen.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Hvis du fortsetter, blir den eksisterende tilknytningen erstattet.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Huben er frakoblet.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Hjemmemappe</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Det kan ikke opprettes en lenke fordi Norvik ikke er tilgjengelig på huben.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>SSL-sertifikatet til huben er endret. Bekreft det nye sertifikatet.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Angi mappene som skal synkroniseres</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>Synkroniseringsretningen samsvarer ikke med tillatelsene dine for den eksterne mappen.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>IP-adressen til denne datamaskinen er blokkert av huben. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Når en fil er endret på begge sider:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Velkommen til oppsettsveiviseren</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 sider tilbake</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 sider frem</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytningen...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøk. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Mappen kan ikke kontrolleres fordi tilkoblingen til huben mislyktes.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>Den delte mappen finnes ikke lenger på huben.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>Synkroniserte mapper</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Behold versjonen som sist ble endret</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveissynkronisering</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Velg hvilken mappe på huben som skal synkroniseres med hvilken mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>ba om tilgang til Bureau-malen</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Mappen brukes allerede av en annen synkroniseringsjobb på denne datamaskinen.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 ba om tilgang til Bureau-malen «%2».</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Mappen kan ikke kontrolleres fordi SSL-sertifikatet til huben er endret.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Angi bekreftelseskoden.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Bekreftelseskoden er feil. Prøv på nytt.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Angi den sekssifrede bekreftelseskoden</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Timer</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Lagringskvoten din på volumet med denne mappen er brukt opp.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Mappen kan ikke kontrolleres fordi SSL-sertifikatet til huben ikke er klarert.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Mappen kan ikke kontrolleres på grunn av en systemfeil på huben.</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Behold alltid versjonen på huben</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Gi filer i konflikt nytt navn, og behold begge versjoner</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) ber om tilgang (%3) til Bureau-malen «%4».</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Innholdet i begge mappene blir slått sammen. Ingen filer blir slettet.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Liste over tilkoblinger</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Tilkoblet hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Kopier delingslenken</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Fjern tillatelsen til denne brukeren</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Gruppe: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Åpne nettportalen til Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Tilknyttet hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Synkroniseringsjobb for filene som andre deler med deg</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Fanen Nylig endrede filer</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Veiledning, side 2: synkroniser filene dine</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Veiledning, side 3: følg med på endringer</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Veiledning, side 4: del med andre</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Velg en delingstillatelse</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly holder filene på datamaskinene dine og på huben identiske.</translation>
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
        <translation>Åpne mappen min</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Finner ikke den delte mappen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versjon %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Huben krever tofaktorautentisering. Konfigurer den i nettportalen, og logg på igjen.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Kvoten for den delte mappen er brukt opp.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Noen felter inneholder ugyldige verdier. Kontroller de uthevede feltene.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>Noe gikk galt i en av jobbene. Åpne hovedvinduet for mer informasjon.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Bare delte mapper som er aktivert i Tessaly Server, vises her.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Du har ikke tillatelse til å åpne denne mappen.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Utløper etter</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Ingen handlinger tilgjengelig</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Brukernavnet eller passordet er feil. Logg på igjen.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Angi et fullstendig filnavn, for eksempel «desktop.ini», og trykk Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Det finnes allerede en mappe med dette navnet. Velg et annet navn.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Sammenlign alle filattributter ved søk etter endringer</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gyldig til</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Dette feltet kan ikke være tomt.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begrens tilgangen</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Vis synkroniseringshandlinger på hurtigmenyen for filer og mapper</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Hjemmemappetjenesten er deaktivert på huben. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>Oppdateringen mislyktes. &lt;a href=&quot;%1&quot;&gt;Last ned den nyeste versjonen&lt;/a&gt;, og installer den manuelt.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Bruk og kopier lenke</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Begrens antall besøk</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gyldig fra</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>Huben krever en nyere versjon av klienten. Vil du oppdatere nå?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>Den eksterne mappen ligger på et volum som ikke er montert.</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>Vis informasjon</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Legg til et filnavn</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Mappe på denne datamaskinen</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Velg et språk</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Liste over filversjonene som lastes ned</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Tilpass gyldighetsperioden</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Vis veiledningen for %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Bytt synkronisert mappe</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Tilknyttet synkronisert mappe</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Oppdater historikken</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Angi et søkeord for å søke i historikken</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Legg til en mappe</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Neste måned</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Velg en hendelsestype</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Synkroniseringsjobb «%1»</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Mappe på huben</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Innstillingsvindu</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Lukk veiledningen</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Avbryt denne nedlastingen</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Fjern denne nedlastingen fra listen</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Passordet ditt er utløpt. Endre det i nettportalen, og logg på igjen.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Redaktør</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Fikk nytt navn på denne datamaskinen</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Fikk nytt navn på huben</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Angi høyst %1 tegn.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Dette er ikke kontoen som jobben ble opprettet med. Logg på som «%1».</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Hubinformasjon</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Ferrylink-videresendingstjenesten er deaktivert på huben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>«%1» kunne ikke lastes ned. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Påloggingen til huben mislyktes. Kontroller brukernavnet og passordet.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Varsler</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>kommenterte</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Åpne i nettportalen</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Konfigurer</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Åpne synkronisert mappe</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Du har bare lesetilgang til denne mappen. %1 laster ikke opp endringene dine.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 er nå tilknyttet huben og holder filene dine synkroniserte.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Installasjonsprogrammet har samlet inn all nødvendig informasjon.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 er klar.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 kjører allerede.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>%1 holder filene på datamaskinene dine og på huben identiske.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Forhåndsvis og kommenter</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>%1 kunne ikke oppdateres. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>En nyere versjon av Kelvane Quay Client er allerede installert. Installasjonsprogrammet avsluttes nå.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>SSL-sertifikatet til huben er endret. Hvis du ikke forventet dette, bør du kontakte administratoren før du fortsetter.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>Velg hva som skal synkroniseres med den nye jobben</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>Mappen tilhører Dropbox. Hvis den også synkroniseres med %1, kan det oppstå filkonflikter.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Endringene dine vil gå tapt. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Veiledning for %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>Ferrylink-ID-en finnes ikke, eller %1 kjører ikke på huben.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Bare delte mapper som er aktivert i %1, vises her.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Start %1 når jeg logger på denne datamaskinen</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 starter opp...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>Huben og %1 kan ikke kommunisere. Oppdater begge til nyeste versjon.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Denne versjonen av %1 er for gammel for huben. Oppdater den.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versjonene samsvarer ikke</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Disken er full. Frigjør plass på denne datamaskinen slik at %1 kan fortsette.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>Det har oppstått et problem i %1. Start programmet på nytt.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Fanen Varsler</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>Mappen er ikke tom. %1 slår sammen filene i den med filene på huben.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Bare last ned endringer fra %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>%1 er konfigurert. Åpne mappen din for å begynne å arbeide.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Veiledning, side 1: velkommen til Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Denne versjonen av Kelvane Quay Client er allerede installert. Vil du installere den på nytt?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>Konfigurer %1 for å synkronisere og sikkerhetskopiere filene på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Nesten ferdig! Filene dine er snart tilgjengelige i Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Nesten ferdig! Filene dine er snart tilgjengelige på denne datamaskinen.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>Handlingen mislyktes. Prøv på nytt.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>En mappe med navnet «Kelvane Quay» blir opprettet på denne plasseringen.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Denne versjonen av Tessaly er allerede installert. Vil du installere den på nytt?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>En nyere versjon av Tessaly er allerede installert. Installasjonsprogrammet avsluttes nå.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>Veiledning for Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Uker</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>Mappen tilhører Dropbox. Hvis den også synkroniseres med Tessaly, kan det oppstå filkonflikter.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly er klar.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>Tessaly starter opp...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>Ferrylink-ID-en finnes ikke, eller Tessaly Server kjører ikke på huben.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Denne versjonen av Tessaly er for gammel for huben. Oppdater den.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>Delingstillatelse</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Tessaly Server på huben er for gammel for denne klienten. Be administratoren om å oppdatere den.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Vis veiledningen for Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>Start Tessaly når jeg logger på denne datamaskinen</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Det har oppstått et problem i Tessaly. Start programmet på nytt.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Oppsettet er fullført. Filene dine synkroniseres nå.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>Klikk på ikonet i systemstatusfeltet når som helst for å se statusen og endre innstillingene.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>Mappen er ikke tom. Tessaly slår sammen filene i den med filene på huben.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly kjører allerede.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Tessaly er konfigurert. Åpne mappen din for å begynne å arbeide.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Du har bare lesetilgang til denne mappen. Tessaly laster ikke opp endringene dine.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Åpne Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>Versjon %1 er tilgjengelig. Klikk her for å oppdatere.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Hvis du vil bruke selektiv synkronisering, må du be administratoren om å oppdatere Tessaly Server på huben.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tøm</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslett</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Det er ikke nok plass på denne disken. Tessaly trenger minst %1 MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly er nå tilknyttet huben og holder filene dine synkroniserte.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly kan bare knyttes til samme hub én gang med samme konto.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Konfigurer Tessaly for å synkronisere filene på denne datamaskinen.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Er du ny bruker av Tessaly? Les &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;hurtigstartveiledningen&lt;/a&gt; først.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Kan kommentere</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Hubbrukere med lenken kan se</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Hubbrukere med lenken kan redigere</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Bare inviterte personer kan åpne lenken</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Alle med lenken kan kommentere</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Alle med lenken kan se</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Hubbrukere med lenken kan kommentere</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Alle med lenken kan redigere</translation>
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
        <translation>Nettportalen kan ikke åpnes. Kontroller tilkoblingen til huben.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Inviter personer</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Ingen tilgang</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Det finnes ingen delte mapper.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Last ned</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Offentlig deling er deaktivert på huben.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Deling er deaktivert. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gjenopprett</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) ber om tilgang (%3) til Grida-regnearket «%4».</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Personer som har lenken, vil ikke lenger kunne åpne filen.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 delte Grida-regnearket «%2» med deg.</translation>
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
        <translation>Filen eller mappen finnes ikke.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Du har ikke tillatelse til å utføre denne handlingen.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>Helger</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Hubbrukere</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Bare inviterte personer</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visning</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alle med lenken</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Angi en utløpsdato</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Brukere og grupper</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Vis de synkroniserte mappene i sidefeltet i filbehandleren</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Arbeid i den synkroniserte mappen som i enhver annen mappe. Endringene dine overføres til huben med en gang.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Datamaskinen din</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Alle filene dine, overalt</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Spar plass med synkronisering ved behov</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Alle filer vises på datamaskinen, men de tar først opp plass når du åpner dem.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Bare på nett</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Tilgjengelig på denne datamaskinen</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>nevnte deg i</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>ba om tilgang til</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 delte filen «%2» med deg.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>delte med deg:</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Delt</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Forespørsel om tilgang</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentarer</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Delt med meg</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Omtaler</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Bare opplasting</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Behold filer på huben når de slettes fra denne datamaskinen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senere</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>«%1» er lastet ned.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Filene dine er oppdatert på alle enhetene dine.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>Filene dine er også tilgjengelige i &lt;a href=&quot;%1&quot;&gt;nettportalen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Gratulerer!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Du er klar til å arbeide med Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>Aktiver senere</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Aktiver nå</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Filer som er delt med deg</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Opprett en synkroniseringsjobb</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Mine filer og teammapper</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Filer som er delt med meg</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Dette er ikke huben som Tessaly var tilknyttet. Knytt denne datamaskinen til på nytt.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Huben og Tessaly kan ikke kommunisere. Oppdater begge til nyeste versjon.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Gå aldri glipp av en endring</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Disken er full. Frigjør plass på denne datamaskinen slik at Tessaly kan fortsette.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Teammappe</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Bare last ned endringer fra Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Tessaly kunne ikke oppdateres. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>Ikonet i systemstatusfeltet viser hva som synkroniseres, og forteller deg når andre deler filer med deg eller kommenterer dem.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>Del på noen få sekunder</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Høyreklikk på en fil eller mappe, opprett en lenke, og bestem hvem som kan åpne den, og hvor lenge.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) ber om tilgang (%3) til Pictra-presentasjonen «%4».</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 delte mappen «%2» med deg.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) ber om tilgang (%3) til mappen «%4».</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) ber om tilgang (%3) til filen «%4».</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) ber om tilgang (%3) til Folia-dokumentet «%4».</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 delte Folia-dokumentet «%2» med deg.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 delte Pictra-presentasjonen «%2» med deg.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Personverninnstillinger</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Beskytt med passord</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Hverdager</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>En mappe med navnet «%1» blir opprettet for filene som andre deler med deg.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Behold alltid på denne datamaskinen</translation>
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
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsjobb</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Filer sikkerhetskopieres så snart de endres.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Filer sikkerhetskopieres på tidspunktene du angir.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>Sikkerhetskopieringen er fullført. Datamaskinen slås av om %1 sekunder.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Sikkerhetskopijobb</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Kjør på følgende dager</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Koble til huben</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Beskytt filene på denne datamaskinen ved å sikkerhetskopiere dem til huben.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manuell: sikkerhetskopieringen kjører bare når du starter den.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Starttidspunkt</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Hyppighet</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Siste sluttidspunkt</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Siste kjøretidspunkt</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Kommentator</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Endre hvem som kan åpne denne lenken</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Siste opplasting: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Jobbinnstillinger</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Kontinuerlig: filer sikkerhetskopieres hver gang de endres.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Åpne i filbehandleren</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Tidspunktet er dagen etter.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Delingsinformasjonen kunne ikke hentes.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Filer sikkerhetskopieres når du klikker Sikkerhetskopier nå.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Tillat nedlasting</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Planlagt: sikkerhetskopieringen kjører på tidspunktene du angir.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Tidsplan for sikkerhetskopi</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Ansvarlig</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Bare forhåndsvisning</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Opprett en sikkerhetskopijobb</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Filer med navn eller filendelser som er angitt her, hoppes over.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synkroniser midlertidige filer</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Kopier filer fra denne datamaskinen til huben, med en gang eller etter en tidsplan.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Velg når filene skal sikkerhetskopieres.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Velg minst én mappe som skal sikkerhetskopieres.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>Sikkerhetskopiert til «%3» den %4 – filer: %1 (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historikk</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Begynn å sikkerhetskopiere</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Filer og mapper som samsvarer med disse reglene, blir ikke sikkerhetskopiert.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mappe er valgt</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Frigjør plass</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Ikke behold på denne datamaskinen lenger</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Valgte dager</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Når sikkerhetskopieringen er ferdig</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Velg en mappe på «%1».</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Velg en mappe på huben.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Hopp over filer og mapper med navn som begynner med punktum</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>Begynn å synkronisere</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi SSL-sertifikatet til huben ikke kunne bekreftes.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Jobben kunne ikke registreres på huben. Prøv på nytt.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi huben på denne adressen er endret.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi huben og klienten ikke kan kommunisere. Oppdater begge.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi denne versjonen av Tessaly er for gammel for huben.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>Oppdater Tessaly til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Kontroller brukernavnet og passordet, og logg på igjen.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Kontroller at huben er slått på, og at denne datamaskinen er koblet til nettverket.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>Huben har blokkert IP-adressen til denne datamaskinen. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>SSL-sertifikatet til huben er ikke gyldig. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Be administratoren om å oppdatere Tessaly Server på huben.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Ikke sikkerhetskopiert ennå</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Hold en mappe på denne datamaskinen og en mappe på huben identiske.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Finn ut mer&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Velg dagene og tidspunktene da sikkerhetskopieringen skal kjøre.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Kjør uteblitte sikkerhetskopieringer så snart som mulig</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>Velg en mappe på hver side.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Angi adressen til huben og kontoen din.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Kontroller innstillingene for den nye jobben.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Bane</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi påloggingen til huben mislyktes.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>Versjonen av pakken på huben støttes ikke. Be administratoren om å oppdatere den.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi huben har blokkert IP-adressen til denne datamaskinen.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi pakken på huben er for gammel for denne klienten.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>Noen av de valgte mappene finnes ikke lenger. Fjern merkingen av dem for å fortsette.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Feil synkroniseringsretning</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Kelvane Quay Client kan nå installeres. Klikk Installer for å starte eller Tilbake for å kontrollere innstillingene.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>Velg en jobbtype</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Arbeid med de samme filene på alle datamaskinene dine.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Oppbevar en trygg kopi av filene dine på huben.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Logg på huben som skal lagre sikkerhetskopiene dine.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>Konfigurer de synkroniserte mappene</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Frigjør plass på disken på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Velg mappen på huben som du vil synkronisere.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Filer lastes først ned når du åpner dem. Det sparer plass på denne datamaskinen.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>Synkronisering ved behov er ikke tilgjengelig for den valgte mappen eller operativsystemet på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>Delt mappe ikke montert</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Bare last opp endringer til %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Synkroniser filene som andre deler med meg</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Sikkerhetskopier midlertidige filer</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Filer som andre deler med deg, vises i en egen mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Nettportal</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Lagringskvoten er brukt opp</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Hjemmemappen er deaktivert</translation>
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
        <translation>Finner ikke den lokale mappen</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Jobben kunne ikke startes. Start programmet på nytt.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>Den delte mappen for denne jobben er ikke montert på huben. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Du har ikke lenger tillatelse til å åpne den delte mappen for denne jobben.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>Stasjonen er ikke tilkoblet</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Nesten ferdig! Filene dine er snart tilgjengelige i %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Angi 0 for ingen grense.</translation>
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
        <translation>Jeg godtar ikke lisensavtalen</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er full</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Oppstarten mislyktes</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Den lokale mappen kan ha blitt flyttet, slettet eller fått nytt navn.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Kvoten for den delte mappen er brukt opp</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Kvoten for den delte mappen er brukt opp. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Finner ikke den eksterne mappen</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Den eksterne mappen kan ha blitt flyttet, slettet eller fått nytt navn.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Lenketillatelse</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Neste sikkerhetskopi: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Sikkerhetskopiplan</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Delingslenke</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Del lenke</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Sikkerhetskopijobber krever %1 %2 eller nyere på huben. Den installerte versjonen er %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Denne datamaskinen er allerede tilknyttet denne huben med samme konto.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Laster inn de delte mappene...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Endringer på nettverksstasjoner kan ikke oppdages med en gang. De blir synkronisert med forsinkelse.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Velkommen til Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Klikk på Tessaly-ikonet i systemstatusfeltet for å endre innstillingene.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>Klikk på ikonet for %1 i systemstatusfeltet for å endre innstillingene.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>Synkroniseringen har stoppet fordi et volum på huben er fullt.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Pakken på huben er for gammel for klienten.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>Knytter til huben...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er oppdatert.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvis</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Mappelenke</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Utløpsdato</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Du er klar til å arbeide med %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nå</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Last opp</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Oppdater %1 til versjon %2 eller nyere.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Velg filene som den nye jobben skal holde synkroniserte.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Åpne nettportalen til %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi denne versjonen av %1 er for gammel for huben.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Be administratoren om å oppdatere %1 på huben.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>En mappe med navnet «%1» blir opprettet på denne plasseringen.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Mappen «%1» kunne ikke opprettes på denne datamaskinen.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Se alle filene dine uten å fylle opp disken. Hver fil lastes ned når du åpner den.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Åpne nettportalen til Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>En nyere versjon av Tessaly er allerede installert. Fjern den før du installerer Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Veiledning, side 1: velkommen til %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Jobbtype</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Funksjonene for synkronisering og sikkerhetskopiering i Kelvane Quay Client kan nå installeres. Klikk Installer for å starte eller Tilbake for å kontrollere innstillingene.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Aktiver synkronisering ved behov</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Mappen «%1» for synkronisering ved behov mangler. Konfigurer jobben på nytt.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synkronisering ved behov</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Prøv synkronisering ved behov</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommenter</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Volumet på huben er fullt. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Angi en gyldig dato.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>Sluttidspunktet må være senere enn starttidspunktet.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>Angi et filnavn eller en filendelse, for eksempel «*.tmp»</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Roller og tillatelser</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Plass frigjort</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Gjort tilgjengelig på denne datamaskinen</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Synkronisering ved behov krever en mappe på en NTFS-stasjon som ikke er en nettverksstasjon eller flyttbar stasjon.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Behold filene på nett til du trenger dem. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Slik fungerer synkronisering ved behov&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Det er ikke nok plass på denne disken. %1 trenger minst %2 MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Synkroniser hjemmemappen din og teammappene du har tilgang til.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Hvis du slår av dette, blir mappen med filene som andre deler med deg, fjernet fra denne datamaskinen. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Synkroniser filene som andre deler med deg, slik at du kan åpne dem som om de var dine egne.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Aktiver synkronisering ved behov for denne jobben</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi kontoen din ikke har tillatelse til å bruke pakken på huben.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Synkroniser filene og mappene som andre brukere deler med deg.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Disken begynner å bli full. Aktiver synkronisering ved behov for å frigjøre plass.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Alt som andre deler med deg, samlet i én mappe</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Be administratoren om å gi deg tillatelse til å bruke pakken.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Denne klienten krever %1 %2 eller nyere på huben. Be administratoren om å oppdatere.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Du har ikke tillatelse til å bruke pakken på huben. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>Målet brukes allerede av en annen sikkerhetskopijobb. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>%1 kan ikke kommunisere med pakken på huben. Oppdater begge til nyeste versjon.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Bare du kan åpne lenken</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsett likevel</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly holder filene dine identiske på alle datamaskinene dine og beskytter dem på huben.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Del en fil med en lenke. Du bestemmer hvem som kan se eller redigere den.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Start omvisningen</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Er du ny bruker av %1? Les &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;hurtigstartveiledningen&lt;/a&gt; først.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Angi brukernavnet ditt.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Alle filene i denne jobben blir lastet ned til denne datamaskinen. Vil du fortsette?</translation>
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
        <translation>Åpne historikken for å finne ut hvem som endret en fil, og når.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Hold filene dine identiske på alle datamaskinene dine ved å synkronisere dem med huben.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>%1 fil behandles</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 og klienten har forskjellige versjoner. Oppdater begge til samme versjon.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Filer som behandles: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>%1 filer behandles</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Volumet med denne mappen støtter ikke kvoter.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Den personlige lagringskvoten din er brukt opp.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>Hjemmemappen din bruker %1 av %2, og de delte mappene bruker %3 av %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>Kvoten for den delte mappen «%1» er brukt opp.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Noen mapper har nådd kvoten.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Versjonen kan ikke gjenopprettes fordi filen er ekskludert av et filter.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Velg mappene som skal sikkerhetskopieres, og hvor sikkerhetskopiene skal lagres.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>Velg hva som skal sikkerhetskopieres</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi kontoen din er deaktivert på huben.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Be administratoren om å aktivere kontoen din.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Kontoen din er deaktivert på huben. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>Kontoen er deaktivert</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Vis ikoner på filer som er ekskludert av et filter</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagringsplass</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogboks</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Alle jobber for denne huben blir fjernet fra denne datamaskinen. Filene blir beholdt. Vil du fortsette?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Sikkerhetskopieringen mislyktes. Prøv på nytt.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Jobben kunne ikke opprettes. Prøv på nytt.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>Du har ikke lenger tillatelse til å åpne den delte mappen «%1».</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Behandler «%1»...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dager</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Jobben kunne ikke lastes inn.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Mappen «%1» finnes ikke.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>Slå av datamaskinen</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Du har ikke tillatelse til å slå av denne datamaskinen automatisk.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Sikkerhetskopieringen ble avbrutt.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Sikkerhetskopieringen er fullført.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>Sikkerhetskopier %1 ganger om dagen</translation>
    </message>
    <message>
        <source>times</source>
        <translation>ganger</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Sikkerhetskopitype</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Vil du starte sikkerhetskopieringen nå?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Hvis denne datamaskinen er slått av eller i hvilemodus på det planlagte tidspunktet, starter sikkerhetskopieringen så snart datamaskinen kjører igjen.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Velg minst én ukedag.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Siste sikkerhetskopi: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Hver dag</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuell sikkerhetskopi</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Én gang om dagen</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Kontinuerlig sikkerhetskopi</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Planlagt sikkerhetskopi</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Angi sikkerhetskopiplanen</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Tar et øyeblikksbilde...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Sikkerhetskopiplanen kunne ikke lagres. Prøv på nytt.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Angi en størrelse fra 0 til %1 MB. Angi 0 for ingen grense.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Tilkobling</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Vis aktiviteten for denne jobben</translation>
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
        <translation>Brukt</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Måneder</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 av %2 brukt</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Bakgrunnsjobb</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Vindu med filterinnstillinger</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Angi et gyldig klokkeslett.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Ikke synkronisert: ekskludert av en systemregel</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ikke nå</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Sikkerhetskopijobber</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsjobber</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Nylig endret</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sikkerhetskopier nå</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lik</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mindre enn</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Større enn</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Velg en mappe på denne datamaskinen</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Denne mappen er allerede del av en sikkerhetskopijobb i %1. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Denne mappen synkroniseres allerede av Kelvane Quay Client og kan ikke sikkerhetskopieres i tillegg. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adresse</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>svarte på kommentaren din til</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Åpne synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Svar</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Ikke synkronisert</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Tessaly Server på huben er for gammel for %1. Be administratoren om å oppdatere den.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Ingen tilkobling til huben</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Avansert deling</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Delingsinnstillingene kunne ikke lagres. Prøv på nytt.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Aktiver avansert deling</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Aktiver lenkebeskyttelse</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>deles nå med avanserte innstillinger.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Beskyttet deling</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Lenkebeskyttelse</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Er du sikker på at du vil fjerne lenken? Den kan ikke gjenopprettes.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Vil du fjerne denne lenken?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Lagre loggene til klienten i en fil som du kan sende til teknisk støtte.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Angi et søkeord</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Fjern lenke</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Feilsøking</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Registrer flere detaljer i loggene for å hjelpe teknisk støtte med å finne årsaken til et problem.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Eksporter logger</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Fil slettet</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Den eksporterte filen inneholder:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Informasjon om operativsystemet på denne datamaskinen</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Avansert logging</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Avanserte logger tar opp mer plass på disken og kan gjøre klienten tregere.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Personvernerklæring</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Loggene og innstillingene til klienten, uten passord</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Slå på avansert logging</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Ikke synkronisert: ekskludert av et filter i jobben</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Ikke synkronisert: ingen tillatelse</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Vilkår for bruk</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Angi en størrelse på mindre enn %1 MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Denne mappen er allerede del av en annen sikkerhetskopijobb. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>Jobben har stoppet på grunn av en uventet feil. Start programmet på nytt.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Denne filen har ingen tidligere versjoner.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Synkronisering ved behov kunne ikke aktiveres for denne jobben.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Tilkoblingen til huben mislyktes. Kontroller adressen og nettverket.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>Fil lagt til</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Navnet kan ikke begynne eller slutte med et mellomrom.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>Sikkerhetskopieringen har stoppet fordi SSL-sertifikatet til huben er endret.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>SSL-sertifikatet til huben er utløpt. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>Huben kan nå indeksere hele hjemmemappen din.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Du kan nå synkronisere hele hjemmemappen din med denne datamaskinen.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik er deaktivert</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>Huben klargjør hjemmemappen din. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Filen fikk nytt navn</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>«%1» ble oppdatert</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>Navnet kan ikke inneholde noen av disse tegnene: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik er deaktivert på huben. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Kontoen din er deaktivert på huben, så mappen kan ikke kontrolleres.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Det finnes allerede en jobb med dette navnet.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Ingen av de valgte mappene kan brukes. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>Ingen gyldige mapper</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Filene blir værende på huben til du åpner dem. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Finn ut mer om synkronisering ved behov&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Egendefinert jobbnavn</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Navnet hjelper deg med å skille jobbene fra hverandre. Det vises bare på denne datamaskinen.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>Synkronisering ved behov kan slås av eller på i innstillingene for jobben.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Dette feltet er obligatorisk.</translation>
    </message>
</context>
</TS>
