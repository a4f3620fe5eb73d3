<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Borttagen</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla bort</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Anslut via Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå samman</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Filkonflikter uppstod. Filen heter nu %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Värdet är ogiltigt. Kontrollera det och försök igen.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>Nätverket är inte tillgängligt. Kontrollera anslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mapp</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Koppla på nytt</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kontrollerar användarnamn och lösenord...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Anslutningen lyckades</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Filerna i de två mapparna slås samman. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Startar...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Granska följande inställningar innan du slutför.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Sökväg till mappen</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Ferrylink-ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nyligen uppdaterade filer</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Nedladdad</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
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
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kom igång</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Söker efter ändringar...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>Anslutningen till hubben bröts. Ansluter igen...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uppladdad</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Anpassa</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Inloggningen misslyckades</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Identifierar anslutningstypen...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Ferrylink-relä</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Ferrylink-tjänsten svarar inte. Försök igen senare.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Uppdaterade filer: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Du har bara läsbehörighet till den här mappen. Ändringar som du gör på den här datorn laddas inte upp.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Din lagringskvot på hubben är slut. Frigör utrymme och försök igen.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Anslutningstyp</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivskyddad mapp</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Byt den lokala mappen</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Det gick inte att verifiera hubbens SSL-certifikat.</translation>
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
        <translation>Använd ingen proxyserver</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Det gick inte att ansluta till Ferrylinks kontrollserver. Försök igen senare.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Ändringarna har inte sparats. Vill du lämna sidan?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Utrymmet är slut</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Det gick inte att aktivera synkronisering för den delade mappen.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Mappen överlappar en mapp som redan synkroniseras. Välj en annan.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>Högst %1 delade mappar kan synkroniseras.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Tillämpar inställningarna...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Ange ett portnummer mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Ange proxyserverns adress och port.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>Konfigurera proxyservern manuellt</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Det finns inga ändringar att tillämpa.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Aktivera synkronisering</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Den delade mappens namn</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxyservern kräver inloggning</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Något gick fel</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Uppdaterar...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Kryptera dataöverföringen med SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Hubbens namn, IP-adress eller Ferrylink-ID</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa aviseringar på skrivbordet</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Visa ikoner för synkstatus på filer och mappar</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Allmänna alternativ</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Använd en svartvit ikon i systemfältet</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Den delade mappen ”%1” är tillgänglig för dig. Du kan ställa in att den ska synkroniseras med den här datorn.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerar data...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Den automatiska konfigurationen misslyckades. Konfigurera anslutningen manuellt.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Slutför konfigurationen...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Filer och mappar som matchar de här reglerna synkroniseras inte.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Installerar uppdateringen...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Filnamnstillägg</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Mapp på en monteringspunkt</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Programuppdatering</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Förlopp: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>Vill du sluta synkronisera ”%1”? Filerna på den här datorn och på hubben behålls.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Det gick inte att ta bort den delade mappen från listan.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Den här konfigurationsnyckeln har redan använts. Be administratören om en ny.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>Det nya språket börjar gälla när du har startat om programmet.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Datorns disk är full. Frigör utrymme och försök igen.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Läser in mapplistan...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Vill du verkligen koppla bort den här datorn från hubben?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemets standard</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation av [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Synkroniserar filer (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Laddar ned ”%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mappar att synkronisera</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Största filstorlek</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Undantagna filnamn</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Undantagna filer</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Den lokala databasen är skadad. Koppla bort den här datorn från hubben och koppla den på nytt.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Undantagslista</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Mapparna som du avmarkerade tas bort från den här datorn. De finns kvar på hubben.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Konflikthantering</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkläge</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Mappen är en monteringspunkt och kan inte synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Nedladdningen av ”%1” avbröts.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>Synkroniseringen har stoppats eftersom datorns disk är full.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>Synkroniseringen har stoppats eftersom din lagringskvot på hubben är slut.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Kopplar...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Behörighet saknas</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Det gick inte att hämta din kontoinformation från hubben.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Anslutningen är instabil</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hämta länk</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Kopplar den här datorn till hubben...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Försöker synkronisera...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Läsare</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatvarning</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Undantagsregler</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Om du slutar synkronisera den här delade mappen överförs inga senare ändringar. De lokala filerna behålls.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Aktivera SSL-kryptering</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Välj den mapp på den här datorn som du vill synkronisera med hubben.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>har delats med dig.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Ny delning</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Nedladdningen är klar</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Nedladdningen misslyckades</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>Hubböversikt</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Hubben på den här adressen har ändrats. Koppla den här datorn på nytt.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>Synkroniseringen är pausad.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>Hubbens SSL-certifikat är inte betrott.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>Synkronisering pågår.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Klienten är för gammal för hubben. Uppdatera klienten.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Mappen ingår redan i en säkerhetskopieringsuppgift i Tessaly. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Uppgiften är inaktiv eftersom hubben inte kan nås.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Filen kan inte laddas ned. Kontrollera anslutningen och dina behörigheter.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>Filens versionshistorik är inte tillgänglig.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Det går inte att skapa en länk till det här objektet.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>När du dubbelklickar på ikonen i systemfältet</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>Hubben indexerar den här mappen. Vänta en stund.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Initialiseringen misslyckades. Starta om programmet.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Installationsprogrammet kan inte ersätta filer som är öppna i andra program.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Låt programmen vara öppna. Du måste starta om datorn efteråt.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Återställer programfiler, genvägar och registerposter som saknas eller är skadade.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Starta [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] håller dina filer säkra och synkroniserade.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Klicka på Slutför för att avsluta installationen.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>Enheten med den lokala mappen är inte ansluten.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparera [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Visa tidigare versioner</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Vad vill du göra?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>[ProductName] installeras på datorn.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast nedladdning</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Ett fel uppstod och [ProductName] installerades inte. Alla ändringar som installationsprogrammet gjorde har ångrats. Du kan köra det igen när som helst.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorera</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Information om den här datorn och den hubb som den är kopplad till.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installera</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Använd den här guiden för att ändra, reparera eller ta bort [ProductName]. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Ta bort [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensavtal</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>De här programmen har öppna filer som installationsprogrammet för [ProductName] behöver ersätta:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Synkaktivitet</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparera</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Installerar [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Den lokala mappen saknas. Den kan ha flyttats, bytt namn eller tagits bort.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Vill du verkligen avbryta installationen av [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Läs avtalet innan du fortsätter.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>Stäng programmen nu och öppna dem igen när installationen är klar.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer som används</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Stäng programmen och klicka på Försök igen. Om du klickar på Ignorera blir installationen av [ProductName] klar först när datorn har startats om.</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändra</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Välj vilka funktioner som ska installeras och var.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] installeras alltid med alla funktioner.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>Ändra [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Du kan ändra, reparera eller ta bort det installerade programmet.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Tar bort programmet och dess inställningar från datorn.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Det kan ta flera minuter.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Redo att installera [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Tessaly kan nu installeras. Klicka på Installera för att börja eller på Bakåt för att kontrollera inställningarna.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Installationsprogrammet ska nu ta bort programmet.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Redo att ta bort [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Klicka på Ta bort för att ta bort [ProductName] från den här datorn. Dina synkroniserade filer behålls.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Installationsprogrammet ska nu reparera programmet.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Redo att reparera [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Klicka på Reparera för att börja, på Bakåt för att välja en annan åtgärd eller på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Du avslutade installationsprogrammet innan [ProductName] hade installerats. Inget på datorn har ändrats. Du kan starta installationen igen när som helst.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Den här guiden installerar [ProductName] på datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Välkommen till installationen av [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>[ProductName] har installerats</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Installationen av [ProductName] avbröts</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedladdningshistorik</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Koppla till en ny hubb</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>[ProductName] kunde inte installeras</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Synkronisering aktiverad</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Lägg till uppgift</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Jag accepterar licensavtalet</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Dina filer, uppdaterade på alla enheter.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Det här är inte den hubb som %1 var kopplad till. Koppla den här datorn på nytt.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Delning är inaktiverad för ditt konto.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>Uppgiften ”%1” stoppas och dess anslutning till hubben tas bort. Filerna på båda sidor behålls.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Öppna mappen som innehåller filen</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Det gick inte att hämta filens adress från hubben.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Välj den mapp på den här datorn där dina filer lagras.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>Hubben har ändrats</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>Den delade mappen ”%1” är inte monterad på hubben.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Fjärrmappens volym är inte monterad på hubben.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Mappens plats</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Synkronisera till den här datorn</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Du är inte inloggad som administratör, så vissa funktioner kanske inte installeras. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Synkronisera, dela och skydda dina filer</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Fildelning via Ferrylink är inaktiverad på hubben. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Välj hur du vill konfigurera Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snabbkonfiguration</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Objekt %1 till %2 av %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Jag förstår</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>Objektet har tagits bort eller så har du inte längre åtkomst till det.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Högerklicka på en fil eller mapp för att dela den, hämta en länk eller visa tidigare versioner.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumintervall</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Sluta synkronisera den här mappen</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>För %1 tim sedan</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Välj en mapp på hubben och en mapp på den här datorn. Innehållet i dem hålls identiskt.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Den här datorn är redan kopplad</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Namnändrad</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>För %1 dygn sedan</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Alldeles nyss</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>För %1 min sedan</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nyckelord</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februari</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Augusti</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkronisera den här mappen igen</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Sluta synkronisera de här mapparna</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Det finns ingen historik att visa</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkronisera de här mapparna igen</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Skicka till</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januari</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Synkroniseras nu</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
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
        <translation>December</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avancerad konfiguration</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Börja synkronisera i ett steg med de rekommenderade inställningarna.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Din hemmapp på hubben och den nya mappen på den här datorn hålls nu identiska.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>Konfigurationen är klar</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Lägg filer i den synkroniserade mappen så visas de på hubben och på alla dina andra datorer.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Klicka på ikonen i systemfältet för att se synkstatus och de filer som ändrades senast.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>Konfigurationsläge</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tack</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Synkronisera dina filer</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Håll koll på ändringar</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Hitta hubbar i det lokala nätverket</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Uppdatering tillgänglig</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Användare: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Filen hör inte till någon synkuppgift.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Öppna huvudfönstret</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Koppla den här datorn till en annan hubb</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Synkronisera en annan mapp med den här hubben</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkuppgift</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Välj mappar, synkriktning och filter själv.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer som är större än %1 MB synkroniseras inte.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Mappen kan inte synkroniseras. Välj en annan.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Sök efter hubbar i det lokala nätverket</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Du har bara läsbehörighet till den här delade mappen. Filer laddas ned men inte upp.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Fler guider finns i &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;introduktionerna&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Mappen innehåller eller ligger i en mapp som redan synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Den här datorn är redan kopplad till hubben ”%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>En mapp med namnet ”Tessaly” skapas på den här platsen.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Om du fortsätter ersätts den befintliga kopplingen.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Hubben är offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Hemmapp</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Det går inte att skapa en länk eftersom Norvik inte är tillgängligt på hubben.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>Hubbens SSL-certifikat har ändrats. Bekräfta det nya certifikatet.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Ange vilka mappar som ska synkroniseras</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>Synkriktningen stämmer inte med dina behörigheter för fjärrmappen.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>Den här datorns IP-adress är blockerad av hubben. Kontakta administratören.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>När en fil har ändrats på båda sidor:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Välkommen till konfigurationsguiden</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kopplar bort...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>För många misslyckade försök. Försök igen senare.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Mappen kan inte kontrolleras eftersom anslutningen till hubben misslyckades.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>Den delade mappen finns inte längre på hubben.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>Synkroniserade mappar</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Behåll den version som ändrades senast</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tvåvägssynkronisering</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Välj vilken mapp på hubben som ska synkroniseras med vilken mapp på den här datorn.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delad mapp</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>har begärt åtkomst till Bureau-mallen</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Mappen används redan av en annan synkuppgift på den här datorn.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 har begärt åtkomst till Bureau-mallen ”%2”.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Mappen kan inte kontrolleras eftersom hubbens SSL-certifikat har ändrats.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Ange verifieringskoden.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Verifieringskoden är felaktig. Försök igen.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Ange den 6-siffriga verifieringskoden</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Timmar</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Din lagringskvot på mappens volym är slut.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Mappen kan inte kontrolleras eftersom hubbens SSL-certifikat inte är betrott.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Mappen kan inte kontrolleras på grund av ett systemfel på hubben.</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Behåll alltid versionen på hubben</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Byt namn på filer i konflikt och behåll båda versionerna</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) begär åtkomst (%3) till Bureau-mallen ”%4”.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Innehållet i båda mapparna slås samman. Inga filer tas bort.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Lista över anslutningar</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Ansluten hubb</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Kopiera delningslänken</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Ta bort användarens behörighet</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Grupp: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Öppna Tessalys webbportal</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Kopplad hubb</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Synkuppgift för filer som andra delar med dig</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Fliken Nyligen ändrade filer</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Introduktion, sida 2: synkronisera dina filer</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Introduktion, sida 3: håll koll på ändringar</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Introduktion, sida 4: dela med andra</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Välj en delningsbehörighet</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly håller filerna på dina datorer och på hubben identiska.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>timmar</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hubb</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Öppna min mapp</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delade mappen hittades inte</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Hubben kräver tvåfaktorsautentisering. Konfigurera den i webbportalen och logga in igen.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Den delade mappens kvot är slut.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Vissa fält innehåller ogiltiga värden. Kontrollera de markerade fälten.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkriktning</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>Något gick fel i en av dina uppgifter. Öppna huvudfönstret för mer information.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Här visas bara delade mappar som har aktiverats i Tessaly Server.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Du har inte behörighet till den här mappen.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Upphör att gälla efter</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Inga tillgängliga åtgärder</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt. Logga in igen.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Ange ett fullständigt filnamn, till exempel ”desktop.ini”, och tryck på Retur.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Det finns redan en mapp med det här namnet. Välj ett annat namn.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Jämför alla filattribut vid sökning efter ändringar</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Giltig till och med</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Fältet får inte lämnas tomt.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begränsa åtkomsten</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Visa synkåtgärder på snabbmenyn för filer och mappar</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Tjänsten för hemmappar är inaktiverad på hubben. Kontakta administratören.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>Uppdateringen misslyckades. &lt;a href=&quot;%1&quot;&gt;Ladda ned den senaste versionen&lt;/a&gt; och installera den manuellt.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Tillämpa och kopiera länken</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Begränsa antalet besök</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Giltig från och med</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>Hubben kräver en nyare version av klienten. Vill du uppdatera nu?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>Fjärrmappen finns på en volym som inte är monterad.</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>Visa information</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Lägg till ett filnamn</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Mapp på den här datorn</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Välj ett språk</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Lista över filversioner som laddas ned</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Anpassa giltighetstiden</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Visa introduktionen till %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Byt den synkroniserade mappen</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Kopplad synkroniserad mapp</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Uppdatera historiken</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Föregående månad</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Ange ett nyckelord för att söka i historiken</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Lägg till en mapp</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nästa månad</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Välj en händelsetyp</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Synkuppgiften ”%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Mapp på hubben</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Inställningsfönster</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Stäng introduktionen</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Avbryt den här nedladdningen</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Ta bort den här nedladdningen från listan</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Ditt lösenord har upphört att gälla. Byt det i webbportalen och logga in igen.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Redigerare</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Namnändrad på den här datorn</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Namnändrad på hubben</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Ange högst %1 tecken.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Det här är inte det konto som uppgiften skapades med. Logga in som ”%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Hubbinformation</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Ferrylinks relätjänst är inaktiverad på hubben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>Det gick inte att ladda ned ”%1”. Försök igen senare.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Det gick inte att logga in på hubben. Kontrollera användarnamnet och lösenordet.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Aviseringar</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>har kommenterat</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Öppna i webbportalen</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Konfigurera</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Öppna den synkroniserade mappen</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Du har bara läsbehörighet till den här mappen. %1 laddar inte upp dina ändringar.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 är nu kopplad till hubben och håller dina filer synkroniserade.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Installationsprogrammet har samlat in all information som behövs.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 är klar.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 körs redan.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>%1 håller filerna på dina datorer och på hubben identiska.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Förhandsgranska och kommentera</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>Det gick inte att uppdatera %1. Försök igen senare.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>En nyare version av Kelvane Quay Client är redan installerad. Installationsprogrammet avslutas.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>Hubbens SSL-certifikat har ändrats. Om du inte väntade dig detta bör du kontakta administratören innan du fortsätter.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>Välj vad som ska synkroniseras med den nya uppgiften</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>Mappen tillhör Dropbox. Om den även synkroniseras med %1 kan filkonflikter uppstå.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Dina ändringar går förlorade. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Introduktion till %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>Ferrylink-ID:t finns inte eller så körs inte %1 på hubben.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Här visas bara delade mappar som har aktiverats i %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Starta %1 när jag loggar in på den här datorn</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 initialiserar...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>Hubben och %1 kan inte kommunicera med varandra. Uppdatera båda till den senaste versionen.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Den här versionen av %1 är för gammal för hubben. Uppdatera den.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerna stämmer inte överens</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Disken är full. Frigör utrymme på den här datorn så att %1 kan fortsätta.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>Ett problem har uppstått i %1. Starta om programmet.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Fliken Aviseringar</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>Mappen är inte tom. %1 slår samman filerna i den med filerna på hubben.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Ladda bara ned ändringar från %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>%1 har konfigurerats. Öppna mappen för att börja arbeta.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Introduktion, sida 1: välkommen till Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Den här versionen av Kelvane Quay Client är redan installerad. Vill du installera den igen?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>Konfigurera %1 för att synkronisera och säkerhetskopiera filerna på den här datorn.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Nästan klart! Dina filer finns snart i Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Nästan klart! Dina filer finns snart på den här datorn.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>Åtgärden misslyckades. Försök igen.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>En mapp med namnet ”Kelvane Quay” skapas på den här platsen.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Den här versionen av Tessaly är redan installerad. Vill du installera den igen?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>En nyare version av Tessaly är redan installerad. Installationsprogrammet avslutas.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>Introduktion till Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Veckor</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>Mappen tillhör Dropbox. Om den även synkroniseras med Tessaly kan filkonflikter uppstå.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly är klar.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>Tessaly initialiserar...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>Ferrylink-ID:t finns inte eller så körs inte Tessaly Server på hubben.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Den här versionen av Tessaly är för gammal för hubben. Uppdatera den.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>Delningsbehörighet</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Tessaly Server på hubben är för gammal för den här klienten. Be administratören att uppdatera den.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Visa introduktionen till Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>Starta Tessaly när jag loggar in på den här datorn</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Ett problem har uppstått i Tessaly. Starta om programmet.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Konfigurationen är klar. Dina filer synkroniseras nu.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>Klicka på ikonen i systemfältet när som helst för att se status och ändra inställningarna.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>Mappen är inte tom. Tessaly slår samman filerna i den med filerna på hubben.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly körs redan.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Tessaly har konfigurerats. Öppna mappen för att börja arbeta.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Du har bara läsbehörighet till den här mappen. Tessaly laddar inte upp dina ändringar.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Öppna Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>Version %1 är tillgänglig. Klicka här för att uppdatera.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Om du vill använda selektiv synkronisering ber du administratören att uppdatera Tessaly Server på hubben.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum och tid</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Det finns inte tillräckligt med utrymme på disken. Tessaly behöver minst %1 MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly är nu kopplad till hubben och håller dina filer synkroniserade.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly kan bara kopplas en gång till samma hubb med samma konto.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Konfigurera Tessaly för att synkronisera filerna på den här datorn.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Är Tessaly nytt för dig? Läs &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;snabbstartsguiden&lt;/a&gt; först.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Kan kommentera</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Hubbanvändare som har länken kan visa</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Hubbanvändare som har länken kan redigera</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Endast inbjudna personer kan öppna länken</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Alla som har länken kan kommentera</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Alla som har länken kan visa</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Hubbanvändare som har länken kan kommentera</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Alla som har länken kan redigera</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan visa</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Kan hantera</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan redigera</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Webbportalen kan inte öppnas. Kontrollera anslutningen till hubben.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Bjud in personer</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Ingen åtkomst</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Det finns inga delade mappar.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Ladda ned</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Offentlig delning är inaktiverad på hubben.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Delning är inaktiverad. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) begär åtkomst (%3) till Grida-kalkylarket ”%4”.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Personer som har länken kan inte längre öppna filen.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 har delat Grida-kalkylarket ”%2” med dig.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Inga data</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Dela</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Filen eller mappen finns inte.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Du har inte behörighet att utföra den här åtgärden.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>Helger</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Hubbanvändare</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Endast inbjudna personer</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visning</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alla som har länken</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Ange ett utgångsdatum</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Användare och grupper</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Visa de synkroniserade mapparna i filhanterarens sidofält</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Arbeta i den synkroniserade mappen som i vilken mapp som helst. Dina ändringar överförs genast till hubben.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Din dator</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Alla dina filer, överallt</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Spara utrymme med synkronisering på begäran</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Alla filer visas på datorn, men de tar bara upp utrymme när du har öppnat dem.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Endast online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Tillgänglig på den här datorn</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>har nämnt dig i</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>har begärt åtkomst till</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 har delat filen ”%2” med dig.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>har delat med dig</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Delat</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Begäran om åtkomst</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentarer</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Delat med mig</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Omnämnanden</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Endast uppladdning</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Behåll filer på hubben när de tas bort från den här datorn</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senare</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>”%1” har laddats ned.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Dina filer är uppdaterade på alla dina enheter.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>Dina filer finns också i &lt;a href=&quot;%1&quot;&gt;webbportalen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Grattis!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Nu kan du börja arbeta med Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>Aktivera senare</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Aktivera nu</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Filer som delats med dig</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Skapa en synkuppgift</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Mina filer och teammappar</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Filer som delats med mig</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Det här är inte den hubb som Tessaly var kopplad till. Koppla den här datorn på nytt.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Hubben och Tessaly kan inte kommunicera med varandra. Uppdatera båda till den senaste versionen.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Missa aldrig en ändring</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Disken är full. Frigör utrymme på den här datorn så att Tessaly kan fortsätta.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Teammapp</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Ladda bara ned ändringar från Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Det gick inte att uppdatera Tessaly. Försök igen senare.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>Ikonen i systemfältet visar vad som synkroniseras och meddelar dig när andra delar filer med dig eller kommenterar dem.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>Dela på några sekunder</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Högerklicka på en fil eller mapp, skapa en länk och bestäm vem som får öppna den och hur länge.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) begär åtkomst (%3) till Pictra-presentationen ”%4”.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 har delat mappen ”%2” med dig.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) begär åtkomst (%3) till mappen ”%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) begär åtkomst (%3) till filen ”%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) begär åtkomst (%3) till Folia-dokumentet ”%4”.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 har delat Folia-dokumentet ”%2” med dig.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 har delat Pictra-presentationen ”%2” med dig.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Sekretessinställningar</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Skydda med ett lösenord</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Vardagar</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>En mapp med namnet ”%1” skapas för filer som andra delar med dig.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Behåll alltid på den här datorn</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Alla</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Filerna säkerhetskopieras så snart de ändras.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Filerna säkerhetskopieras vid de tider som du anger.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>Säkerhetskopieringen är klar. Datorn stängs av om %1 s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Säkerhetskopiering</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Kör på följande dagar</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Anslut till hubben</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Skydda filerna på den här datorn genom att säkerhetskopiera dem till hubben.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manuell: säkerhetskopieringen körs bara när du startar den.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Starttid</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekvens</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Senaste sluttid</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Senaste körning</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Kommentator</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Ändra vem som kan öppna den här länken</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Senaste uppladdning: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Uppgiftsinställningar</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Kontinuerlig: filerna säkerhetskopieras varje gång de ändras.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Öppna i filhanteraren</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Tiden infaller nästföljande dag.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Det gick inte att hämta delningsinformationen.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål för säkerhetskopiering</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Filerna säkerhetskopieras när du klickar på Säkerhetskopiera nu.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Tillåt nedladdning</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Schemalagd: säkerhetskopieringen körs vid de tider som du anger.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Säkerhetskopieringsschema</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Ansvarig</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Förhandsgranskare</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Skapa en säkerhetskopieringsuppgift</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Filer vars namn eller filnamnstillägg anges här hoppas över.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synkronisera tillfälliga filer</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Kopiera filer från den här datorn till hubben, direkt eller enligt ett schema.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Välj när filerna ska säkerhetskopieras.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Välj minst en mapp att säkerhetskopiera.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>Filer som säkerhetskopierats till ”%3” (%4): %1 (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Börja säkerhetskopiera</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Filer och mappar som matchar de här reglerna säkerhetskopieras inte.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mapp har valts</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Frigör utrymme</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Sluta behålla på den här datorn</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Valda dagar</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>När säkerhetskopieringen är klar</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Välj en mapp på ”%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Välj en mapp på hubben.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Hoppa över filer och mappar vars namn börjar med en punkt</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>Börja synkronisera</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom det inte gick att verifiera hubbens SSL-certifikat.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Det gick inte att registrera uppgiften på hubben. Försök igen.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom hubben på den här adressen har ändrats.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom hubben och klienten inte kan kommunicera med varandra. Uppdatera båda.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom den här versionen av Tessaly är för gammal för hubben.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>Uppdatera Tessaly till version %1 eller senare.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Kontrollera användarnamnet och lösenordet och logga sedan in igen.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Kontrollera att hubben är på och att den här datorn är ansluten till nätverket.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>Hubben har blockerat den här datorns IP-adress. Kontakta administratören.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>Hubbens SSL-certifikat är ogiltigt. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Be administratören att uppdatera Tessaly Server på hubben.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Ännu inte säkerhetskopierad</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Håll en mapp på den här datorn och en mapp på hubben identiska.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Läs mer&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Välj de dagar och tider då säkerhetskopieringen ska köras.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Kör missade säkerhetskopieringar så snart som möjligt</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>Välj en mapp på varje sida.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Ange hubbens adress och ditt konto.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Kontrollera inställningarna för den nya uppgiften.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Sökväg</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom inloggningen på hubben misslyckades.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>Paketversionen på hubben stöds inte. Be administratören att uppdatera paketet.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom hubben har blockerat den här datorns IP-adress.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom paketet på hubben är för gammalt för den här klienten.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>Några av de valda mapparna finns inte längre. Avmarkera dem för att fortsätta.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Synkriktningen stämmer inte</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Kelvane Quay Client kan nu installeras. Klicka på Installera för att börja eller på Bakåt för att kontrollera inställningarna.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>Välj en uppgiftstyp</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Arbeta med samma filer på alla dina datorer.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Spara en säker kopia av dina filer på hubben.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Logga in på den hubb som ska lagra dina säkerhetskopior.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>Ange vilka mappar som ska synkroniseras</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Frigör utrymme på datorns disk.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Välj den mapp på hubben som du vill synkronisera.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Filer laddas ned först när du öppnar dem, vilket sparar utrymme på den här datorn.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>Synkronisering på begäran är inte tillgänglig för den valda mappen eller datorns operativsystem.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>Den delade mappen är inte monterad</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Ladda bara upp ändringar till %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Synkronisera filer som andra delar med mig</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Säkerhetskopiera tillfälliga filer</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Filer som andra delar med dig visas i en egen mapp på den här datorn.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Webbportal</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Lagringskvoten är slut</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Hemmappen är inaktiverad</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mån</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Tors</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Lör</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <translation>Den lokala mappen hittades inte</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Det gick inte att starta uppgiften. Starta om programmet.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>Uppgiftens delade mapp är inte monterad på hubben. Kontakta administratören.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Du har inte längre behörighet till uppgiftens delade mapp.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>Enheten är inte ansluten</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Nästan klart! Dina filer finns snart i %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Ange 0 för ingen gräns.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fre</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sön</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Tis</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Ons</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Måndag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lördag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Söndag</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tisdag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Jag accepterar inte licensavtalet</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken är full</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Initialiseringen misslyckades</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Den lokala mappen kan ha flyttats, bytt namn eller tagits bort.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Den delade mappens kvot är slut</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Den delade mappens kvot är slut. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Fjärrmappen hittades inte</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Fjärrmappen kan ha flyttats, bytt namn eller tagits bort.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Länkbehörighet</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Nästa säkerhetskopia: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Säkerhetskopieringsplan</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Delningslänk</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Dela länk</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Säkerhetskopieringsuppgifter kräver %1 %2 eller senare på hubben. Den installerade versionen är %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Den här datorn är redan kopplad till den här hubben med samma konto.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Läser in de delade mapparna...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Ändringar på nätverksenheter kan inte upptäckas genast. De synkroniseras med en viss fördröjning.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Välkommen till Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Klicka på Tessaly-ikonen i systemfältet för att ändra inställningarna.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>Klicka på ikonen för %1 i systemfältet för att ändra inställningarna.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>Synkroniseringen har stoppats eftersom en volym på hubben är full.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Paketet på hubben är för gammalt för klienten.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>Kopplar till hubben...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alla filer är uppdaterade.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Förhandsgranskning</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Uppdaterad</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Mapplänk</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Utgångsdatum</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Nu kan du börja arbeta med %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Ladda upp</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Uppdatera %1 till version %2 eller senare.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Välj vilka filer den nya uppgiften ska hålla synkroniserade.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Öppna webbportalen för %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom den här versionen av %1 är för gammal för hubben.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Be administratören att uppdatera %1 på hubben.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>En mapp med namnet ”%1” skapas på den här platsen.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Det gick inte att skapa mappen ”%1” på den här datorn.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Se alla dina filer utan att fylla disken. Varje fil laddas ned när du öppnar den.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Öppna Kelvane Quays webbportal</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>En nyare version av Tessaly är redan installerad. Ta bort den innan du installerar Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Introduktion, sida 1: välkommen till %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Uppgiftstyp</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Funktionerna för synkronisering och säkerhetskopiering i Kelvane Quay Client kan nu installeras. Klicka på Installera för att börja eller på Bakåt för att kontrollera inställningarna.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Aktivera synkronisering på begäran</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Mappen ”%1” för synkronisering på begäran saknas. Konfigurera uppgiften igen.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synkronisering på begäran</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Prova synkronisering på begäran</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentera</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Volymen på hubben är full. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Ange ett giltigt datum.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>Sluttiden måste vara senare än starttiden.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>Ange ett filnamn eller filnamnstillägg, till exempel ”*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Roller och behörigheter</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Utrymme frigjort</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Tillgänglig på den här datorn</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Synkronisering på begäran kräver en mapp på en NTFS-enhet som inte är en nätverksenhet eller flyttbar enhet.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Behåll filerna online tills du behöver dem. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Så fungerar synkronisering på begäran&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Det finns inte tillräckligt med utrymme på disken. %1 behöver minst %2 MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Synkronisera din hemmapp och de teammappar som du har åtkomst till.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Om du stänger av detta tas mappen med filer som andra delar med dig bort från den här datorn. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Synkronisera filer som andra delar med dig så att du kan öppna dem som dina egna.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Aktivera synkronisering på begäran för den här uppgiften</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom ditt konto inte får använda paketet på hubben.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Synkronisera filer och mappar som andra användare delar med dig.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Disken håller på att bli full. Aktivera synkronisering på begäran för att frigöra utrymme.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Allt som andra delar med dig, i en och samma mapp</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Be administratören att ge dig behörighet att använda paketet.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Klienten kräver %1 %2 eller senare på hubben. Be administratören att uppdatera paketet.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Du har inte behörighet att använda paketet på hubben. Kontakta administratören.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>Målet används redan av en annan säkerhetskopieringsuppgift. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>%1 kan inte kommunicera med paketet på hubben. Uppdatera båda till den senaste versionen.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Endast du kan öppna länken</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly håller dina filer identiska på alla dina datorer och skyddar dem på hubben.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Dela en fil med en länk. Du bestämmer vem som kan visa eller redigera den.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Starta rundturen</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Är %1 nytt för dig? Läs &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;snabbstartsguiden&lt;/a&gt; först.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Ange ditt användarnamn.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Alla filer i den här uppgiften laddas ned till den här datorn. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Välkommen till Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Dela med andra</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Öppna historiken för att se vem som ändrade en fil och när.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Håll dina filer identiska på alla dina datorer genom att synkronisera dem med hubben.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>%1 fil bearbetas</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 och klienten har olika versioner. Uppdatera båda till samma version.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Filer som bearbetas: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>%1 filer bearbetas</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Mappens volym har inte stöd för kvoter.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Din personliga lagringskvot är slut.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>Din hemmapp använder %1 av %2 och de delade mapparna använder %3 av %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>Kvoten för den delade mappen ”%1” är slut.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Några mappar har nått sin kvot.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Versionen kan inte återställas eftersom filen är undantagen av ett filter.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Välj mapparna som ska säkerhetskopieras och var säkerhetskopiorna ska lagras.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>Välj vad som ska säkerhetskopieras</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom ditt konto har inaktiverats på hubben.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserar...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Be administratören att aktivera ditt konto.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Ditt konto har inaktiverats på hubben. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>Kontot är inaktiverat</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Visa ikoner på filer som är undantagna av ett filter</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagring</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogruta</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Alla uppgifter för den här hubben tas bort från den här datorn. Filerna behålls. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Säkerhetskopieringen misslyckades. Försök igen.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Det gick inte att skapa uppgiften. Försök igen.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>Du har inte längre behörighet till den delade mappen ”%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Bearbetar ”%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dagar</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Det gick inte att läsa in uppgiften.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Mappen ”%1” finns inte.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>Stäng av datorn</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Du har inte behörighet att stänga av den här datorn automatiskt.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Säkerhetskopieringen avbröts.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Säkerhetskopieringen är klar.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>Säkerhetskopieringar per dag: %1</translation>
    </message>
    <message>
        <source>times</source>
        <translation>gånger</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Säkerhetskopieringsläge</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Vill du starta säkerhetskopieringen nu?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Om datorn är avstängd eller i viloläge vid den schemalagda tiden startar säkerhetskopieringen så snart datorn körs igen.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Välj minst en veckodag.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Senaste säkerhetskopia: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Varje dag</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Manuell säkerhetskopiering</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>En gång om dagen</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Kontinuerlig säkerhetskopiering</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Schemalagd säkerhetskopiering</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Ange säkerhetskopieringsplanen</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Skapar en ögonblicksbild...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Det gick inte att spara säkerhetskopieringsplanen. Försök igen.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Ange en storlek mellan 0 och %1 MB. Ange 0 för ingen gräns.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Visa aktiviteten för den här uppgiften</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuter</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Visa borttagna objekt</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Använt</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Månader</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 av %2 används</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Bakgrundsuppgift</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Fönster för filterinställningar</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Ange en giltig tid.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Ej synkroniserad: undantagen av en systemregel</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Inte nu</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Säkerhetskopieringar</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringar</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Nyligen ändrade</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Säkerhetskopiera nu</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lika med</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mindre än</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Större än</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Välj en mapp på den här datorn</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Mappen ingår redan i en säkerhetskopieringsuppgift i %1. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Mappen synkroniseras redan av Kelvane Quay Client och kan därför inte säkerhetskopieras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adress</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>har svarat på din kommentar till</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Visa synkstatus</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Svar</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Ej synkroniserad</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Tessaly Server på hubben är för gammal för %1. Be administratören att uppdatera den.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Ingen anslutning till hubben</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Avancerad delning</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Det gick inte att spara delningsinställningarna. Försök igen.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Aktivera avancerad delning</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Aktivera länkskydd</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>delas nu med avancerade inställningar.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Skyddad delning</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Länkskydd</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Vill du verkligen ta bort länken? Den kan inte återställas.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Ta bort länken?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Spara klientens loggar i en fil som du kan skicka till teknisk support.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Ange ett nyckelord</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Ta bort länk</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Felsökning</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Spara mer information i loggarna så att teknisk support lättare kan hitta orsaken till ett problem.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Exportera loggar</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Fil borttagen</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Den exporterade filen innehåller:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Information om datorns operativsystem</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Avancerad loggning</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Avancerade loggar tar upp mer utrymme på disken och kan göra klienten långsammare.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Sekretesspolicy</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Klientens loggar och inställningar, utan lösenord</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Aktivera avancerad loggning</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Ej synkroniserad: undantagen av ett filter i uppgiften</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Ej synkroniserad: behörighet saknas</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Användningsvillkor</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Ange en storlek som är mindre än %1 MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Mappen ingår redan i en annan säkerhetskopieringsuppgift. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>Uppgiften har stoppats på grund av ett oväntat fel. Starta om programmet.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Filen har inga tidigare versioner.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Det gick inte att aktivera synkronisering på begäran för den här uppgiften.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Det gick inte att ansluta till hubben. Kontrollera adressen och nätverket.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>Fil tillagd</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Namnet får inte börja eller sluta med ett blanksteg.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>Säkerhetskopieringen har stoppats eftersom hubbens SSL-certifikat har ändrats.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>Hubbens SSL-certifikat har upphört att gälla. Kontakta administratören.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>Hubben kan nu indexera hela din hemmapp.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Nu kan du synkronisera hela din hemmapp med den här datorn.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik är inaktiverat</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>Hubben förbereder din hemmapp. Försök igen senare.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Fil namnändrad</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>”%1” uppdaterades</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>Namnet får inte innehålla något av följande tecken: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik är inaktiverat på hubben. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Ditt konto har inaktiverats på hubben, så mappen kan inte kontrolleras.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Det finns redan en uppgift med det här namnet.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Ingen av de valda mapparna kan användas. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>Inga giltiga mappar</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Filerna ligger kvar på hubben tills du öppnar dem. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Läs mer om synkronisering på begäran&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Eget uppgiftsnamn</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Namnet hjälper dig att skilja uppgifterna åt. Det visas bara på den här datorn.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>Synkronisering på begäran kan aktiveras eller inaktiveras i uppgiftens inställningar.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Fältet är obligatoriskt.</translation>
    </message>
</context>
</TS>
