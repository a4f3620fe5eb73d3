<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Kapcsolódás a Ferrylink szolgáltatással</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Fájlütközés történt. A fájl új neve: %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Az érték érvénytelen. Ellenőrizze, majd próbálja újra.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>A hálózat nem érhető el. Ellenőrizze a kapcsolatot, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Helyi mappa</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Újratársítás</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>A felhasználónév és a jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Sikeres kapcsolódás</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>A program egyesíti a két mappa fájljait. Folytatja?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Indítás...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>A befejezés előtt tekintse át a következő beállításokat.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>A felhasználónév vagy a jelszó hibás.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Mappa módosítása</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Ferrylink-azonosító</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nemrég frissített fájlok</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Letöltve</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kezdés</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Változások keresése...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>A hubbal való kapcsolat megszakadt. Újrakapcsolódás...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Testreszabás</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>A bejelentkezés sikertelen</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>A kapcsolat típusának felismerése...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Ferrylink-közvetítés</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>A Ferrylink szolgáltatás nem válaszol. Próbálja újra később.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 fájl frissítve</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Ehhez a mappához csak olvasási jogosultsága van. Az ezen a számítógépen végzett módosításokat a program nem tölti fel.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>A hubon lévő tárhelykvótája betelt. Szabadítson fel helyet, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Kapcsolat típusa</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Csak olvasható mappa</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>A helyi mappa módosítása</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>A hub SSL-tanúsítványát nem sikerült ellenőrizni.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Proxykiszolgáló nélkül</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Mappa kiválasztása</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Nem sikerült kapcsolódni a Ferrylink vezérlőkiszolgálójához. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>A módosításokat nem mentette. Elhagyja ezt az oldalt?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>A tárhely megtelt</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>A megosztott mappa szinkronizálását nem sikerült bekapcsolni.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Ez a mappa átfedésben van egy már szinkronizált mappával. Válasszon másikat.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>Legfeljebb %1 megosztott mappa szinkronizálható.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>A beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Adjon meg egy 1 és 65535 közötti portszámot.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Adja meg a proxykiszolgáló címét és portját.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>A proxykiszolgáló kézi beállítása</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Nincs alkalmazandó módosítás.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Szinkronizálás bekapcsolása</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Megosztott mappa neve</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>A proxykiszolgáló bejelentkezést igényel</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Hiba történt</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Frissítés...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Az adatátvitel titkosítása SSL-lel</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>A hub neve, IP-címe vagy Ferrylink-azonosítója</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>A szinkronállapot ikonjainak megjelenítése a fájlokon és mappákon</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Általános beállítások</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Fekete-fehér ikon használata a tálcán</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Elérhetővé vált az Ön számára a következő megosztott mappa: „%1”. Beállíthatja a szinkronizálását ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Az adatok ellenőrzése...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Az automatikus beállítás sikertelen. Állítsa be a kapcsolatot kézzel.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>A beállítás befejezése...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Az ezeknek a szabályoknak megfelelő fájlokat és mappákat a program nem szinkronizálja.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>A frissítés telepítése...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Fájlkiterjesztések</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Csatolási ponton lévő mappa</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Szoftverfrissítés</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Előrehaladás: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>Leállítja a(z) „%1” mappa szinkronizálását? A számítógépen és a hubon lévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>A megosztott mappát nem sikerült eltávolítani a listáról.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Ezt a beállítási kulcsot már felhasználták. Kérjen újat a rendszergazdától.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>Az új nyelv az alkalmazás újraindítása után lép érvénybe.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>A számítógép lemeze megtelt. Szabadítson fel helyet, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>A mappalista betöltése...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Biztosan leválasztja ezt a számítógépet a hubról?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappanév</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>A [ProductName] telepítője</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>%1 fájl szinkronizálása...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>„%1” letöltése...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Szinkronizálandó mappák</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Legnagyobb fájlméret</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Kizárt fájlnevek</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Kizárt fájlok</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>A helyi adatbázis megsérült. Válassza le ezt a számítógépet a hubról, majd társítsa ismét.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Fájlszűrő</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Kizárási lista</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Azokat a mappákat, amelyek jelölését törölte, a program eltávolítja erről a számítógépről. A hubon megmaradnak.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Ütközések kezelése</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>A mappa csatolási pont, ezért nem szinkronizálható. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>„%1” letöltése megszakítva.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>A szinkronizálás leállt, mert megtelt a számítógép lemeze.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>A szinkronizálás leállt, mert betelt a hubon lévő tárhelykvótája.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Társítás...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Nincs jogosultság</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>A fiókadatokat nem sikerült lekérni a hubról.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Számítógép neve</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A kapcsolat nem stabil</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hivatkozás kérése</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>A számítógép társítása a hubbal...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Szinkronizálási kísérlet...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Megtekintő</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Tanúsítványfigyelmeztetés</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Kizárási szabályok</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Kikapcsolva</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Bekapcsolva</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Ha leállítja ennek a megosztott mappának a szinkronizálását, a későbbi módosításokat a program nem viszi át. A helyi fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>SSL-titkosítás bekapcsolása</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Válassza ki a számítógépnek azt a mappáját, amelyet szinkronizálni szeretne a hubbal.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>meg lett osztva Önnel.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Új megosztás</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>A letöltés befejeződött</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>A letöltés sikertelen</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>A hub áttekintése</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Az ezen a címen lévő hub megváltozott. Társítsa ismét ezt a számítógépet.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>A szinkronizálás szünetel.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>A hub SSL-tanúsítványa nem megbízható.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>A szinkronizálás folyamatban van.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Az ügyfélprogram túl régi a hubhoz. Frissítse az ügyfélprogramot.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Ez a mappa már része a Tessaly egyik mentési feladatának. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Ez a feladat inaktív, mert a hub nem érhető el.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>A fájl nem tölthető le. Ellenőrizze a kapcsolatot és a jogosultságait.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>A fájl verzióelőzményei nem érhetők el.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Ehhez az elemhez nem hozható létre hivatkozás.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Művelet a tálcaikonra való dupla kattintáskor</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>A hub indexeli ezt a mappát. Kis türelmet.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Az inicializálás sikertelen. Indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>A telepítő nem tudja lecserélni a más alkalmazásokban megnyitott fájlokat.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Nyomtatás</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Az alkalmazások nyitva hagyása. A telepítés után újra kell indítani a számítógépet.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Helyreállítja a hiányzó vagy sérült programfájlokat, parancsikonokat és beállításjegyzékbeli bejegyzéseket.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>A [ProductName] indítása</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>A [ProductName] gondoskodik fájljai biztonságáról és szinkronizálásáról.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>A telepítő bezárásához kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>A helyi mappát tartalmazó meghajtó nincs csatlakoztatva.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>A [ProductName] javítása</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Korábbi verziók tallózása</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Mit szeretne tenni?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>A [ProductName] telepítése folyamatban van a számítógépen.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Hiba történt, ezért a [ProductName] nem lett telepítve. A telepítő minden módosítását visszavonta. A telepítőt bármikor újra futtathatja.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Kihagyás</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Információk erről a számítógépről és a vele társított hubról.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Telepítés</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Ezzel a varázslóval módosíthatja, javíthatja vagy eltávolíthatja a [ProductName] programot. A folytatáshoz kattintson a Tovább, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>A [ProductName] eltávolítása</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licencszerződés</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Az alábbi alkalmazások olyan fájlokat tartanak nyitva, amelyeket a [ProductName] telepítőjének le kell cserélnie:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Szinkrontevékenység</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Javítás</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>A [ProductName] telepítése</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>A helyi mappa hiányzik. Lehet, hogy áthelyezték, átnevezték vagy törölték.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Biztosan megszakítja a [ProductName] telepítését?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>A folytatás előtt olvassa el a szerződést.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>Az alkalmazások bezárása most és újbóli megnyitása a telepítés végén.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Zárja be az alkalmazásokat, majd kattintson az Újra gombra. Ha a Kihagyás gombra kattint, a [ProductName] telepítése csak a számítógép következő újraindításával lesz teljes.</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Módosítás</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Megadhatja, hogy mely szolgáltatások legyenek telepítve és hová.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>A [ProductName] mindig az összes szolgáltatásával együtt települ.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>A [ProductName] módosítása</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Módosíthatja, javíthatja vagy eltávolíthatja a telepített programot.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Eltávolítja a programot és beállításait a számítógépről.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Ez több percig is eltarthat.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>A [ProductName] telepítésre kész</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>A Tessaly most telepíthető. Az indításhoz kattintson a Telepítés, a beállítások ellenőrzéséhez a Vissza gombra.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>A telepítő a program eltávolítására készül.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>A [ProductName] eltávolításra kész</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Kattintson az Eltávolítás gombra a [ProductName] eltávolításához erről a számítógépről. A szinkronizált fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>A telepítő a program javítására készül.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>A [ProductName] javításra kész</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Az indításhoz kattintson a Javítás, másik művelet választásához a Vissza, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>A [ProductName] telepítése előtt kilépett a telepítőből. A számítógépen semmi sem változott. A telepítőt bármikor újra futtathatja.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Ez a varázsló telepíti a [ProductName] programot a számítógépre. A folytatáshoz kattintson a Tovább, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Kezdő dátum</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Üdvözli a [ProductName] telepítője</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>A [ProductName] telepítése kész</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>A [ProductName] telepítése megszakítva</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Társítás új hubbal</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>A [ProductName] telepítése nem sikerült</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>A szinkronizálás bekapcsolva</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Feladat hozzáadása</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Elfogadom a licencszerződést</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappák</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Fájljai minden eszközén naprakészek.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>A %1 nem ezzel a hubbal lett társítva. Társítsa ismét ezt a számítógépet.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Az Ön fiókjában a megosztás ki van kapcsolva.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>A(z) „%1” feladat leáll, és a hubbal való kapcsolata törlődik. A fájlok mindkét oldalon megmaradnak.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Tartalmazó mappa megnyitása</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>A fájl címét nem sikerült lekérni a hubról.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Válassza ki a számítógépnek azt a mappáját, amelyben a fájljait tárolja.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>A hub megváltozott</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>A(z) „%1” megosztott mappa nincs csatolva a hubon.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>A távoli mappa kötete nincs csatolva a hubon.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Mappa helye</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Szinkronizálás ezzel a számítógéppel</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Nem rendszergazdaként jelentkezett be, ezért előfordulhat, hogy egyes szolgáltatások nem települnek. Folytatja?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Szinkronizálja, ossza meg és védje fájljait</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>A Ferrylinken keresztüli fájlmegosztás ki van kapcsolva a hubon. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Válassza ki, hogyan szeretné beállítani a Tessaly alkalmazást.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Gyors beállítás</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>%1–%2. elem, összesen: %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>Az elemet törölték, vagy Önnek már nincs jogosultsága a hozzáféréshez.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Kattintson a jobb gombbal egy fájlra vagy mappára a megosztásához, hivatkozás kéréséhez vagy korábbi verzióinak tallózásához.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Mappa szinkronizálásának leállítása</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 órával ezelőtt</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Válasszon egy mappát a hubon és egyet ezen a számítógépen. A tartalmuk mindig azonos lesz.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>május</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Ez a számítógép már társítva van</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 nappal ezelőtt</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 perccel ezelőtt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónap</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Záró dátum</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt hét</translation>
    </message>
    <message>
        <source>April</source>
        <translation>április</translation>
    </message>
    <message>
        <source>February</source>
        <translation>február</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusztus</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>October</source>
        <translation>október</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Mappa szinkronizálása ismét</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Mappák szinkronizálásának leállítása</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Nincsenek megjeleníthető előzmények</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Mappák szinkronizálása ismét</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Küldés ide</translation>
    </message>
    <message>
        <source>January</source>
        <translation>január</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Szinkronizálás alatt</translation>
    </message>
    <message>
        <source>September</source>
        <translation>szeptember</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>July</source>
        <translation>július</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>June</source>
        <translation>június</translation>
    </message>
    <message>
        <source>March</source>
        <translation>március</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Speciális beállítás</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Indítsa el a szinkronizálást egy lépésben, az ajánlott beállításokkal.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>A hubon lévő saját mappája és a számítógép új mappája mostantól mindig azonos tartalmú.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>A beállítás befejeződött</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Helyezze a fájlokat a szinkronizált mappába, és megjelennek a hubon és az összes többi számítógépén.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>A tálcaikonra kattintva láthatja a szinkronizálás állapotát és a legutóbb módosított fájlokat.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>Beállítási mód</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Köszönöm, nem</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Fájlok szinkronizálása</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Változások követése</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Hubok keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Állapotinformációk</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Frissítés érhető el</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Felhasználó: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Ez a fájl egyik szinkronfeladathoz sem tartozik.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Főablak megnyitása</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>A számítógép társítása másik hubbal</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>További mappa szinkronizálása ezzel a hubbal</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Új szinkronfeladat</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Válassza meg Ön a mappákat, a szinkronizálás irányát és a szűrőket.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>A(z) %1 MB-nál nagyobb fájlokat a program nem szinkronizálja.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Ez a mappa nem szinkronizálható. Válasszon másikat.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Hubok keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Ehhez a megosztott mappához csak olvasási jogosultsága van. A program letölti a fájlokat, de nem tölti fel őket.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>További útmutatók az &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;oktatóanyagok&lt;/a&gt; között találhatók.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Ez a mappa egy már szinkronizált mappa alatt vagy felett van. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Fájl megnyitása</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Ez a számítógép már társítva van a következő hubbal: „%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>Ezen a helyen létrejön egy „Tessaly” nevű mappa.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Ha folytatja, a program lecseréli a meglévő társítást.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>A hub offline állapotú.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Saját mappa</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Nem hozható létre hivatkozás, mert a Norvik nem érhető el a hubon.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>A hub SSL-tanúsítványa megváltozott. Erősítse meg az új tanúsítványt.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>A szinkronizálandó mappák megadása</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>A szinkronizálás iránya nem felel meg a távoli mappára vonatkozó jogosultságainak.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>A hub letiltotta a számítógép IP-címét. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Ha egy fájl mindkét oldalon módosult:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Üdvözli a beállítási varázsló</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Túl sok sikertelen kísérlet. Próbálja újra később.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>A mappa nem ellenőrizhető, mert nem sikerült kapcsolódni a hubhoz.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>A megosztott mappa már nem létezik a hubon.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>Szinkronizált mappák</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>A legutóbb módosított verzió megtartása</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Válassza ki, hogy a hub melyik mappája szinkronizálódjon a számítógép melyik mappájával.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Megosztott mappa</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>hozzáférést kért a következő Bureau-sablonhoz:</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>A mappát már használja egy másik szinkronfeladat ezen a számítógépen.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 hozzáférést kért a következő Bureau-sablonhoz: „%2”.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>A mappa nem ellenőrizhető, mert a hub SSL-tanúsítványa megváltozott.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Adja meg az ellenőrző kódot.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Az ellenőrző kód hibás. Próbálja újra.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Adja meg a 6 számjegyű ellenőrző kódot</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Óra</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Betelt a mappa kötetén lévő tárhelykvótája.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>A mappa nem ellenőrizhető, mert a hub SSL-tanúsítványa nem megbízható.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>A mappa nem ellenőrizhető, mert rendszerhiba történt a hubon.</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Szinkronizálás</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Mindig a hubon lévő verzió megtartása</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Az ütköző fájlok átnevezése és mindkét verzió megtartása</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) hozzáférést kér a következő Bureau-sablonhoz: „%4” (jogosultság: %3).</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>A program egyesíti a két mappa tartalmát. Egyetlen fájl sem törlődik.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Fiók</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Kapcsolatok listája</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Csatlakoztatott hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>A megosztási hivatkozás másolása</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>A felhasználó jogosultságának eltávolítása</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Csoport: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>A Tessaly webportáljának megnyitása</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Társított hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>A mások által Önnel megosztott fájlok szinkronfeladata</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Nemrég módosított fájlok lap</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Oktatóanyag, 2. oldal: fájlok szinkronizálása</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Oktatóanyag, 3. oldal: változások követése</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Oktatóanyag, 4. oldal: megosztás másokkal</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Megosztási jogosultság kiválasztása</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>A Tessaly azonos állapotban tartja a számítógépein és a hubon lévő fájlokat.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>óránként</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>A mappám megnyitása</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>A megosztott mappa nem található</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verzió: %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>A hub kétfaktoros hitelesítést igényel. Állítsa be a webportálon, majd jelentkezzen be ismét.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>A megosztott mappa kvótája betelt.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Egyes mezők érvénytelen értéket tartalmaznak. Ellenőrizze a kiemelt mezőket.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Szinkronizálási irány</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>Hiba történt az egyik feladatban. A részletekért nyissa meg a főablakot.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Itt csak a Tessaly Server alkalmazásban bekapcsolt megosztott mappák láthatók.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Nincs jogosultsága a mappa eléréséhez.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Lejárat ennyi idő után</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Nincs elérhető művelet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>A felhasználónév vagy a jelszó hibás. Jelentkezzen be ismét.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Írjon be egy teljes fájlnevet, például „desktop.ini”, majd nyomja le az Enter billentyűt.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Már létezik ilyen nevű mappa. Válasszon másik nevet.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>A változások keresésekor az összes fájlattribútum összehasonlítása</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Érvényesség vége</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Ez a mező nem maradhat üres.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Hozzáférés korlátozása</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Szinkronizálási műveletek megjelenítése a fájlok és mappák helyi menüjében</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>A felhasználók saját mappáit kezelő szolgáltatás ki van kapcsolva a hubon. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>A frissítés sikertelen. &lt;a href=&quot;%1&quot;&gt;Töltse le a legújabb verziót&lt;/a&gt;, és telepítse kézzel.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Alkalmazás és hivatkozás másolása</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Látogatások számának korlátozása</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Érvényesség kezdete</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>A hub az ügyfélprogram újabb verzióját igényli. Frissíti most?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>A távoli mappa egy nem csatolt köteten van.</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>Információ megjelenítése</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Fájlnév hozzáadása</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>A számítógép mappája</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Nyelv kiválasztása</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>A letöltés alatt álló fájlverziók listája</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Érvényességi idő testreszabása</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>A %1 oktatóanyagának megjelenítése</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>A szinkronizált mappa módosítása</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Társított szinkronizált mappa</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Az előzmények frissítése</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Előző hónap</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Írjon be egy kulcsszót az előzményekben való kereséshez</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Mappa hozzáadása</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Naptár</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Következő hónap</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Eseménytípus kiválasztása</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>„%1” szinkronfeladat</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>A hub mappája</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Beállítások ablak</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Az oktatóanyag bezárása</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>A letöltés megszakítása</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>A letöltés eltávolítása a listáról</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>A jelszava lejárt. Módosítsa a webportálon, majd jelentkezzen be ismét.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Szerkesztő</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Átnevezve ezen a számítógépen</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Átnevezve a hubon</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Legfeljebb %1 karaktert írjon be.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>A feladat nem ezzel a fiókkal jött létre. Jelentkezzen be a következő néven: „%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>A hub adatai</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>A Ferrylink közvetítési szolgáltatása ki van kapcsolva a hubon.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>„%1” letöltése nem sikerült. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Nem sikerült bejelentkezni a hubra. Ellenőrizze a felhasználónevét és a jelszavát.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Értesítések</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>hozzászólt ehhez:</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Megnyitás a webportálon</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Beállítás</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Szinkronizált mappa megnyitása</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Ehhez a mappához csak olvasási jogosultsága van. A %1 nem tölti fel az Ön módosításait.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>A %1 már társítva van a hubbal, és szinkronban tartja fájljait.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>A telepítő minden szükséges információt összegyűjtött.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>A %1 készen áll.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>A %1 már fut.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>A %1 azonos állapotban tartja a számítógépein és a hubon lévő fájlokat.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Előnézet és hozzászólás</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>A %1 frissítése nem sikerült. Próbálja újra később.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>A Kelvane Quay Client újabb verziója már telepítve van. A telepítő most kilép.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>A hub SSL-tanúsítványa megváltozott. Ha nem számított erre, a folytatás előtt forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>Válassza ki, mit szinkronizáljon az új feladat</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>A mappa a Dropboxhoz tartozik. Ha a %1 is szinkronizálja, fájlütközések léphetnek fel.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>A módosítások elvesznek. Folytatja?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>A %1 oktatóanyaga</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>A Ferrylink-azonosító nem létezik, vagy a %1 nem fut a hubon.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Itt csak a következő alkalmazásban bekapcsolt megosztott mappák láthatók: %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>A %1 indítása, amikor bejelentkezem a számítógépre</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>A %1 inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>A hub és a %1 nem tud egymással kommunikálni. Frissítse mindkettőt a legújabb verzióra.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>A %1 jelenlegi verziója túl régi a hubhoz. Frissítse az alkalmazást.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Eltérő verziók</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>A lemez megtelt. Szabadítson fel helyet a számítógépen, hogy a %1 folytathassa a működést.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>Hiba történt a %1 működésében. Indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Értesítések lap</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>A mappa nem üres. A %1 egyesíti a benne lévő fájlokat a hubon lévőkkel.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Csak a módosítások letöltése innen: %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>A %1 be van állítva. A munka megkezdéséhez nyissa meg a mappáját.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Oktatóanyag, 1. oldal: üdvözli a Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>A Kelvane Quay Client alkalmazásnak ez a verziója már telepítve van. Újratelepíti?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>Állítsa be a %1 alkalmazást a számítógépen lévő fájlok szinkronizálásához és biztonsági mentéséhez.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Már majdnem kész! A fájljai hamarosan elérhetők lesznek a Tessaly Server alkalmazásban.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Már majdnem kész! A fájljai hamarosan elérhetők lesznek ezen a számítógépen.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>A művelet sikertelen. Próbálja újra.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>Ezen a helyen létrejön egy „Kelvane Quay” nevű mappa.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>A Tessaly alkalmazásnak ez a verziója már telepítve van. Újratelepíti?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>A Tessaly újabb verziója már telepítve van. A telepítő most kilép.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>A Tessaly oktatóanyaga</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Hét</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>A mappa a Dropboxhoz tartozik. Ha a Tessaly is szinkronizálja, fájlütközések léphetnek fel.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>A Tessaly készen áll.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>A Tessaly inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>A Ferrylink-azonosító nem létezik, vagy a Tessaly Server nem fut a hubon.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>A Tessaly jelenlegi verziója túl régi a hubhoz. Frissítse az alkalmazást.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>Megosztási jogosultság</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>A hubon lévő Tessaly Server túl régi ehhez az ügyfélprogramhoz. Kérje meg a rendszergazdát, hogy frissítse.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>A Tessaly oktatóanyagának megjelenítése</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>A Tessaly indítása, amikor bejelentkezem a számítógépre</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Hiba történt a Tessaly működésében. Indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>A beállítás befejeződött. A fájlok szinkronizálása folyamatban van.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>A tálcaikonra kattintva bármikor megtekintheti az állapotot és módosíthatja a beállításokat.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>A mappa nem üres. A Tessaly egyesíti a benne lévő fájlokat a hubon lévőkkel.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>A Tessaly már fut.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>A Tessaly be van állítva. A munka megkezdéséhez nyissa meg a mappáját.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Ehhez a mappához csak olvasási jogosultsága van. A Tessaly nem tölti fel az Ön módosításait.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>A Tessaly megnyitása</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>Elérhető a következő verzió: %1. A frissítéshez kattintson ide.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>A szelektív szinkronizálás használatához kérje meg a rendszergazdát, hogy frissítse a hubon a Tessaly Server alkalmazást.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Kiürítés</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Nincs elég hely ezen a lemezen. A Tessaly működéséhez legalább %1 MB szükséges.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>A Tessaly már társítva van a hubbal, és szinkronban tartja fájljait.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>A Tessaly ugyanazzal a fiókkal csak egyszer társítható ugyanazzal a hubbal.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Állítsa be a Tessaly alkalmazást a számítógépen lévő fájlok szinkronizálásához.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Most ismerkedik a Tessaly alkalmazással? Olvassa el először a &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;gyors útmutatót&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Hozzászólhat</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>A hivatkozás birtokában a hub felhasználói megtekinthetik</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>A hivatkozás birtokában a hub felhasználói szerkeszthetik</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Csak a meghívott személyek nyithatják meg a hivatkozást</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>A hivatkozás birtokában bárki hozzászólhat</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>A hivatkozás birtokában bárki megtekintheti</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>A hivatkozás birtokában a hub felhasználói hozzászólhatnak</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>A hivatkozás birtokában bárki szerkesztheti</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Megtekintheti</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Kezelheti</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Szerkesztheti</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>A webportál nem nyitható meg. Ellenőrizze a hubbal való kapcsolatot.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Személyek meghívása</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Nincs hozzáférés</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Nincsenek megosztott mappák.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>A nyilvános megosztás ki van kapcsolva a hubon.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>A megosztás ki van kapcsolva. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Visszaállítás</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) hozzáférést kér a következő Grida-táblázathoz: „%4” (jogosultság: %3).</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>A hivatkozással rendelkezők többé nem tudják megnyitni a fájlt.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 megosztotta Önnel a következő Grida-táblázatot: „%2”.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Nincs adat</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Megosztás</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>A fájl vagy mappa nem létezik.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Nincs jogosultsága a művelet végrehajtásához.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>Hétvégék</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>A hub felhasználói</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Csak a meghívott személyek</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Megjelenítés</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Bárki a hivatkozás birtokában</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Lejárati dátum beállítása</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Felhasználók és csoportok</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>A szinkronizált mappák megjelenítése a fájlkezelő oldalsávján</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Dolgozzon a szinkronizált mappában úgy, mint bármely más mappában. A módosítások azonnal átkerülnek a hubra.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Saját számítógép</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Minden fájlja, mindenhol</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Takarítson meg helyet igényalapú szinkronizálással</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Minden fájl látható a számítógépen, de csak a megnyitás után foglal helyet.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Csak online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Elérhető ezen a számítógépen</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>megemlítette Önt itt:</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>hozzáférést kért ehhez:</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 megosztotta Önnel a következő fájlt: „%2”.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>megosztotta Önnel ezt:</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Megosztva</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Hozzáférési kérelem</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Hozzászólások</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Velem megosztva</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Említések</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Csak feltöltés</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>A fájlok megtartása a hubon, ha erről a számítógépről törlik őket</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Később</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>„%1” letöltve.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>A fájljai minden eszközén naprakészek.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>Fájljai a &lt;a href=&quot;%1&quot;&gt;webportálon&lt;/a&gt; is elérhetők.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Gratulálunk!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Készen áll a munkára a Tessaly alkalmazással.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>Bekapcsolás később</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Bekapcsolás most</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Önnel megosztott fájlok</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Szinkronfeladat létrehozása</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Saját fájlok és csapatmappák</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Velem megosztott fájlok</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>A Tessaly nem ezzel a hubbal lett társítva. Társítsa ismét ezt a számítógépet.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>A hub és a Tessaly nem tud egymással kommunikálni. Frissítse mindkettőt a legújabb verzióra.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Egy változásról se maradjon le</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>A lemez megtelt. Szabadítson fel helyet a számítógépen, hogy a Tessaly folytathassa a működést.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Csapatmappa</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Csak a módosítások letöltése innen: Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>A Tessaly frissítése nem sikerült. Próbálja újra később.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>A tálcaikon mutatja, hogy mi szinkronizálódik, és jelzi, ha mások fájlokat osztanak meg Önnel, vagy hozzászólnak azokhoz.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>Megosztás másodpercek alatt</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Kattintson a jobb gombbal egy fájlra vagy mappára, hozzon létre hivatkozást, és döntse el, ki és mennyi ideig nyithatja meg.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) hozzáférést kér a következő Pictra-bemutatóhoz: „%4” (jogosultság: %3).</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 megosztotta Önnel a következő mappát: „%2”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) hozzáférést kér a következő mappához: „%4” (jogosultság: %3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) hozzáférést kér a következő fájlhoz: „%4” (jogosultság: %3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) hozzáférést kér a következő Folia-dokumentumhoz: „%4” (jogosultság: %3).</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 megosztotta Önnel a következő Folia-dokumentumot: „%2”.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 megosztotta Önnel a következő Pictra-bemutatót: „%2”.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Adatvédelmi beállítások</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Jelszavas védelem</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Hétköznapok</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Létrejön egy „%1” nevű mappa a mások által Önnel megosztott fájlok számára.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Mindig maradjon ezen a számítógépen</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Bármely</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Előrehaladás</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kapcsolódás...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Szinkronfeladat</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>A biztonsági mentés a fájlok módosulásakor azonnal elkészül.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrő</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>A biztonsági mentés az Ön által megadott időpontokban készül.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>A biztonsági mentés befejeződött. A számítógép %1 másodperc múlva leáll.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Mentési feladat</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Futtatás a következő napokon</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Kapcsolódás a hubhoz</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Védje a számítógépen lévő fájlokat: készítsen róluk biztonsági mentést a hubra.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Kézi: a biztonsági mentés csak akkor fut, ha Ön elindítja.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Kezdési idő</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Gyakoriság</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Utolsó befejezési idő</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Utolsó futtatás ideje</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Hozzászóló</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>A hivatkozás megnyitására jogosultak módosítása</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Utolsó feltöltés: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Feladatbeállítások</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Folyamatos: a biztonsági mentés a fájlok minden módosulásakor elkészül.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Megnyitás a fájlkezelőben</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Az időpont a következő napra esik.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>A megosztási adatokat nem sikerült lekérni.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Biztonsági mentés célja</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>A biztonsági mentés a Mentés most gombra kattintva készül el.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Letöltések engedélyezése</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Ütemezett: a biztonsági mentés az Ön által megadott időpontokban fut.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Mentési ütemezés</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Kezelő</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Csak előnézet</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Mentési feladat létrehozása</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>A program kihagyja azokat a fájlokat, amelyek neve vagy kiterjesztése szerepel a listán.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Ideiglenes fájlok szinkronizálása</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Másolja a számítógép fájljait a hubra, azonnal vagy ütemezés szerint.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Adja meg, mikor készüljön biztonsági mentés a fájlokról.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Válasszon ki legalább egy mappát a biztonsági mentéshez.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>%1 fájl (%2) mentve; cél: „%3”, idő: %4</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Előzmények</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Biztonsági mentés indítása</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Az ezeknek a szabályoknak megfelelő fájlokról és mappákról nem készül biztonsági mentés.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nincs kiválasztott mappa</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Hely felszabadítása</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Ne maradjon ezen a számítógépen</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Kiválasztott napok</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>A biztonsági mentés befejezése után</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Válasszon mappát itt: „%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Válasszon ki egy mappát a hubon.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Ismétlődés</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>A ponttal kezdődő nevű fájlok és mappák kihagyása</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>Szinkronizálás indítása</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>A biztonsági mentés leállt, mert a hub SSL-tanúsítványát nem sikerült ellenőrizni.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>A feladatot nem sikerült regisztrálni a hubon. Próbálja újra.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>A biztonsági mentés leállt, mert az ezen a címen lévő hub megváltozott.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>A biztonsági mentés leállt, mert a hub és az ügyfélprogram nem tud egymással kommunikálni. Frissítse mindkettőt.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>A biztonsági mentés leállt, mert a Tessaly jelenlegi verziója túl régi a hubhoz.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>Frissítse a Tessaly alkalmazást legalább a következő verzióra: %1.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Ellenőrizze a felhasználónevét és a jelszavát, majd jelentkezzen be ismét.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Ellenőrizze, hogy a hub be van-e kapcsolva, és a számítógép csatlakozik-e a hálózathoz.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>A hub letiltotta a számítógép IP-címét. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>A hub SSL-tanúsítványa érvénytelen. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Kérje meg a rendszergazdát, hogy frissítse a hubon a Tessaly Server alkalmazást.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Még nincs biztonsági mentés</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Tartsa azonos állapotban a számítógép és a hub egy-egy mappáját.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;További információ&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Válassza ki, mely napokon és időpontokban fusson a biztonsági mentés.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Az elmaradt biztonsági mentések mielőbbi futtatása</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>Válasszon mindkét oldalon egy mappát.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Adja meg a hub címét és a fiókját.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Ellenőrizze az új feladat beállításait.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Elérési út</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>A biztonsági mentés leállt, mert nem sikerült bejelentkezni a hubra.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>A hubon lévő csomag verziója nem támogatott. Kérje meg a rendszergazdát, hogy frissítse.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>A biztonsági mentés leállt, mert a hub letiltotta a számítógép IP-címét.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>A biztonsági mentés leállt, mert a hubon lévő csomag túl régi ehhez az ügyfélprogramhoz.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>A kijelölt mappák némelyike már nem létezik. A folytatáshoz törölje a jelölésüket.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Eltérő szinkronizálási irány</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>A Kelvane Quay Client most telepíthető. Az indításhoz kattintson a Telepítés, a beállítások ellenőrzéséhez a Vissza gombra.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>Válassza ki a feladat típusát</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Dolgozzon ugyanazokkal a fájlokkal minden számítógépén.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Tároljon biztonságos másolatot fájljairól a hubon.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Jelentkezzen be arra a hubra, amely a biztonsági mentéseit fogja tárolni.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>Szinkronizált mappák beállítása</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Szabadítson fel helyet a számítógép lemezén.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Válassza ki a hubnak azt a mappáját, amelyet szinkronizálni szeretne.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>A fájlok csak a megnyitásukkor töltődnek le, így kevesebb helyet foglalnak a számítógépen.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>Az igényalapú szinkronizálás a kiválasztott mappához vagy a számítógép operációs rendszerén nem érhető el.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>A megosztott mappa nincs csatolva</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Csak a módosítások feltöltése ide: %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>A mások által velem megosztott fájlok szinkronizálása</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Ideiglenes fájlok biztonsági mentése</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>A mások által Önnel megosztott fájlok külön mappában jelennek meg a számítógépen.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Webportál</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>A tárhelykvóta betelt</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>A saját mappa ki van kapcsolva</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Cs</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Szo</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <translation>A helyi mappa nem található</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>A feladatot nem sikerült elindítani. Indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>A feladat megosztott mappája nincs csatolva a hubon. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Már nincs jogosultsága a feladat megosztott mappájának eléréséhez.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>A meghajtó nincs csatlakoztatva</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Már majdnem kész! A fájljai hamarosan elérhetők lesznek itt: %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>A 0 érték azt jelenti, hogy nincs korlát.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>P</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Szerepkör</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Sze</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Péntek</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Hétfő</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Szombat</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Vasárnap</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Csütörtök</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Kedd</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Szerda</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Nem fogadom el a licencszerződést</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>A lemez megtelt</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Az inicializálás sikertelen</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Lehet, hogy a helyi mappát áthelyezték, átnevezték vagy törölték.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>A megosztott mappa kvótája betelt</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>A megosztott mappa kvótája betelt. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>A távoli mappa nem található</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Lehet, hogy a távoli mappát áthelyezték, átnevezték vagy törölték.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>A hivatkozás jogosultsága</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Következő mentés: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Mentési terv</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Megosztási hivatkozás</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Hivatkozás megosztása</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>A mentési feladatokhoz legalább %1 %2 szükséges a hubon. A telepített verzió: %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Ez a számítógép már társítva van ezzel a hubbal, ugyanazzal a fiókkal.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>A megosztott mappák betöltése...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>A hálózati meghajtókon történt változások nem észlelhetők azonnal. A program késleltetve szinkronizálja őket.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Üdvözli a Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>A beállítások módosításához kattintson a Tessaly tálcaikonjára.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>A beállítások módosításához kattintson a %1 tálcaikonjára.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>A szinkronizálás leállt, mert megtelt a hub egyik kötete.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>A hubon lévő csomag túl régi az ügyfélprogramhoz.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>Társítás a hubbal...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Minden fájl naprakész.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Előnézet</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Mappahivatkozás</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Lejárati dátum</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Készen áll a munkára a %1 alkalmazással.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Most</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Feltöltés</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Frissítse a %1 alkalmazást legalább a következő verzióra: %2.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Válassza ki, mely fájlokat tartsa szinkronban az új feladat.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>A %1 webportáljának megnyitása</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>A biztonsági mentés leállt, mert a %1 jelenlegi verziója túl régi a hubhoz.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Kérje meg a rendszergazdát, hogy frissítse a hubon a következőt: %1.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>Ezen a helyen létrejön egy „%1” nevű mappa.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Nem sikerült létrehozni a(z) „%1” mappát ezen a számítógépen.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Lássa minden fájlját anélkül, hogy betelne a lemez. Az egyes fájlok a megnyitásukkor töltődnek le.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>A Kelvane Quay webportáljának megnyitása</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>A Tessaly újabb verziója már telepítve van. Távolítsa el a Kelvane Quay Client telepítése előtt.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Oktatóanyag, 1. oldal: üdvözli a %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Feladat típusa</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Kiválasztás</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>A Kelvane Quay Client szinkronizálási és biztonsági mentési szolgáltatásai most telepíthetők. Az indításhoz kattintson a Telepítés, a beállítások ellenőrzéséhez a Vissza gombra.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Igényalapú szinkronizálás bekapcsolása</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Az igényalapú szinkronizálás mappája („%1”) hiányzik. Állítsa be ismét a feladatot.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Igényalapú szinkronizálás</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Szinkronizáljon igény szerint</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Hozzászólás</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>A hub kötete megtelt. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Adjon meg érvényes dátumot.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>A befejezési időnek későbbinek kell lennie a kezdési időnél.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>Írjon be egy fájlnevet vagy kiterjesztést, például „*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Szerepkörök és jogosultságok</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Hely felszabadítva</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Elérhetővé téve ezen a számítógépen</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Az igényalapú szinkronizáláshoz nem hálózati és nem cserélhető NTFS-meghajtón lévő mappa szükséges.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Tartsa online a fájlokat, amíg nincs szüksége rájuk. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Így működik az igényalapú szinkronizálás&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Nincs elég hely ezen a lemezen. A %1 működéséhez legalább %2 MB szükséges.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Szinkronizálja saját mappáját és azokat a csapatmappákat, amelyekhez hozzáfér.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Ha ezt kikapcsolja, a mások által Önnel megosztott fájlok mappája törlődik erről a számítógépről. Folytatja?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Szinkronizálja a mások által Önnel megosztott fájlokat, hogy a sajátjaihoz hasonlóan megnyithassa őket.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Igényalapú szinkronizálás bekapcsolása ehhez a feladathoz</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>A biztonsági mentés leállt, mert az Ön fiókja nem jogosult a hubon lévő csomag használatára.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Szinkronizálja a más felhasználók által Önnel megosztott fájlokat és mappákat.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>A lemez hamarosan megtelik. Kapcsolja be az igényalapú szinkronizálást, hogy helyet szabadítson fel.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Minden, amit mások megosztanak Önnel, egyetlen mappában</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Kérje meg a rendszergazdát, hogy adjon Önnek jogosultságot a csomag használatára.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Ehhez az ügyfélprogramhoz legalább %1 %2 szükséges a hubon. Kérje meg a rendszergazdát, hogy frissítse.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Nincs jogosultsága a hubon lévő csomag használatára. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>A célt már használja egy másik mentési feladat. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>A %1 nem tud kommunikálni a hubon lévő csomaggal. Frissítse mindkettőt a legújabb verzióra.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Csak Ön nyithatja meg a hivatkozást</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Folytatás mindenképp</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>A Tessaly azonos állapotban tartja fájljait minden számítógépén, és védi őket a hubon.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Osszon meg egy fájlt hivatkozással. Ön dönti el, ki tekintheti meg vagy szerkesztheti.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Bemutató indítása</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Most ismerkedik a %1 alkalmazással? Olvassa el először a &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;gyors útmutatót&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Adja meg a felhasználónevét.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>A program a feladat összes fájlját letölti erre a számítógépre. Folytatja?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Üdvözli a Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Megosztás másokkal</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Nyissa meg az előzményeket, hogy megtudja, ki és mikor módosított egy fájlt.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Tartsa azonos állapotban fájljait minden számítógépén: szinkronizálja őket a hubbal.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>%1 fájl feldolgozása folyamatban</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>A %1 és az ügyfélprogram verziója eltér. Frissítse mindkettőt ugyanarra a verzióra.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Feldolgozás alatt álló fájlok: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>%1 fájl feldolgozása folyamatban</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>A mappa kötete nem támogatja a kvótákat.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Személyes tárhelykvótája betelt.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>A saját mappa foglaltsága: %1 / %2, a megosztott mappáké: %3 / %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>A(z) „%1” megosztott mappa kvótája betelt.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Egyes mappák elérték a kvótájukat.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>A verzió nem állítható vissza, mert egy szűrő kizárja a fájlt.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Válassza ki a mentendő mappákat és a biztonsági mentések helyét.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>A mentendő tartalom kiválasztása</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>A biztonsági mentés leállt, mert a fiókját letiltották a hubon.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Szinkronizálás...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Kérje meg a rendszergazdát, hogy engedélyezze a fiókját.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>A fiókját letiltották a hubon. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>A fiók le van tiltva</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Ikonok megjelenítése a szűrő által kizárt fájlokon</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Tárhely</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Párbeszédpanel</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>A program az ehhez a hubhoz tartozó összes feladatot eltávolítja erről a számítógépről. A fájlok megmaradnak. Folytatja?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>A biztonsági mentés sikertelen. Próbálja újra.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>A feladatot nem sikerült létrehozni. Próbálja újra.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>Már nincs jogosultsága a(z) „%1” megosztott mappa eléréséhez.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>„%1” feldolgozása...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Nap</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>A feladatot nem sikerült betölteni.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>A(z) „%1” mappa nem létezik.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>A számítógép leállítása</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Nincs jogosultsága a számítógép automatikus leállításához.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>A biztonsági mentés megszakítva.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>A biztonsági mentés befejeződött.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>Naponta %1 biztonsági mentés</translation>
    </message>
    <message>
        <source>times</source>
        <translation>alkalommal</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Mentési mód</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Elindítja most a biztonsági mentést?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Ha a számítógép az ütemezett időpontban ki van kapcsolva vagy alvó állapotban van, a biztonsági mentés a következő bekapcsoláskor vagy felébresztéskor azonnal elindul.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Válassza ki a hét legalább egy napját.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Utolsó mentés: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Minden nap</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Kézi mentés</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Naponta egyszer</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Folyamatos mentés</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Ütemezett mentés</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>A mentési terv beállítása</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Pillanatkép készítése...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>A mentési tervet nem sikerült elmenteni. Próbálja újra.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Adjon meg egy 0 és %1 MB közötti méretet. A 0 érték azt jelenti, hogy nincs korlát.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>A feladat tevékenységének megjelenítése</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Perc</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Eltávolított elemek megjelenítése</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Felhasznált</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Hónap</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 / %2 felhasználva</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Háttérfeladat</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Szűrőbeállítások ablak</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Adjon meg érvényes időpontot.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Nincs szinkronizálva: rendszerszabály zárja ki</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportálás</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Most nem</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Mentési feladatok</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronfeladatok</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Szűrők</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Nemrég módosítva</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Mentés most</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fájlok</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Egyenlő</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Kisebb, mint</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Nagyobb, mint</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Válasszon ki egy mappát a számítógépen</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Ez a mappa már része a %1 egyik mentési feladatának. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Ezt a mappát a Kelvane Quay Client már szinkronizálja, ezért nem készíthető róla biztonsági mentés. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-cím</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>válaszolt az Ön hozzászólására itt:</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Szinkronállapot megnyitása</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Válaszok</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Nincs szinkronizálva</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>A hubon lévő Tessaly Server túl régi a %1 alkalmazáshoz. Kérje meg a rendszergazdát, hogy frissítse.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Nincs kapcsolat a hubbal</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Speciális megosztás</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>A megosztási beállításokat nem sikerült menteni. Próbálja újra.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Speciális megosztás bekapcsolása</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Hivatkozásvédelem bekapcsolása</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>mostantól speciális beállításokkal van megosztva.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Védett megosztás</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Hivatkozásvédelem</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Biztosan eltávolítja a hivatkozást? Nem lesz visszaállítható.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Eltávolítja a hivatkozást?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Az ügyfélprogram naplóinak mentése fájlba, amelyet elküldhet a technikai támogatásnak.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Írjon be egy kulcsszót</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Hivatkozás eltávolítása</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Hibaelhárítás</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Több részlet rögzítése a naplókban, hogy a technikai támogatás megtalálhassa a problémák okát.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Naplók exportálása</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Fájl törölve</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Az exportált fájl tartalma:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>A számítógép operációs rendszerének adatai</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Speciális naplózás</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>A speciális naplók több helyet foglalnak a lemezen, és lelassíthatják az ügyfélprogramot.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Adatvédelmi nyilatkozat</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Az ügyfélprogram naplói és beállításai, jelszavak nélkül</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Speciális naplózás bekapcsolása</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Nincs szinkronizálva: a feladat szűrője zárja ki</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Nincs szinkronizálva: nincs jogosultság</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Használati feltételek</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>%1 MB-nál kisebb méretet adjon meg.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Ez a mappa már része egy másik mentési feladatnak. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>A feladat váratlan hiba miatt leállt. Indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Ennek a fájlnak nincsenek korábbi verziói.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Az igényalapú szinkronizálást nem sikerült bekapcsolni ehhez a feladathoz.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Nem sikerült kapcsolódni a hubhoz. Ellenőrizze a címet és a hálózatot.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>Fájl hozzáadva</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>A név nem kezdődhet és nem végződhet szóközzel.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>A biztonsági mentés leállt, mert a hub SSL-tanúsítványa megváltozott.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>A hub SSL-tanúsítványa lejárt. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>A hub mostantól a teljes saját mappáját indexelni tudja.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Mostantól a teljes saját mappáját szinkronizálhatja ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Zárolva</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>A Norvik kikapcsolva</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>A hub előkészíti a saját mappáját. Próbálja újra később.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Fájl átnevezve</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>„%1” frissítve</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>A név nem tartalmazhatja a következő karaktereket: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>A Norvik ki van kapcsolva a hubon. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>A fiókját letiltották a hubon, ezért a mappa nem ellenőrizhető.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Már létezik ilyen nevű feladat.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>A kiválasztott mappák egyike sem használható. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>Nincs érvényes mappa</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>A fájlok a megnyitásukig a hubon maradnak. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;További információ az igényalapú szinkronizálásról&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Egyéni feladatnév</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>A név segít megkülönböztetni a feladatokat. Csak ezen a számítógépen jelenik meg.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>Az igényalapú szinkronizálás a feladat beállításaiban kapcsolható be és ki.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Ez kötelező mező.</translation>
    </message>
</context>
</TS>
