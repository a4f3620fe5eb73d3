<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Odstraněno</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Připojit přes Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Zvolit jinou složku</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Došlo ke konfliktu souborů. Soubor má nyní název %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Hodnota je neplatná. Zkontrolujte ji a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>Síť není dostupná. Zkontrolujte připojení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Místní složka</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Znovu propojit</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Ověřování uživatelského jména a hesla...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Připojení bylo úspěšné</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Soubory v obou složkách budou sloučeny. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Spouštění...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Před dokončením zkontrolujte následující nastavení.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Uživatelské jméno nebo heslo není správné.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>ID služby Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nedávno aktualizované soubory</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Staženo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Začít</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Vyhledávání změn...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>Připojení k hubu bylo ztraceno. Obnovování připojení...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Nahráno</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Přizpůsobit</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Přihlášení se nezdařilo</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Zjišťování typu připojení...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Přenosová služba Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Služba Ferrylink neodpovídá. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Aktualizované soubory: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>K této složce máte přístup jen pro čtení. Změny provedené v tomto počítači se nebudou nahrávat.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Vaše kvóta úložiště na hubu je vyčerpána. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ připojení</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Složka jen pro čtení</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Změnit místní složku</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Certifikát SSL hubu se nepodařilo ověřit.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Nepoužívat proxy server</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Použít systémové nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vyberte složku</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Připojení k řídicímu serveru Ferrylink se nezdařilo. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Změny nebyly uloženy. Chcete tuto stránku opustit?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Úložiště je plné</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Synchronizaci sdílené složky se nepodařilo zapnout.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Tato složka se překrývá s již synchronizovanou složkou. Zvolte jinou.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>Maximální počet synchronizovaných sdílených složek: %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Probíhá použití nastavení...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Zadejte číslo portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>Nastavit proxy server ručně</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Nejsou žádné změny, které by bylo možné použít.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Zapnout synchronizaci</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Název sdílené složky</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxy server vyžaduje přihlášení</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Došlo k potížím</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizace...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Šifrovat přenos dat pomocí SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Název hubu, IP adresa nebo ID služby Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Zobrazovat u souborů a složek ikony stavu synchronizace</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Obecné možnosti</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Používat v oznamovací oblasti černobílou ikonu</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Máte k dispozici sdílenou složku „%1“. Můžete nastavit její synchronizaci s tímto počítačem.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrola dat...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatické nastavení se nezdařilo. Nastavte připojení ručně.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Dokončování nastavení...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Výběrová synchronizace</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Soubory a složky odpovídající těmto pravidlům se nebudou synchronizovat.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Instalace aktualizace...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Přípony souborů</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Složka na přípojném bodu</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Aktualizace softwaru</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Průběh: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>Zastavit synchronizaci složky „%1“? Soubory v tomto počítači i na hubu zůstanou zachovány.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Sdílenou složku se nepodařilo odebrat ze seznamu.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Tento konfigurační klíč už byl použit. Vyžádejte si od správce nový.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>Nový jazyk se projeví po restartování aplikace.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Disk tohoto počítače je plný. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Načítání seznamu složek...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Opravdu chcete zrušit propojení tohoto počítače s hubem?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Nahrávání...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Výchozí nastavení systému</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] – instalace</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Synchronizace souborů (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Stahování položky „%1“...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Složky k synchronizaci</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Upřesnit nastavení</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximální velikost souboru</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Vyloučené názvy souborů</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Vyloučené soubory</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Místní databáze je poškozená. Zrušte propojení tohoto počítače s hubem a znovu je propojte.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr souborů</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Seznam vyloučení</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Složky, u kterých jste zrušili výběr, budou z tohoto počítače odebrány. Na hubu zůstanou.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Řešení konfliktů</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Složka je přípojným bodem a nelze ji synchronizovat. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Stahování položky „%1“ bylo zrušeno.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Spustit nyní</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>Synchronizace se zastavila, protože disk tohoto počítače je plný.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>Synchronizace se zastavila, protože vaše kvóta úložiště na hubu je vyčerpána.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Propojování...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Oprávnění odepřeno</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Informace o vašem účtu se nepodařilo z hubu načíst.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Připojení není stabilní</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Získat odkaz</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Propojování tohoto počítače s hubem...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Pokus o synchronizaci...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Čtenář</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Upozornění na certifikát</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Pravidla vyloučení</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Pokud synchronizaci této sdílené složky zastavíte, další změny se nebudou přenášet. Místní soubory zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Zapnout šifrování SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Vyberte v tomto počítači složku, kterou chcete synchronizovat s hubem.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>s vámi nyní někdo sdílí.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Nové sdílení</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Stahování dokončeno</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Stahování se nezdařilo</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>Přehled hubu</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Hub na této adrese se změnil. Propojte tento počítač znovu.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>Synchronizace je pozastavena.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>Certifikát SSL hubu není důvěryhodný.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>Probíhá synchronizace.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Klient je pro tento hub příliš starý. Aktualizujte ho.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Tato složka už je součástí úlohy zálohování aplikace Tessaly. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Tato úloha je neaktivní, protože hub není dostupný.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Soubor nelze stáhnout. Zkontrolujte připojení a oprávnění.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>Historie verzí tohoto souboru není k dispozici.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Pro tuto položku nelze vytvořit odkaz.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Pohotovostní režim</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po poklikání na ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>Hub tuto složku indexuje. Počkejte prosím.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Inicializace se nezdařila. Restartujte aplikaci.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Instalační program nemůže nahradit soubory otevřené v jiných aplikacích.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Tisk</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Nechat aplikace otevřené. Potom bude nutné restartovat počítač.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Obnoví chybějící nebo poškozené soubory programu, zástupce a položky registru.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Spustit aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>Aplikace [ProductName] bude chránit a synchronizovat vaše soubory.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Kliknutím na Dokončit instalační program zavřete.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>Jednotka s místní složkou není připojena.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Opravit aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procházet předchozí verze</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Co chcete udělat?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>Aplikace [ProductName] se instaluje do počítače.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Pouze stahování</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Došlo k chybě a aplikace [ProductName] nebyla nainstalována. Všechny změny provedené instalačním programem byly vráceny zpět. Instalační program můžete kdykoli spustit znovu.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorovat</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Informace o tomto počítači a o hubu, se kterým je propojen.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Nainstalovat</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Pomocí tohoto průvodce můžete aplikaci [ProductName] změnit, opravit nebo odebrat. Pokračujte kliknutím na Další, nebo kliknutím na Zrušit instalační program ukončete.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Odebrat aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licenční smlouva</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Následující aplikace mají otevřené soubory, které instalační program aplikace [ProductName] potřebuje nahradit:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Aktivita synchronizace</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Opravit</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalace aplikace [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Místní složka chybí. Možná byla přesunuta, přejmenována nebo odstraněna.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opakovat</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Opravdu chcete zrušit instalaci aplikace [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Než budete pokračovat, přečtěte si smlouvu.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>Zavřít aplikace nyní a po dokončení instalace je znovu otevřít.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Používané soubory</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Zavřete aplikace a klikněte na Opakovat. Pokud kliknete na Ignorovat, bude aplikace [ProductName] kompletní až po příštím restartování počítače.</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Změnit</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Zvolte, které funkce se nainstalují a kam.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>Aplikace [ProductName] se vždy instaluje se všemi funkcemi.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>Změnit aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Nainstalovaný program můžete změnit, opravit nebo odebrat.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Odebere program a jeho nastavení z počítače.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Připraveno k instalaci aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Aplikaci Tessaly lze nyní nainstalovat. Začněte kliknutím na Nainstalovat, nebo klikněte na Zpět a zkontrolujte nastavení.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Instalační program je připraven odebrat program.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Připraveno k odebrání aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Kliknutím na Odebrat odeberete aplikaci [ProductName] z tohoto počítače. Synchronizované soubory zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Instalační program je připraven opravit program.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Připraveno k opravě aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Kliknutím na Opravit začněte, kliknutím na Zpět zvolte jinou akci nebo kliknutím na Zrušit instalační program ukončete.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Instalační program jste ukončili dříve, než byla aplikace [ProductName] nainstalována. V počítači se nic nezměnilo. Instalační program můžete kdykoli spustit znovu.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Tento průvodce nainstaluje do počítače aplikaci [ProductName]. Pokračujte kliknutím na Další, nebo kliknutím na Zrušit instalační program ukončete.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Vítejte v instalaci aplikace [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>Aplikace [ProductName] je nainstalována</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Instalace aplikace [ProductName] byla zrušena</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Propojit s novým hubem</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>Aplikaci [ProductName] se nepodařilo nainstalovat</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Synchronizace zapnuta</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Přidat úlohu</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Souhlasím s licenční smlouvou</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Vaše soubory, aktuální na každém zařízení.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Toto není hub, se kterým byla aplikace %1 propojena. Propojte tento počítač znovu.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Sdílení je pro váš účet vypnuto.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>Úloha „%1“ se zastaví a její připojení k hubu bude odebráno. Soubory na obou stranách zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Otevřít nadřazenou složku</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Adresu souboru se nepodařilo z hubu načíst.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Zvolte v tomto počítači složku, ve které jsou uloženy vaše soubory.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>Hub se změnil</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>Sdílená složka „%1“ není na hubu připojena.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Svazek vzdálené složky není na hubu připojen.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Umístění složky</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Synchronizovat do tohoto počítače</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Nejste přihlášeni jako správce, proto se některé funkce možná nenainstalují. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Synchronizujte, sdílejte a chraňte své soubory</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Sdílení souborů přes Ferrylink je na hubu vypnuto. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Zvolte, jak chcete aplikaci Tessaly nastavit.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Rychlé nastavení</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Položky %1 až %2 z %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>Položka byla odstraněna nebo už k ní nemáte oprávnění k přístupu.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Klikněte pravým tlačítkem na soubor nebo složku a můžete položku sdílet, získat odkaz nebo procházet předchozí verze.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Rozsah dat</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Zastavit synchronizaci této složky</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Před %1 h</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Zvolte složku na hubu a složku v tomto počítači. Jejich obsah se bude průběžně synchronizovat.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Květen</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Tento počítač už je propojen</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Před %1 d</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Před %1 min</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Duben</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Únor</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Srpen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Říjen</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Znovu synchronizovat tuto složku</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Zastavit synchronizaci těchto složek</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Žádná historie k zobrazení</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Znovu synchronizovat tyto složky</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Odeslat do</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Leden</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Právě se synchronizuje</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Září</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Červenec</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Červen</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Březen</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Prosinec</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Pokročilé nastavení</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Tuto zprávu už nezobrazovat</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Začněte synchronizovat v jednom kroku s doporučeným nastavením.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Vaše domovská složka na hubu a nová složka v tomto počítači se nyní průběžně synchronizují.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>Nastavení je dokončeno</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Vložte soubory do synchronizované složky a objeví se na hubu i ve všech vašich dalších počítačích.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Kliknutím na ikonu v oznamovací oblasti zobrazíte stav synchronizace a naposledy změněné soubory.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>Režim nastavení</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Ne, děkuji</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Synchronizujte své soubory</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Sledujte změny</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Najít huby v místní síti</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informace o stavu</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Je k dispozici aktualizace</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Uživatel: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Tento soubor nepatří do žádné úlohy synchronizace.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Otevřít hlavní okno</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Propojit tento počítač s jiným hubem</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Synchronizovat s tímto hubem další složku</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nová úloha synchronizace</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Zvolte složky, směr synchronizace a filtry sami.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Soubory větší než %1 MB se nebudou synchronizovat.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Tuto složku nelze synchronizovat. Zvolte jinou.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Vyhledat huby v místní síti</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>K této sdílené složce máte přístup jen pro čtení. Soubory se budou stahovat, ale ne nahrávat.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Další návody najdete v &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;kurzech&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Tato složka je uvnitř již synchronizované složky nebo je jí nadřazená. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otevřít soubor</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Tento počítač už je propojen s hubem „%1“.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>V tomto umístění se vytvoří složka s názvem „Tessaly“.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Pokud budete pokračovat, stávající propojení bude nahrazeno.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Hub je offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Domovská složka</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Odkaz nelze vytvořit, protože Norvik není na hubu k dispozici.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>Certifikát SSL hubu se změnil. Potvrďte nový certifikát.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Nastavit složky k synchronizaci</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>Směr synchronizace neodpovídá vašim oprávněním ke vzdálené složce.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>IP adresa tohoto počítače je hubem blokována. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Když se soubor změnil na obou stranách:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Vítá vás průvodce nastavením</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Předchozí stránky: %1</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Další stránky: %1</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Rušení propojení...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Příliš mnoho neúspěšných pokusů. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Složku nelze zkontrolovat, protože připojení k hubu se nezdařilo.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>Sdílená složka už na hubu neexistuje.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>Složky synchronizace</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Zachovat naposledy změněnou verzi</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Zvolte, která složka na hubu se má synchronizovat s kterou složkou v tomto počítači.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Sdílená složka</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>žádá o přístup k šabloně Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Složku už používá jiná úloha synchronizace v tomto počítači.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 žádá o přístup k šabloně Bureau „%2“.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Složku nelze zkontrolovat, protože se změnil certifikát SSL hubu.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Zadejte ověřovací kód.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Ověřovací kód není správný. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Zadejte šestimístný ověřovací kód</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Hodiny</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Vaše kvóta úložiště na svazku této složky je vyčerpána.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Složku nelze zkontrolovat, protože certifikát SSL hubu není důvěryhodný.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Složku nelze zkontrolovat kvůli systémové chybě na hubu.</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizace</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Vždy zachovat verzi na hubu</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Přejmenovat konfliktní soubory a zachovat obě verze</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) žádá o přístup k šabloně Bureau „%4“ (%3).</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Obsah obou složek bude sloučen. Žádný soubor nebude odstraněn.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Seznam připojení</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Připojený hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Kopírovat odkaz ke sdílení</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Odebrat oprávnění tohoto uživatele</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Skupina: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Otevřít webový portál aplikace Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Propojený hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Úloha synchronizace souborů, které s vámi sdílejí ostatní</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Karta nedávno změněných souborů</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Kurz, stránka 2: synchronizujte své soubory</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Kurz, stránka 3: sledujte změny</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Kurz, stránka 4: sdílejte s ostatními</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Zvolte oprávnění ke sdílení</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Aplikace Tessaly udržuje soubory ve vašich počítačích a na hubu shodné.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>h</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Otevřít moji složku</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Sdílená složka nenalezena</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Hub vyžaduje dvoufázové ověření. Nastavte ho na webovém portálu a znovu se přihlaste.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Kvóta sdílené složky je vyčerpána.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Některá pole obsahují neplatné hodnoty. Zkontrolujte zvýrazněná pole.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>V některé z úloh došlo k potížím. Podrobnosti najdete v hlavním okně.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Jsou zde uvedeny jen sdílené složky, které byly povoleny v aplikaci Tessaly Server.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>K této složce nemáte oprávnění k přístupu.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Platnost vyprší za</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Žádné dostupné akce</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Uživatelské jméno nebo heslo není správné. Přihlaste se znovu.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Zadejte úplný název souboru, například „desktop.ini“, a stiskněte Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Složka s tímto názvem už existuje. Zvolte jiný název.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Při vyhledávání změn porovnávat všechny atributy souborů</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Platnost do</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Toto pole nesmí být prázdné.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Omezit přístup</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Zobrazovat akce synchronizace v místní nabídce souborů a složek</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Služba domovských složek je na hubu vypnuta. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>Aktualizace se nezdařila. &lt;a href=&quot;%1&quot;&gt;Stáhněte si nejnovější verzi&lt;/a&gt; a nainstalujte ji ručně.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Použít a zkopírovat odkaz</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Omezit počet návštěv</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Platnost od</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>Hub vyžaduje novější verzi klienta. Chcete aktualizovat nyní?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>Vzdálená složka je na svazku, který není připojen.</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>Zobrazit informace</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Přidat název souboru</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Složka v tomto počítači</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Zvolte jazyk</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Seznam stahovaných verzí souborů</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Přizpůsobit dobu platnosti</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Zobrazit kurz aplikace %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Změnit složku synchronizace</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Propojená složka synchronizace</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Načíst historii znovu</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Předchozí měsíc</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Zadejte klíčové slovo k prohledání historie</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Přidat složku</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendář</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Další měsíc</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Zvolte typ události</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Úloha synchronizace „%1“</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Složka na hubu</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Okno nastavení</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Zavřít kurz</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Zrušit toto stahování</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Odebrat toto stahování ze seznamu</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Platnost hesla vypršela. Změňte ho na webovém portálu a znovu se přihlaste.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Přejmenováno v tomto počítači</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Přejmenováno na hubu</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Maximální počet znaků: %1.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Úloha nebyla vytvořena s tímto účtem. Přihlaste se jako „%1“.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Informace o hubu</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Přenosová služba Ferrylink je na hubu vypnuta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>Položku „%1“ se nepodařilo stáhnout. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Přihlášení k hubu se nezdařilo. Zkontrolujte uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Oznámení</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>komentuje položku</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Otevřít na webovém portálu</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Nastavit</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Otevřít synchronizovanou složku</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>K této složce máte přístup jen pro čtení. Aplikace %1 vaše změny nenahraje.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>Aplikace %1 je nyní propojena s hubem a bude vaše soubory synchronizovat.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Instalační program má všechny potřebné informace.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 je připravena.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>Aplikace %1 už je spuštěna.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>Aplikace %1 udržuje soubory ve vašich počítačích a na hubu shodné.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Zobrazit náhled a komentovat</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>Aplikaci %1 se nepodařilo aktualizovat. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>Novější verze aplikace Kelvane Quay Client už je nainstalována. Instalační program se nyní ukončí.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>Certifikát SSL hubu se změnil. Pokud jste to nečekali, obraťte se před pokračováním na správce.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>Zvolte, co má nová úloha synchronizovat</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>Složka patří službě Dropbox. Její synchronizace i pomocí aplikace %1 může způsobit konflikty souborů.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Vaše změny budou ztraceny. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Kurz aplikace %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>ID služby Ferrylink neexistuje nebo na hubu není spuštěna aplikace %1.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Jsou zde uvedeny jen sdílené složky, které byly povoleny v aplikaci %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Spustit aplikaci %1 po přihlášení k tomuto počítači</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 se inicializuje...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>Hub a aplikace %1 spolu nemohou komunikovat. Aktualizujte obojí na nejnovější verzi.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Tato verze aplikace %1 je pro hub příliš stará. Aktualizujte ji.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Neshoda verzí</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Disk je plný. Uvolněte v tomto počítači místo, aby aplikace %1 mohla pokračovat.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>V aplikaci %1 došlo k potížím. Restartujte ji.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Karta oznámení</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>Složka není prázdná. Aplikace %1 sloučí její soubory se soubory na hubu.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Pouze stahovat změny z aplikace %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>Aplikace %1 je nastavena. Otevřete svou složku a začněte pracovat.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Kurz, stránka 1: vítá vás Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Tato verze aplikace Kelvane Quay Client už je nainstalována. Chcete ji nainstalovat znovu?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>Nastavte aplikaci %1 k synchronizaci a zálohování souborů v tomto počítači.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Skoro hotovo! Vaše soubory budou brzy k dispozici v aplikaci Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Skoro hotovo! Vaše soubory budou brzy k dispozici v tomto počítači.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>Operace se nezdařila. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>V tomto umístění se vytvoří složka s názvem „Kelvane Quay“.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Tato verze aplikace Tessaly už je nainstalována. Chcete ji nainstalovat znovu?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>Novější verze aplikace Tessaly už je nainstalována. Instalační program se nyní ukončí.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>Kurz aplikace Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Týdny</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>Složka patří službě Dropbox. Její synchronizace i pomocí aplikace Tessaly může způsobit konflikty souborů.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly je připravena.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>Tessaly se inicializuje...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>ID služby Ferrylink neexistuje nebo na hubu není spuštěna aplikace Tessaly Server.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Tato verze aplikace Tessaly je pro hub příliš stará. Aktualizujte ji.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>Oprávnění ke sdílení</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Aplikace Tessaly Server na hubu je pro tohoto klienta příliš stará. Požádejte správce o její aktualizaci.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Zobrazit kurz aplikace Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>Spustit aplikaci Tessaly po přihlášení k tomuto počítači</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>V aplikaci Tessaly došlo k potížím. Restartujte ji.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Nastavení je dokončeno. Vaše soubory se nyní synchronizují.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>Kliknutím na ikonu v oznamovací oblasti můžete kdykoli zobrazit stav a změnit nastavení.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>Složka není prázdná. Aplikace Tessaly sloučí její soubory se soubory na hubu.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Aplikace Tessaly už je spuštěna.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Aplikace Tessaly je nastavena. Otevřete svou složku a začněte pracovat.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>K této složce máte přístup jen pro čtení. Aplikace Tessaly vaše změny nenahraje.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Otevřít aplikaci Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>K dispozici je verze %1. Klikněte sem a aktualizujte.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Chcete-li používat výběrovou synchronizaci, požádejte správce o aktualizaci aplikace Tessaly Server na hubu.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Na tomto disku není dost místa. Aplikace Tessaly potřebuje alespoň %1 MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Aplikace Tessaly je nyní propojena s hubem a bude vaše soubory synchronizovat.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Aplikaci Tessaly lze s týmž hubem pod stejným účtem propojit jen jednou.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Nastavte aplikaci Tessaly k synchronizaci souborů v tomto počítači.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>S aplikací Tessaly začínáte? Přečtěte si nejdřív &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;stručnou příručku&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Může komentovat</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Uživatelé hubu s odkazem mohou zobrazovat</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Uživatelé hubu s odkazem mohou upravovat</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Odkaz mohou otevřít jen pozvaní lidé</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Komentovat může každý, kdo má odkaz</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Zobrazovat může každý, kdo má odkaz</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Uživatelé hubu s odkazem mohou komentovat</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Upravovat může každý, kdo má odkaz</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Může zobrazovat</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Může spravovat</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Může upravovat</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Webový portál nelze otevřít. Zkontrolujte připojení k hubu.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Pozvat lidi</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Bez přístupu</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Nejsou zde žádné sdílené složky.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Stáhnout</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Veřejné sdílení je na hubu vypnuto.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Sdílení je vypnuto. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) žádá o přístup k tabulce Grida „%4“ (%3).</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Lidé, kteří mají odkaz, už nebudou moci soubor otevřít.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 s vámi sdílí tabulku Grida „%2“.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Žádná data</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Sdílet</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Soubor nebo složka neexistuje.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>K této akci nemáte oprávnění.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>Víkendy</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Uživatelé hubu</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Jen pozvaní lidé</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Každý, kdo má odkaz</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Nastavit datum vypršení platnosti</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Uživatelé a skupiny</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Zobrazovat synchronizované složky na bočním panelu správce souborů</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Pracujte v synchronizované složce jako v každé jiné. Vaše změny se ihned přenášejí na hub.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Váš počítač</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Všechny vaše soubory, všude</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Ušetřete místo díky synchronizaci na vyžádání</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Všechny soubory se v počítači zobrazují, ale místo zabírají až po otevření.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Jen online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>K dispozici v tomto počítači</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>zmiňuje vás v položce</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>žádá o přístup k položce</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 s vámi sdílí soubor „%2“.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>s vámi sdílí</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Sdílení</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Žádost o přístup</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentáře</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Sdíleno se mnou</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Zmínky</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Pouze nahrávání</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Ponechat soubory na hubu, když se odstraní z tohoto počítače</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Později</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Stahování dokončeno: „%1“.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Vaše soubory jsou aktuální na všech vašich zařízeních.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>Soubory máte k dispozici i na &lt;a href=&quot;%1&quot;&gt;webovém portálu&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Blahopřejeme!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Můžete začít pracovat s aplikací Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>Zapnout později</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Zapnout nyní</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Soubory sdílené s vámi</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Vytvořit úlohu synchronizace</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Moje soubory a týmové složky</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Soubory sdílené se mnou</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Toto není hub, se kterým byla aplikace Tessaly propojena. Propojte tento počítač znovu.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Hub a aplikace Tessaly spolu nemohou komunikovat. Aktualizujte obojí na nejnovější verzi.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Už vám neunikne žádná změna</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Disk je plný. Uvolněte v tomto počítači místo, aby aplikace Tessaly mohla pokračovat.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Týmová složka</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Pouze stahovat změny z aplikace Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Aplikaci Tessaly se nepodařilo aktualizovat. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>Ikona v oznamovací oblasti ukazuje, co se synchronizuje, a upozorní vás, když s vámi ostatní sdílejí soubory nebo je komentují.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>Sdílejte během několika sekund</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Klikněte pravým tlačítkem na soubor nebo složku, vytvořte odkaz a určete, kdo ho může otevřít a jak dlouho.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) žádá o přístup k prezentaci Pictra „%4“ (%3).</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 s vámi sdílí složku „%2“.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) žádá o přístup ke složce „%4“ (%3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) žádá o přístup k souboru „%4“ (%3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) žádá o přístup k dokumentu Folia „%4“ (%3).</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 s vámi sdílí dokument Folia „%2“.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 s vámi sdílí prezentaci Pictra „%2“.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Nastavení soukromí</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Chránit heslem</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Pracovní dny</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Pro soubory, které s vámi sdílejí ostatní, se vytvoří složka s názvem „%1“.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Vždy zachovat v tomto počítači</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Libovolný</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Úloha synchronizace</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Soubory se zálohují, jakmile se změní.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Soubory se zálohují v časech, které nastavíte.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>Zálohování je dokončeno. Počítač se vypne za %1 s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Úloha zálohování</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Spouštět v následující dny</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Připojit k hubu</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Chraňte soubory v tomto počítači jejich zálohováním na hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Ruční: zálohování proběhne, jen když ho spustíte.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Čas zahájení</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Četnost</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Čas posledního dokončení</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Čas posledního spuštění</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Komentující</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Změnit, kdo může tento odkaz otevřít</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Poslední nahrání: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Nastavení úlohy</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Průběžné: soubory se zálohují při každé změně.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Otevřít ve správci souborů</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Čas spadá do následujícího dne.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Informace o sdílení se nepodařilo načíst.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Cíl zálohování</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Soubory se zálohují, když kliknete na Zálohovat nyní.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Povolit stahování</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Plánované: zálohování probíhá v časech, které nastavíte.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Plán zálohování</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Manažer</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Pouze náhled</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Vytvořit úlohu zálohování</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Soubory, jejichž názvy nebo přípony jsou zde uvedeny, budou přeskočeny.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synchronizovat dočasné soubory</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Kopírujte soubory z tohoto počítače na hub, ihned nebo podle plánu.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Zvolte, kdy se mají soubory zálohovat.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Vyberte alespoň jednu složku k zálohování.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>Zálohované soubory: %1 (%2), cíl: „%3“, datum: %4</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Začít zálohovat</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Soubory a složky odpovídající těmto pravidlům se nebudou zálohovat.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Není vybrána žádná složka</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Uvolnit místo</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Nezachovávat v tomto počítači</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Vybrané dny</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Po dokončení zálohování</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Vyberte složku v počítači „%1“.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Vyberte složku na hubu.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Jednou za</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Přeskočit soubory a složky, jejichž názvy začínají tečkou</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>Začít synchronizovat</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>Zálohování se zastavilo, protože certifikát SSL hubu se nepodařilo ověřit.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Úlohu se na hubu nepodařilo zaregistrovat. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>Zálohování se zastavilo, protože hub na této adrese se změnil.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>Zálohování se zastavilo, protože hub a klient spolu nemohou komunikovat. Aktualizujte obojí.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Zálohování se zastavilo, protože tato verze aplikace Tessaly je pro hub příliš stará.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>Aktualizujte aplikaci Tessaly na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Zkontrolujte uživatelské jméno a heslo a potom se znovu přihlaste.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Zkontrolujte, zda je hub zapnutý a tento počítač připojený k síti.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>Hub zablokoval IP adresu tohoto počítače. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>Certifikát SSL hubu není platný. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Požádejte správce o aktualizaci aplikace Tessaly Server na hubu.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Dosud nezálohováno</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Udržujte složku v tomto počítači a složku na hubu shodné.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Další informace&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Zvolte dny a časy, kdy má zálohování probíhat.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Zmeškané zálohování spustit co nejdříve</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>Na každé straně zvolte složku.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Zadejte adresu hubu a svůj účet.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Zkontrolujte nastavení nové úlohy.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Cesta</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Zálohování se zastavilo, protože přihlášení k hubu se nezdařilo.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>Verze balíčku na hubu není podporována. Požádejte správce o jeho aktualizaci.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>Zálohování se zastavilo, protože hub zablokoval IP adresu tohoto počítače.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>Zálohování se zastavilo, protože balíček na hubu je pro tohoto klienta příliš starý.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>Některé vybrané složky už neexistují. Chcete-li pokračovat, zrušte jejich výběr.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Neshoda směru synchronizace</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Aplikaci Kelvane Quay Client lze nyní nainstalovat. Začněte kliknutím na Nainstalovat, nebo klikněte na Zpět a zkontrolujte nastavení.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>Zvolte typ úlohy</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Pracujte se stejnými soubory ve všech svých počítačích.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Uchovávejte bezpečnou kopii svých souborů na hubu.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Přihlaste se k hubu, na který se budou ukládat vaše zálohy.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>Nastavte složky synchronizace</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Uvolněte místo na disku tohoto počítače.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Zvolte na hubu složku, kterou chcete synchronizovat.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Soubory se stahují, až když je otevřete, což šetří místo v tomto počítači.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>Synchronizace na vyžádání není pro vybranou složku nebo operační systém tohoto počítače dostupná.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>Sdílená složka není připojena</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Pouze nahrávat změny do aplikace %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Synchronizovat soubory, které se mnou sdílejí ostatní</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Zálohovat dočasné soubory</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Soubory, které s vámi sdílejí ostatní, se v tomto počítači zobrazí ve vlastní složce.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Webový portál</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Kvóta úložiště je vyčerpána</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Domovská složka je vypnuta</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Čt</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <translation>Místní složka nenalezena</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Úlohu se nepodařilo spustit. Restartujte aplikaci.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>Sdílená složka této úlohy není na hubu připojena. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Ke sdílené složce této úlohy už nemáte oprávnění k přístupu.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>Jednotka není připojena</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Skoro hotovo! Vaše soubory budou brzy k dispozici v aplikaci %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Zadáním 0 limit vypnete.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Pá</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Role</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Út</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>St</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Pátek</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pondělí</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Neděle</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Čtvrtek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Úterý</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Středa</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Nesouhlasím s licenční smlouvou</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk je plný</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Inicializace se nezdařila</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Místní složka mohla být přesunuta, přejmenována nebo odstraněna.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Kvóta sdílené složky je vyčerpána</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Kvóta sdílené složky je vyčerpána. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Vzdálená složka nenalezena</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Vzdálená složka mohla být přesunuta, přejmenována nebo odstraněna.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Oprávnění odkazu</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Příští zálohování: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plán zálohování</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Odkaz ke sdílení</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Sdílet odkaz</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Úlohy zálohování vyžadují na hubu aplikaci %1 verze %2 nebo novější. Nainstalovaná verze je %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Tento počítač už je s tímto hubem pod stejným účtem propojen.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Načítání sdílených složek...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Změny na síťových jednotkách nelze zjistit ihned. Synchronizují se se zpožděním.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Vítá vás Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Nastavení změníte kliknutím na ikonu aplikace Tessaly v oznamovací oblasti.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>Nastavení změníte kliknutím na ikonu aplikace %1 v oznamovací oblasti.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>Synchronizace se zastavila, protože svazek hubu je plný.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Balíček na hubu je pro tohoto klienta příliš starý.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>Propojování s hubem...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Všechny soubory jsou aktuální.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Zobrazit náhled</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Odkaz na složku</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Datum vypršení platnosti</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Můžete začít pracovat s aplikací %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Nahrát</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Aktualizujte aplikaci %1 na verzi %2 nebo novější.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Zvolte soubory, které bude nová úloha synchronizovat.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Otevřít webový portál aplikace %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>Zálohování se zastavilo, protože tato verze aplikace %1 je pro hub příliš stará.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Požádejte správce o aktualizaci aplikace %1 na hubu.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>V tomto umístění se vytvoří složka s názvem „%1“.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Složku „%1“ se v tomto počítači nepodařilo vytvořit.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Mějte přehled o všech svých souborech, aniž by zaplnily disk. Každý soubor se stáhne, až ho otevřete.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Otevřít webový portál Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Novější verze aplikace Tessaly už je nainstalována. Před instalací aplikace Kelvane Quay Client ji odeberte.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Kurz, stránka 1: vítá vás %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Typ úlohy</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Funkce synchronizace a zálohování aplikace Kelvane Quay Client lze nyní nainstalovat. Začněte kliknutím na Nainstalovat, nebo klikněte na Zpět a zkontrolujte nastavení.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Zapnout synchronizaci na vyžádání</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Složka synchronizace na vyžádání „%1“ chybí. Nastavte úlohu znovu.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchronizace na vyžádání</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Zkuste synchronizaci na vyžádání</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Komentovat</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Svazek hubu je plný. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Zadejte platné datum.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>Čas ukončení musí být pozdější než čas zahájení.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>Zadejte název nebo příponu souboru, například „*.tmp“</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Role a oprávnění</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Místo uvolněno</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Zpřístupněno v tomto počítači</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Synchronizace na vyžádání vyžaduje složku na jednotce NTFS, která není síťová ani vyměnitelná.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Ponechte soubory online, dokud je nebudete potřebovat. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Jak funguje synchronizace na vyžádání&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Na tomto disku není dost místa. Aplikace %1 potřebuje alespoň %2 MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Synchronizujte svou domovskou složku a týmové složky, ke kterým máte přístup.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Pokud tuto možnost vypnete, složka se soubory, které s vámi sdílejí ostatní, bude z tohoto počítače odebrána. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Synchronizujte soubory, které s vámi sdílejí ostatní, a otevírejte je jako své vlastní.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Zapnout pro tuto úlohu synchronizaci na vyžádání</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>Zálohování se zastavilo, protože váš účet nemá povoleno používat balíček na hubu.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Synchronizujte soubory a složky, které s vámi sdílejí ostatní uživatelé.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Disk se zaplňuje. Zapněte synchronizaci na vyžádání a uvolněte místo.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Vše, co s vámi sdílejí ostatní, v jedné složce</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Požádejte správce o oprávnění k používání balíčku.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Tento klient vyžaduje na hubu aplikaci %1 verze %2 nebo novější. Požádejte správce o aktualizaci.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Nemáte oprávnění k používání balíčku na hubu. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>Cíl už používá jiná úloha zálohování. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>Aplikace %1 nemůže komunikovat s balíčkem na hubu. Aktualizujte obojí na nejnovější verzi.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Odkaz můžete otevřít jen vy</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Aplikace Tessaly udržuje vaše soubory shodné ve všech počítačích a chrání je na hubu.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Sdílejte soubor pomocí odkazu. Sami určíte, kdo ho může zobrazit nebo upravovat.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Zahájit prohlídku</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>S aplikací %1 začínáte? Přečtěte si nejdřív &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;stručnou příručku&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Zadejte své uživatelské jméno.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Všechny soubory této úlohy se stáhnou do tohoto počítače. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Vítá vás Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Sdílejte s ostatními</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>V historii zjistíte, kdo soubor změnil a kdy.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Udržujte soubory ve všech svých počítačích shodné díky synchronizaci s hubem.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>Zpracovává se %1 soubor</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>Aplikace %1 a klient mají různé verze. Aktualizujte obojí na stejnou verzi.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Zpracovávané soubory: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>Zpracovávané soubory: %1</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Svazek této složky nepodporuje kvóty.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Vaše osobní kvóta úložiště je vyčerpána.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>Vaše domovská složka využívá %1 z %2 a sdílené složky %3 z %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>Kvóta sdílené složky „%1“ je vyčerpána.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Některé složky dosáhly své kvóty.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Verzi nelze obnovit, protože soubor je vyloučen filtrem.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Zvolte složky k zálohování a místo, kam se mají zálohy ukládat.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>Zvolte, co se má zálohovat</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Zálohování se zastavilo, protože váš účet byl na hubu zakázán.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizace...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Požádejte správce o povolení svého účtu.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Váš účet byl na hubu zakázán. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>Účet zakázán</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Zobrazovat ikony u souborů vyloučených filtrem</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Úložiště</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogové okno</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Všechny úlohy s tímto hubem budou z tohoto počítače odebrány. Soubory zůstanou zachovány. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Zálohování se nezdařilo. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Úlohu se nepodařilo vytvořit. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>Ke sdílené složce „%1“ už nemáte oprávnění k přístupu.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Zpracovává se „%1“...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dny</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Úlohu se nepodařilo načíst.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operace</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Složka „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>Vypnout počítač</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Nemáte oprávnění k automatickému vypnutí tohoto počítače.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Zálohování bylo zrušeno.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Zálohování je dokončeno.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>Zálohovat %1krát denně</translation>
    </message>
    <message>
        <source>times</source>
        <translation>krát</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Režim zálohování</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Chcete spustit zálohování nyní?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Pokud je tento počítač v naplánovanou dobu vypnutý nebo v režimu spánku, zálohování začne, jakmile bude znovu v provozu.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Vyberte alespoň jeden den v týdnu.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Poslední zálohování: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Každý den</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Ruční zálohování</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Jednou denně</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Průběžné zálohování</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Plánované zálohování</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Nastavte plán zálohování</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Vytváření snímku...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Plán zálohování se nepodařilo uložit. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Zadejte velikost od 0 do %1 MB. Zadáním 0 limit vypnete.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Připojení</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Zobrazit aktivitu této úlohy</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Zobrazit odebrané položky</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Využito</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Měsíce</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Využito %1 z %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Úloha na pozadí</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Okno nastavení filtru</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Zadejte platný čas.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Nesynchronizováno: vyloučeno systémovým pravidlem</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportovat</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Teď ne</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Úlohy zálohování</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Úlohy synchronizace</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Nedávno změněné</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Zálohovat nyní</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Rovno</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menší než</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Větší než</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Vyberte složku v tomto počítači</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Tato složka už je součástí úlohy zálohování aplikace %1. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Tuto složku už synchronizuje aplikace Kelvane Quay Client a nelze ji současně zálohovat. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP adresa</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>odpovídá na váš komentář k položce</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Otevřít stav synchronizace</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Odpovědi</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Nesynchronizováno</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Aplikace Tessaly Server na hubu je pro aplikaci %1 příliš stará. Požádejte správce o její aktualizaci.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Žádné připojení k hubu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Pokročilé sdílení</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Nastavení sdílení se nepodařilo uložit. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Zapnout pokročilé sdílení</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Zapnout ochranu odkazu</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>má nyní pokročilé nastavení sdílení.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Chráněné sdílení</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Ochrana odkazu</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Opravdu chcete odkaz odebrat? Nelze ho obnovit.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Odebrat tento odkaz?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Uložte protokoly klienta do souboru, který můžete odeslat technické podpoře.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Zadejte klíčové slovo</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Odebrat odkaz</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Řešení potíží</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Do protokolů se bude zaznamenávat více podrobností, které technické podpoře pomohou najít příčinu potíží.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Exportovat protokoly</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Soubor odstraněn</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Exportovaný soubor obsahuje:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Informace o operačním systému tohoto počítače</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Podrobné protokolování</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Podrobné protokoly zabírají více místa na disku a mohou klienta zpomalit.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Prohlášení o ochraně soukromí</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Protokoly a nastavení klienta, bez hesel</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Zapnout podrobné protokolování</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Nesynchronizováno: vyloučeno filtrem úlohy</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Nesynchronizováno: chybí oprávnění</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Podmínky služby</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Zadejte velikost menší než %1 MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Tato složka už je součástí jiné úlohy zálohování. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>Úloha se zastavila kvůli neočekávané chybě. Restartujte aplikaci.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Tento soubor nemá žádné předchozí verze.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Synchronizaci na vyžádání se pro tuto úlohu nepodařilo zapnout.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Připojení k hubu se nezdařilo. Zkontrolujte adresu a síť.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>Soubor přidán</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Název nesmí začínat ani končit mezerou.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>Zálohování se zastavilo, protože se změnil certifikát SSL hubu.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>Platnost certifikátu SSL hubu vypršela. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>Hub nyní může indexovat celou vaši domovskou složku.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Nyní můžete s tímto počítačem synchronizovat celou domovskou složku.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Uzamčeno</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik je vypnutý</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>Hub připravuje vaši domovskou složku. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Soubor přejmenován</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>Soubor „%1“ byl aktualizován</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>Název nesmí obsahovat žádný z následujících znaků: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik je na hubu vypnutý. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Váš účet byl na hubu zakázán, proto složku nelze zkontrolovat.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Úloha s tímto názvem už existuje.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Žádnou z vybraných složek nelze použít. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>Žádné platné složky</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Soubory zůstávají na hubu, dokud je neotevřete. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Další informace o synchronizaci na vyžádání&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Vlastní název úlohy</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Podle názvu úlohy snadno rozlišíte. Zobrazuje se jen v tomto počítači.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>Synchronizaci na vyžádání můžete zapnout nebo vypnout v nastavení úlohy.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Toto pole je povinné.</translation>
    </message>
</context>
</TS>
