<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was deleted).</extracomment>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>Menu item/Button: ends the link between this computer and the hub (verb).</extracomment>
        <translation>Usuń powiązanie</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <extracomment>Check box/Menu item in the connection settings; Ferrylink is the name of a relay service.</extracomment>
        <translation>Połącz przez Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <extracomment>Button beside a warning about the folder that was chosen.</extracomment>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>Button in a question: puts the files of two folders together.</extracomment>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>Heading/Status: title of a message box, and the state of a task that failed.</extracomment>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <extracomment>Message: %1 is the new file name.</extracomment>
        <translation>Wystąpił konflikt plików. Plik ma teraz nazwę %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Wartość jest nieprawidłowa. Sprawdź ją i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>Sieć jest niedostępna. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>Button on the last page of a wizard and of the installer (verb).</extracomment>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>Label/Column head: above the path of the folder on this computer, and of a list of such folders.</extracomment>
        <translation>Folder lokalny</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>Menu item in the tray menu: links this computer to the hub again.</extracomment>
        <translation>Powiąż ponownie</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Menu item in the tray menu: opens the box with the version and the copyright.</extracomment>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <extracomment>Status, shown while the wizard signs in.</extracomment>
        <translation>Sprawdzanie nazwy użytkownika i hasła...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <extracomment>Status, shown when the test of the connection is done.</extracomment>
        <translation>Połączono pomyślnie</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Pliki z obu folderów zostaną scalone. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <extracomment>Status, shown while the client starts.</extracomment>
        <translation>Uruchamianie...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Przed zakończeniem sprawdź poniższe ustawienia.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>Status, shown while the wizard tests the connection.</extracomment>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <extracomment>Button beside the path of the sync folder.</extracomment>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <extracomment>Heading of a warning about the folder that was chosen.</extracomment>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>Label beside a field with the path of a folder.</extracomment>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <extracomment>Label beside the field for the identifier of a hub in the Ferrylink service.</extracomment>
        <translation>Identyfikator Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Value&quot;.</extracomment>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Name&quot;.</extracomment>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Welcome</source>
        <extracomment>Heading of the first page of a wizard, alone.</extracomment>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Menu item in the tray menu: ends the client.</extracomment>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>Menu item in the tray menu: opens the list of these files.</extracomment>
        <translation>Ostatnio zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was downloaded).</extracomment>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Button: opens the help.</extracomment>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Button: closes a box and takes what was entered, in the installer too.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: closes a box and drops what was entered, in the installer too (verb).</extracomment>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>Button: goes to the next page of a wizard and of the installer.</extracomment>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: goes to the page before in a wizard and in the installer.</extracomment>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Get started</source>
        <extracomment>Button on the first page of the set-up: begins with it.</extracomment>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Label in the about box, beside the version number.</extracomment>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <extracomment>Status, shown while the client looks through the folders.</extracomment>
        <translation>Wyszukiwanie zmian...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <extracomment>Status in the tray.</extracomment>
        <translation>Utracono połączenie z hubem. Ponowne nawiązywanie połączenia...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was uploaded).</extracomment>
        <translation>Przesłano</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>Choice: last entry of a list of filters or periods: the user sets one (verb).</extracomment>
        <translation>Dostosuj</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Label/Column head: beside a time of day, and when something happened to a file.</extracomment>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>Choice: how the hub is reached: in the same network.</extracomment>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>Choice: how the hub is reached: straight, without a relay.</extracomment>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <extracomment>Status, short, in the tray: the hub refused username or password.</extracomment>
        <translation>Logowanie nie powiodło się</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>Choice: how the hub is reached: over the Internet.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <extracomment>Status: stands in place of the connection type while it is being found out.</extracomment>
        <translation>Wykrywanie typu połączenia...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <extracomment>Choice: how the hub is reached: through the relay server of Ferrylink.</extracomment>
        <translation>Przekaźnik Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Usługa Ferrylink nie odpowiada. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <extracomment>Event in a notification; %1 is a number, always more than one.</extracomment>
        <translation>Zaktualizowane pliki: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Masz dostęp do tego folderu tylko do odczytu. Zmiany wprowadzone na tym komputerze nie będą przesyłane.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <extracomment>Message of a task, and of a notification.</extracomment>
        <translation>Przydział miejsca na hubie został wyczerpany. Zwolnij trochę miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <extracomment>Label beside &quot;Local network&quot;, &quot;Direct connection&quot;, &quot;Internet&quot; or &quot;Ferrylink relay&quot;.</extracomment>
        <translation>Typ połączenia</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <extracomment>Heading of a warning: nothing can be changed in the folder.</extracomment>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Menu item/Button/Tab: opens the settings.</extracomment>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <extracomment>Button in the settings of a shared folder.</extracomment>
        <translation>Zmień folder lokalny</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <extracomment>Heading/Tab: the folders that the hub shares (noun; folders).</extracomment>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <extracomment>Message of the connection settings, and of a task.</extracomment>
        <translation>Nie można zweryfikować certyfikatu SSL huba.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>Label beside the field for the port number of the proxy server.</extracomment>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <extracomment>Heading of a message box that informs.</extracomment>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>Tab of the settings: the proxy server.</extracomment>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <extracomment>Choice, first of three: none, the system&apos;s, manual.</extracomment>
        <translation>Nie używaj serwera proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <extracomment>Choice, second of three: none, the system&apos;s, manual.</extracomment>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <extracomment>Heading of the box in which a folder is chosen.</extracomment>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Nie można połączyć się z serwerem sterującym Ferrylink. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Zmiany nie zostały zapisane. Czy chcesz opuścić tę stronę?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <extracomment>Status, short, in the tray: the user&apos;s space on the hub is used up.</extracomment>
        <translation>Brak miejsca na dane</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <extracomment>Heading of the proxy page of the settings.</extracomment>
        <translation>Ustawienia serwera proxy</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Nie można włączyć synchronizacji folderu udostępnionego.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Ten folder pokrywa się z folderem, który jest już synchronizowany. Wybierz inny.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Maksymalna liczba synchronizowanych folderów udostępnionych: %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <extracomment>Status, shown while the settings are being stored.</extracomment>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Wprowadź numer portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <extracomment>Choice, third of three: none, the system&apos;s, manual.</extracomment>
        <translation>Skonfiguruj serwer proxy ręcznie</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Nie ma żadnych zmian do zastosowania.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <extracomment>Check box for a shared folder: it is synced.</extracomment>
        <translation>Włącz synchronizację</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <extracomment>Column head of the list of shared folders.</extracomment>
        <translation>Nazwa folderu udostępnionego</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Column head: whether a folder or file is synced.</extracomment>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Button: takes over the changes (verb).</extracomment>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Network settings</source>
        <extracomment>Button: opens the network page of the system.</extracomment>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>Menu item/Button: opens the page on which tasks or other things are managed (verb).</extracomment>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <extracomment>Check box of the proxy page: the fields for username and password follow.</extracomment>
        <translation>Serwer proxy wymaga zalogowania</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <extracomment>Status, short, in the tray and of a task: an unexpected error.</extracomment>
        <translation>Wystąpił problem</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>Status, short, in the tray: the client or a file is being brought up to date.</extracomment>
        <translation>Aktualizowanie...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Szyfruj przesyłanie danych za pomocą SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <extracomment>Label beside the field for how to reach the hub.</extracomment>
        <translation>Nazwa huba, adres IP lub identyfikator Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Pokazuj ikony stanu synchronizacji na plikach i folderach</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Tab of the settings.</extracomment>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>General options</source>
        <extracomment>Heading of the general page of the settings.</extracomment>
        <translation>Opcje ogólne</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <extracomment>Check box of the general options, and of the display settings.</extracomment>
        <translation>Używaj czarno-białej ikony w zasobniku systemowym</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Folder udostępniony „%1” jest dla Ciebie dostępny. Możesz ustawić jego synchronizację z tym komputerem.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>Heading of a notification: someone has shared a folder with the user.</extracomment>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Sprawdzanie danych...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatyczna konfiguracja nie powiodła się. Skonfiguruj połączenie ręcznie.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <extracomment>Status: last step of the automatic set-up of the client (not of the installer).</extracomment>
        <translation>Kończenie konfiguracji...</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>Button: goes on after a warning or a question.</extracomment>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <extracomment>Button: opens the choice of the folders and files that are synced.</extracomment>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <extracomment>Message above the rules of a task&apos;s filter.</extracomment>
        <translation>Pliki i foldery pasujące do tych reguł nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <extracomment>Status, shown while a new version of the client is being installed.</extracomment>
        <translation>Instalowanie aktualizacji...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <extracomment>Label above the list of excluded file extensions such as &quot;tmp&quot;.</extracomment>
        <translation>Rozszerzenia plików</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <extracomment>Status, short: the shared folder can&apos;t be synced since a volume is mounted in it.</extracomment>
        <translation>Folder w punkcie montowania</translation>
    </message>
    <message>
        <source>Software update</source>
        <extracomment>Heading of the box about a new version of the client (noun).</extracomment>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <extracomment>Status: %1 is a percentage such as 42%.</extracomment>
        <translation>Postęp: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <extracomment>Message: question; %1 is the shared folder&apos;s name.</extracomment>
        <translation>Zatrzymać synchronizację folderu „%1”? Pliki na tym komputerze i na hubie zostaną zachowane.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Nie można usunąć folderu udostępnionego z listy.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Ten klucz konfiguracji został już użyty. Poproś administratora o nowy.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>Nowy język zacznie obowiązywać po ponownym uruchomieniu aplikacji.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Choice/Tab: a type of item in a filter or list, and the page with the two folders of a task (noun, singular).</extracomment>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Dysk tego komputera jest pełny. Zwolnij trochę miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>Status, shown while the list of folders comes from the hub.</extracomment>
        <translation>Wczytywanie listy folderów...</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Button/Menu item/Label: takes an entry off a list, someone&apos;s right off a file, the program off the computer (verb).</extracomment>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Czy na pewno chcesz usunąć powiązanie tego komputera z hubem?</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>Column head of the list of files: the folder that a file goes to.</extracomment>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <extracomment>Status: state of a task or a file before its transfer.</extracomment>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Przesyłanie...</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>Choice of the list of languages: the one of the system.</extracomment>
        <translation>Domyślny systemu</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>Label beside the list of languages.</extracomment>
        <translation>Język</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>Label beside a field, or a column&apos;s head: the name of a folder.</extracomment>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>Heading of an installer window; [ProductName] becomes a product name; &quot;Setup&quot; is the installer.</extracomment>
        <translation>Instalator [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <extracomment>Status in the tray; %1 is a number, mostly more than one.</extracomment>
        <translation>Synchronizowanie plików (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>Status: %1 is a file name.</extracomment>
        <translation>Pobieranie „%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <extracomment>Heading of a page: the folders that the user wants to sync.</extracomment>
        <translation>Foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <extracomment>Button: opens further settings of a task.</extracomment>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <extracomment>Label beside a field: files above this size are not synced.</extracomment>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <extracomment>Label above the list of names of files that are not synced.</extracomment>
        <translation>Wykluczone nazwy plików</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <extracomment>Heading of the table of files that are not synced.</extracomment>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Lokalna baza danych jest uszkodzona. Usuń powiązanie tego komputera z hubem i powiąż go ponownie.</translation>
    </message>
    <message>
        <source>File filter</source>
        <extracomment>Heading of a page: which files are synced and which not (noun).</extracomment>
        <translation>Filtr plików</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <extracomment>Label above the list of names and extensions that are not synced (noun).</extracomment>
        <translation>Lista wykluczeń</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Foldery, które odznaczono, zostaną usunięte z tego komputera. Na hubie pozostaną.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <extracomment>Label beside a list: what happens when a file was changed on both sides.</extracomment>
        <translation>Obsługa konfliktów</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Wczytywanie...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>Label/Heading: two-way sync, upload only, download only (the way in which is synced).</extracomment>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Status in the tray and of a task (participle; the task or the client was paused).</extracomment>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Ten folder jest punktem montowania i nie można go synchronizować. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Pobieranie „%1” zostało anulowane.</translation>
    </message>
    <message>
        <source>Start now</source>
        <extracomment>Button: begins at once what was offered.</extracomment>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>Synchronizacja została zatrzymana, ponieważ dysk tego komputera jest pełny.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>Synchronizacja została zatrzymana, ponieważ przydział miejsca na hubie został wyczerpany.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>Status in the tray: this computer is being linked to the hub.</extracomment>
        <translation>Tworzenie powiązania...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>Status/Heading, short: the user may not do this, or not use the shared folder.</extracomment>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Nie można pobrać z huba informacji o Twoim koncie.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>Column head of a list, or a label beside a field: the name of this computer.</extracomment>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <extracomment>Status, short, in the tray: the connection comes and goes.</extracomment>
        <translation>Połączenie jest niestabilne</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>Menu item: makes a link (URL) to the file and copies it.</extracomment>
        <translation>Pobierz link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Tworzenie powiązania tego komputera z hubem...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>Status, shown while the client tries to sync again.</extracomment>
        <translation>Próba synchronizacji...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <extracomment>Choice: a role (noun, a person): may open and read; beside Previewer, Commenter, Editor, Manager.</extracomment>
        <translation>Przeglądający</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <extracomment>Heading of a warning about the SSL certificate.</extracomment>
        <translation>Ostrzeżenie o certyfikacie</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Button/Menu item: interrupts a task, or all, for a while (verb).</extracomment>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Button/Menu item: goes on with a task, or all, after a pause (verb).</extracomment>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <extracomment>Button: opens the rules by which files are not synced (noun).</extracomment>
        <translation>Reguły wykluczeń</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Column head: what was done with the file (noun).</extracomment>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>Column head of a list of files.</extracomment>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column head/Label: the size of a file.</extracomment>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>Column head of a list: an identifier.</extracomment>
        <translation>Identyfikator</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>Status of a shared folder: its sync is turned off.</extracomment>
        <translation>Wyłączono</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>Status of a shared folder: its sync is turned on.</extracomment>
        <translation>Włączono</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <extracomment>Message of a question that offers to stop the sync.</extracomment>
        <translation>Jeśli zatrzymasz synchronizację tego folderu udostępnionego, późniejsze zmiany nie będą przenoszone. Pliki lokalne zostaną zachowane.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Włącz szyfrowanie SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Wybierz na tym komputerze folder, który chcesz synchronizować z hubem.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos has been shared with you.&quot;</extracomment>
        <translation>właśnie Ci udostępniono.</translation>
    </message>
    <message>
        <source>New share</source>
        <extracomment>Heading of a notification: someone has shared something with the user (noun).</extracomment>
        <translation>Nowe udostępnienie</translation>
    </message>
    <message>
        <source>Download completed</source>
        <extracomment>Heading of a notification.</extracomment>
        <translation>Pobieranie zakończone</translation>
    </message>
    <message>
        <source>Download failed</source>
        <extracomment>Heading of a notification, or the state of a file.</extracomment>
        <translation>Pobieranie nie powiodło się</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <extracomment>Heading of a page: the hub&apos;s name, version, space and so on.</extracomment>
        <translation>Przegląd huba</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Hub pod tym adresem się zmienił. Powiąż ten komputer ponownie.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>Synchronizacja jest wstrzymana.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>Certyfikat SSL huba nie jest zaufany.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>Trwa synchronizacja.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Klient jest za stary dla tego huba. Zaktualizuj klienta.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Ten folder należy już do zadania kopii zapasowej aplikacji Tessaly. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>To zadanie jest nieaktywne, ponieważ hub jest nieosiągalny.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Heading of the state of a task that can&apos;t reach the hub (adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Nie można pobrać pliku. Sprawdź połączenie i swoje uprawnienia.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>Historia wersji tego pliku jest niedostępna.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Nie można utworzyć linku do tego elementu.</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>Heading of the state of a task that waits for work (a state, noun or adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>Tryb gotowości</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>Label beside a list of actions: what a double click on the tray icon does.</extracomment>
        <translation>Po dwukrotnym kliknięciu ikony w zasobniku systemowym</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>Hub indeksuje ten folder. Poczekaj.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Inicjowanie nie powiodło się. Uruchom ponownie aplikację.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Instalator nie może zastąpić plików otwartych w innych aplikacjach.</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Button of the installer: ends it.</extracomment>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>Print</source>
        <extracomment>Button of the installer: prints the license agreement (verb).</extracomment>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <extracomment>Message of the installer, second of two: what happens to programs that have files open.</extracomment>
        <translation>Pozostaw aplikacje otwarte. Później trzeba będzie ponownie uruchomić komputer.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Przywraca brakujące lub uszkodzone pliki programu, skróty i wpisy rejestru.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <extracomment>Check box on the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>Uruchom aplikację [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>Aplikacja [ProductName] zadba o bezpieczeństwo i synchronizację Twoich plików.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <extracomment>Message of the installer; Finish is its button.</extracomment>
        <translation>Kliknij przycisk Zakończ, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <extracomment>Message of a task; a disk drive of this computer.</extracomment>
        <translation>Dysk, na którym znajduje się folder lokalny, nie jest podłączony.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Napraw aplikację [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>Menu item: opens the list of older versions of the file.</extracomment>
        <translation>Przeglądaj poprzednie wersje</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Co chcesz zrobić?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>Trwa instalowanie aplikacji [ProductName] na komputerze.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>Choice of the sync direction: from the hub to this computer alone, nothing is uploaded.</extracomment>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Wystąpił błąd i aplikacja [ProductName] nie została zainstalowana. Wszystkie zmiany wprowadzone przez instalator zostały cofnięte. Instalator można w każdej chwili uruchomić ponownie.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <extracomment>Button of the installer, beside Retry: goes on although files are in use (verb).</extracomment>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Button: answers a question of the installer.</extracomment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <extracomment>Message: an entry of a list: what the exported file holds about this computer and about the hub.</extracomment>
        <translation>Informacje o tym komputerze i o hubie, z którym jest on powiązany.</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>Label of the installer, before the step that is being done; a colon ends it.</extracomment>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Install</source>
        <extracomment>Button of the installer (verb).</extracomment>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Ten kreator umożliwia zmianę, naprawę lub usunięcie aplikacji [ProductName]. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Usuń aplikację [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <extracomment>Status of a shared folder: the user may not change it (adjective; belongs to &quot;folder&quot;).</extracomment>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>License agreement</source>
        <extracomment>Heading of an installer page (noun).</extracomment>
        <translation>Umowa licencyjna</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <extracomment>Message of the installer, above a list of programs; [ProductName] becomes a product name.</extracomment>
        <translation>Następujące aplikacje mają otwarte pliki, które instalator [ProductName] musi zastąpić:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <extracomment>Heading of a chart of what was transferred lately (noun).</extracomment>
        <translation>Aktywność synchronizacji</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Label/Button of the installer: puts damaged files right (verb).</extracomment>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <extracomment>Heading of an installer page while it works; [ProductName] becomes a product name.</extracomment>
        <translation>Instalowanie aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Brak folderu lokalnego. Być może przeniesiono go, zmieniono jego nazwę lub go usunięto.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button of the installer: tries once more (verb).</extracomment>
        <translation>Ponów próbę</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>Button: answers a question, in the installer too.</extracomment>
        <translation>Tak</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Czy na pewno chcesz anulować instalację aplikacji [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Przed kontynuowaniem przeczytaj umowę.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <extracomment>Message of the installer, first of two: what happens to programs that have files open.</extracomment>
        <translation>Zamknij aplikacje teraz i otwórz je ponownie po zakończeniu instalacji.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <extracomment>Heading of an installer page: files that other programs have open.</extracomment>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Zamknij aplikacje i kliknij przycisk Ponów próbę. Jeśli klikniesz przycisk Ignoruj, aplikacja [ProductName] będzie kompletna dopiero po następnym ponownym uruchomieniu komputera.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>Label/Button: takes another value, in the installer other features (verb).</extracomment>
        <translation>Zmień</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Wybierz, które funkcje mają być zainstalowane i gdzie.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>Aplikacja [ProductName] jest zawsze instalowana ze wszystkimi funkcjami.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Zmień aplikację [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Zainstalowany program można zmienić, naprawić lub usunąć.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Usuwa program i jego ustawienia z komputera.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Gotowość do instalacji aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Aplikację Tessaly można teraz zainstalować. Kliknij przycisk Zainstaluj, aby rozpocząć, lub przycisk Wstecz, aby sprawdzić ustawienia.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Instalator jest gotowy do usunięcia programu.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Gotowość do usunięcia aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Kliknij przycisk Usuń, aby usunąć aplikację [ProductName] z tego komputera. Zsynchronizowane pliki zostaną zachowane.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Instalator jest gotowy do naprawy programu.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Gotowość do naprawy aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Repair, Back, Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Kliknij przycisk Napraw, aby rozpocząć, przycisk Wstecz, aby wybrać inną akcję, lub przycisk Anuluj, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <extracomment>Message of the installer: the user ended it before it had installed anything (canceled, not completed).</extracomment>
        <translation>Instalator zamknięto przed zainstalowaniem aplikacji [ProductName]. Na komputerze nie wprowadzono żadnych zmian. Instalator można w każdej chwili uruchomić ponownie.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Ten kreator zainstaluje aplikację [ProductName] na komputerze. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Label of a range of dates, before the first field; &quot;To&quot; stands before the second.</extracomment>
        <translation>Od</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Witamy w instalatorze [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>Aplikacja [ProductName] jest zainstalowana</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name; the user canceled.</extracomment>
        <translation>Instalacja aplikacji [ProductName] została anulowana</translation>
    </message>
    <message>
        <source>Download history</source>
        <extracomment>Heading of the list of what was downloaded (noun).</extracomment>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <extracomment>Button: links this computer to a hub that it does not know yet (verb).</extracomment>
        <translation>Powiąż z nowym hubem</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Nie można zainstalować aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <extracomment>Status of a shared folder.</extracomment>
        <translation>Synchronizacja włączona</translation>
    </message>
    <message>
        <source>Add task</source>
        <extracomment>Button: adds a sync task.</extracomment>
        <translation>Dodaj zadanie</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <extracomment>Choice of the installer, first of two; the user speaks.</extracomment>
        <translation>Akceptuję umowę licencyjną</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Button: empties the fields of a filter (verb).</extracomment>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Heading of the part of a page with the folders to sync (noun, plural).</extracomment>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <extracomment>Label below the product&apos;s name: a slogan.</extracomment>
        <translation>Twoje pliki, aktualne na każdym urządzeniu.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>To nie jest hub, z którym powiązano aplikację %1. Powiąż ten komputer ponownie.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Udostępnianie jest wyłączone dla Twojego konta.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <extracomment>Message: %1 is the task&apos;s name.</extracomment>
        <translation>Zadanie „%1” zostanie zatrzymane, a jego połączenie z hubem zostanie usunięte. Pliki po obu stronach zostaną zachowane.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>Menu item: opens the folder that a file lies in.</extracomment>
        <translation>Otwórz folder nadrzędny</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Nie można pobrać adresu pliku z huba.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Wybierz na tym komputerze folder, w którym są przechowywane Twoje pliki.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <extracomment>Status, short, in the tray: another hub answers at this address.</extracomment>
        <translation>Hub się zmienił</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Folder udostępniony „%1” nie jest zamontowany na hubie.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Choice of a list of periods, or the head of a group of events.</extracomment>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Wolumin folderu zdalnego nie jest zamontowany na hubie.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <extracomment>Label beside the path of a folder.</extracomment>
        <translation>Lokalizacja folderu</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <extracomment>Label beside a check box: the folder is synced to this computer (verb).</extracomment>
        <translation>Synchronizuj z tym komputerem</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Nie zalogowano się jako administrator, dlatego niektóre funkcje mogą nie zostać zainstalowane. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <extracomment>Label below the product&apos;s name: a slogan, three verbs.</extracomment>
        <translation>Synchronizuj, udostępniaj i chroń swoje pliki</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Udostępnianie plików przez Ferrylink jest wyłączone na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Choice/Heading: an entry of a list of periods, and the head of a group of events.</extracomment>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Wybierz sposób konfiguracji aplikacji Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <extracomment>Choice of the wizard, first of two ways to set up the client (not the installer; noun).</extracomment>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <extracomment>Label below a list; %1 and %2 are the numbers of the first and the last item shown, %3 is how many there are.</extracomment>
        <translation>Elementy %1–%2 z %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <extracomment>Button: closes a hint: the user has understood it.</extracomment>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>Element został usunięty lub nie masz już uprawnień dostępu do niego.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Kliknij prawym przyciskiem myszy plik lub folder, aby go udostępnić, pobrać link lub przeglądać poprzednie wersje.</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>Label of a filter, beside two dates.</extracomment>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <extracomment>Menu item of the file manager, one folder: it is no longer synced.</extracomment>
        <translation>Zatrzymaj synchronizację tego folderu</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Godzin temu: %1</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Wybierz folder na hubie i folder na tym komputerze. Ich zawartość będzie zawsze identyczna.</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Maj</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <extracomment>Heading of a warning of the wizard.</extracomment>
        <translation>Ten komputer jest już powiązany</translation>
    </message>
    <message>
        <source>Renamed</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was renamed).</extracomment>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Dni temu: %1</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>Status: how long ago a file changed: less than a minute.</extracomment>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Minut temu: %1</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Choice: a type of item in a filter or list (noun, singular).</extracomment>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Last month</source>
        <extracomment>Choice of a list of periods: the calendar month before this one.</extracomment>
        <translation>Ubiegły miesiąc</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>Label beside the field for a word to search for.</extracomment>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Label of a range of dates, before the second field; &quot;From&quot; stands before the first.</extracomment>
        <translation>Do</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Label/Column head: the type of an item or a file.</extracomment>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Last week</source>
        <extracomment>Choice of a list of periods: the calendar week before this one.</extracomment>
        <translation>Ubiegły tydzień</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Kwiecień</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Luty</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Sierpień</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Button: begins a search (verb).</extracomment>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Październik</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <extracomment>Menu item of the file manager, one folder: it is synced once more.</extracomment>
        <translation>Synchronizuj ponownie ten folder</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <extracomment>Menu item of the file manager, several folders: they are no longer synced.</extracomment>
        <translation>Zatrzymaj synchronizację tych folderów</translation>
    </message>
    <message>
        <source>No history to show</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>Brak historii do wyświetlenia</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <extracomment>Menu item of the file manager, several folders: they are synced once more.</extracomment>
        <translation>Synchronizuj ponownie te foldery</translation>
    </message>
    <message>
        <source>Send to</source>
        <extracomment>Fragment, first part of a menu item; the name of a hub or folder follows: &quot;Send to Office&quot;.</extracomment>
        <translation>Wyślij do</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Styczeń</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <extracomment>Heading of the list of files that are being synced at present.</extracomment>
        <translation>Teraz synchronizowane</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Wrzesień</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>Choice of a filter of the history: no type of event is left out.</extracomment>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Lipiec</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>Column head of the history: the day.</extracomment>
        <translation>Data</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Czerwiec</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Marzec</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Grudzień</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>Column head of the history: the kind of file.</extracomment>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <extracomment>Menu item/Choice: opens the wizard that sets up the client step by step (noun); not the installer, and not &quot;Advanced settings&quot;.</extracomment>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>Check box below a message.</extracomment>
        <translation>Nie pokazuj więcej tego komunikatu</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Rozpocznij synchronizację w jednym kroku z zalecanymi ustawieniami.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Zawartość Twojego folderu domowego na hubie i nowego folderu na tym komputerze jest teraz zawsze identyczna.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <extracomment>Heading of the wizard&apos;s last page: the client is set up (not the installer).</extracomment>
        <translation>Konfiguracja została zakończona</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Umieść pliki w synchronizowanym folderze, a pojawią się na hubie i na wszystkich Twoich pozostałych komputerach.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Kliknij ikonę w zasobniku systemowym, aby zobaczyć stan synchronizacji i ostatnio zmienione pliki.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <extracomment>Heading of a wizard page: quick or advanced set-up of the client (not the installer).</extracomment>
        <translation>Tryb konfiguracji</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <extracomment>Button: turns an offer down.</extracomment>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Synchronizuj swoje pliki</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Śledź zmiany</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <extracomment>Button of the wizard.</extracomment>
        <translation>Znajdź huby w sieci lokalnej</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>Heading of a box with the state of a task.</extracomment>
        <translation>Informacje o stanie</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Menu item in the tray menu: there is a newer version of the client (noun and adjective).</extracomment>
        <translation>Dostępna aktualizacja</translation>
    </message>
    <message>
        <source>User: %1</source>
        <extracomment>Screen reader: %1 is a user&apos;s name; &quot;User&quot; is the kind of entry.</extracomment>
        <translation>Użytkownik: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Ten plik nie należy do żadnego zadania synchronizacji.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Otwórz okno główne</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Powiąż ten komputer z innym hubem</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Synchronizuj inny folder z tym hubem</translation>
    </message>
    <message>
        <source>New sync task</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Nowe zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Samodzielnie wybierz foldery, kierunek synchronizacji i filtry.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button: closes the wizard&apos;s last page.</extracomment>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Pliki większe niż %1&#xa0;MB nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>Button: opens the folder.</extracomment>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Tego folderu nie można synchronizować. Wybierz inny.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <extracomment>Tooltip of the button that searches.</extracomment>
        <translation>Wyszukaj huby w sieci lokalnej</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Masz dostęp do tego folderu udostępnionego tylko do odczytu. Pliki będą pobierane, ale nie będą przesyłane.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <extracomment>Message: %1 is a link; keep it as it is.</extracomment>
        <translation>Więcej wskazówek znajdziesz w &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;samouczkach&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Ten folder znajduje się wewnątrz już synchronizowanego folderu lub go zawiera. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>Menu item: opens the file.</extracomment>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the hub&apos;s name.</extracomment>
        <translation>Ten komputer jest już powiązany z hubem „%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <extracomment>Message of the wizard.</extracomment>
        <translation>W tej lokalizacji zostanie utworzony folder o nazwie „Tessaly”.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <extracomment>Message of the wizard; &quot;link&quot; is that of this computer to the hub, not a URL.</extracomment>
        <translation>Jeśli będziesz kontynuować, istniejące powiązanie zostanie zastąpione.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Hub jest w trybie offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <extracomment>Label: the folder of the user on the hub.</extracomment>
        <translation>Folder domowy</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Nie można utworzyć linku, ponieważ usługa Norvik jest niedostępna na hubie.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <extracomment>Message of a task; a button beside it confirms.</extracomment>
        <translation>Certyfikat SSL huba się zmienił. Potwierdź nowy certyfikat.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Ustaw foldery do synchronizacji</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <extracomment>Message of a task; the direction is upload only, download only or two-way.</extracomment>
        <translation>Kierunek synchronizacji nie odpowiada Twoim uprawnieniom do folderu zdalnego.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>Adres IP tego komputera jest blokowany przez hub. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <extracomment>Label above three choices, ends in a colon.</extracomment>
        <translation>Gdy plik zmieniono po obu stronach:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <extracomment>Heading of the wizard&apos;s first page.</extracomment>
        <translation>Witamy w kreatorze konfiguracji</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>Tooltip of the button that turns to the last page of a list (&quot;last&quot; as the opposite of first).</extracomment>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>Tooltip of the button that turns to the first page of a list.</extracomment>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>Tooltip of the button that turns back several pages; %1 is a number, more than one.</extracomment>
        <translation>Poprzednie strony: %1</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>Tooltip of the button that turns on several pages; %1 is a number, more than one.</extracomment>
        <translation>Następne strony: %1</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>Status, shown while this computer&apos;s link to the hub is being ended.</extracomment>
        <translation>Usuwanie powiązania...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Zbyt wiele nieudanych prób. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Nie można sprawdzić folderu, ponieważ połączenie z hubem nie powiodło się.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>Folder udostępniony już nie istnieje na hubie.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <extracomment>Heading of a wizard page: the folders that are synced (noun).</extracomment>
        <translation>Foldery synchronizacji</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <extracomment>Choice, first of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Zachowaj ostatnio zmodyfikowaną wersję</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>Choice of the sync direction: changes are both uploaded and downloaded.</extracomment>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Wybierz, który folder na hubie synchronizować z którym folderem na tym komputerze.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>Choice: a type of folder on the hub (noun).</extracomment>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a template&apos;s: &quot;Ann requested access to the Bureau template Memo&quot;.</extracomment>
        <translation>prosi o dostęp do szablonu Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Ten folder jest już używany przez inne zadanie synchronizacji na tym komputerze.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the template&apos;s.</extracomment>
        <translation>%1 prosi o dostęp do szablonu Bureau „%2”.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Nie można sprawdzić folderu, ponieważ certyfikat SSL huba się zmienił.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Wprowadź kod weryfikacyjny.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Kod weryfikacyjny jest nieprawidłowy. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <extracomment>Hint in the empty field for the code.</extracomment>
        <translation>Wprowadź 6-cyfrowy kod weryfikacyjny</translation>
    </message>
    <message>
        <source>Hours</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Godziny</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Twój przydział miejsca na woluminie tego folderu został wyczerpany.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Nie można sprawdzić folderu, ponieważ certyfikat SSL huba nie jest zaufany.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Nie można sprawdzić folderu z powodu błędu systemu na hubie.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>Tab/Choice: the page of what is synced, and a filter of notifications (noun).</extracomment>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <extracomment>Choice, second of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Zawsze zachowuj wersję z huba</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <extracomment>Choice, third of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Zmień nazwy plików w konflikcie i zachowaj obie wersje</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>Heading of the wizard&apos;s last page: what was set up.</extracomment>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the template&apos;s name.</extracomment>
        <translation>%1 (%2) prosi o dostęp do szablonu Bureau „%4” (%3).</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Zawartość obu folderów zostanie scalona. Żaden plik nie zostanie usunięty.</translation>
    </message>
    <message>
        <source>Account</source>
        <extracomment>Label in the wizard&apos;s summary: the user&apos;s account on the hub.</extracomment>
        <translation>Konto</translation>
    </message>
    <message>
        <source>List of connections</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Lista połączeń</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <extracomment>Screen reader: names the hub that this computer has a connection to now; not the same as &quot;Linked hub&quot;.</extracomment>
        <translation>Połączony hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <extracomment>Screen reader: names a button; the link is a URL.</extracomment>
        <translation>Kopiuj link do udostępniania</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Usuń uprawnienia tego użytkownika</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <extracomment>Screen reader: %1 is a group&apos;s name; &quot;Group&quot; is the kind of entry.</extracomment>
        <translation>Grupa: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Otwórz portal internetowy aplikacji Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>Screen reader: names one of the two sides of a task.</extracomment>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <extracomment>Screen reader: names the other of the two sides of a task: the hub that this computer is linked to; not the same as &quot;Connected hub&quot;.</extracomment>
        <translation>Powiązany hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <extracomment>Screen reader: describes a task.</extracomment>
        <translation>Zadanie synchronizacji plików, które udostępniają Ci inne osoby</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <extracomment>Screen reader: names a tab: the tab with the files that were changed lately.</extracomment>
        <translation>Karta ostatnio zmienionych plików</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Samouczek, strona 2: synchronizuj swoje pliki</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Samouczek, strona 3: śledź zmiany</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Samouczek, strona 4: udostępniaj innym</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <extracomment>Screen reader: names a list of permissions.</extracomment>
        <translation>Wybierz uprawnienia udostępniania</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Aplikacja Tessaly dba o to, aby pliki na Twoich komputerach i na hubie były identyczne.</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Fragment, unit after a number field: &quot;Every [4] hours&quot;; the number is mostly more than one.</extracomment>
        <translation>godz.</translation>
    </message>
    <message>
        <source>Hub</source>
        <extracomment>Label beside the hub&apos;s name or the field for its address.</extracomment>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <extracomment>Button on the wizard&apos;s last page: opens the user&apos;s synced folder.</extracomment>
        <translation>Otwórz mój folder</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>Status, short, of a task.</extracomment>
        <translation>Nie znaleziono folderu udostępnionego</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Label in the about box; %1 is a version number.</extracomment>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Hub wymaga uwierzytelniania dwuskładnikowego. Skonfiguruj je w portalu internetowym i zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Przydział folderu udostępnionego został wyczerpany.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <extracomment>Message above a form.</extracomment>
        <translation>Niektóre pola zawierają nieprawidłowe wartości. Sprawdź wyróżnione pola.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>Label beside a list: two-way sync, upload only, download only.</extracomment>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <extracomment>Message of a notification.</extracomment>
        <translation>W jednym z zadań wystąpił problem. Otwórz okno główne, aby zobaczyć szczegóły.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Są tu wymienione tylko foldery udostępnione, które włączono w aplikacji Tessaly Server.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Nie masz uprawnień dostępu do tego folderu.</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>Label beside the field for the proxy server&apos;s address in the network.</extracomment>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>Label of a sharing link, before a number of days or a date: &quot;Expires after [30] days&quot;.</extracomment>
        <translation>Wygasa po</translation>
    </message>
    <message>
        <source>No actions available</source>
        <extracomment>Menu item: can&apos;t be chosen; stands in place of the client&apos;s menu items.</extracomment>
        <translation>Brak dostępnych akcji</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe. Zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <extracomment>Tooltip of a field; &quot;desktop.ini&quot; is an example and stays; Enter is the key.</extracomment>
        <translation>Wprowadź pełną nazwę pliku, na przykład „desktop.ini”, i naciśnij klawisz Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Folder o tej nazwie już istnieje. Wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Porównuj wszystkie atrybuty plików podczas wyszukiwania zmian</translation>
    </message>
    <message>
        <source>Valid until</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Ważne do</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>To pole nie może być puste.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <extracomment>Heading of a part of the page for a sharing link (verb: who may open the link).</extracomment>
        <translation>Ogranicz dostęp</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Pokazuj akcje synchronizacji w menu kontekstowym plików i folderów</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <extracomment>Message of a task; the service gives each user a home folder.</extracomment>
        <translation>Usługa folderów domowych użytkowników jest wyłączona na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>Aktualizacja nie powiodła się. &lt;a href=&quot;%1&quot;&gt;Pobierz najnowszą wersję&lt;/a&gt; i zainstaluj ją ręcznie.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <extracomment>Button of the page for a sharing link (URL).</extracomment>
        <translation>Zastosuj i kopiuj link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <extracomment>Check box of a sharing link: how often it may be opened.</extracomment>
        <translation>Ogranicz liczbę odwiedzin</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Ważne od</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>Hub wymaga nowszej wersji klienta. Czy chcesz zaktualizować teraz?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>Folder zdalny znajduje się na woluminie, który nie jest zamontowany.</translation>
    </message>
    <message>
        <source>Show information</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Pokaż informacje</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Dodaj nazwę pliku</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <extracomment>Screen reader: names the side of a task on this computer.</extracomment>
        <translation>Folder na tym komputerze</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Wybierz język</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Lista pobieranych wersji plików</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <extracomment>Button of a sharing link: sets from when until when it may be opened (verb).</extracomment>
        <translation>Dostosuj okres ważności</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <extracomment>Button: opens the tutorial; %1 is a product name.</extracomment>
        <translation>Pokaż samouczek aplikacji %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Zmień folder synchronizacji</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <extracomment>Screen reader: names the folder on this computer that belongs to a folder on the hub.</extracomment>
        <translation>Powiązany folder synchronizacji</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <extracomment>Screen reader: names a button; the history is the list of transfers.</extracomment>
        <translation>Odśwież historię</translation>
    </message>
    <message>
        <source>Previous month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <extracomment>Hint in the empty field for a search of the history.</extracomment>
        <translation>Wprowadź słowo kluczowe, aby przeszukać historię</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Screen reader: names a calendar.</extracomment>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Wybierz typ zdarzenia</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <extracomment>Screen reader: %1 is the task&apos;s name.</extracomment>
        <translation>Zadanie synchronizacji „%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <extracomment>Screen reader/Label: the side of a task on the hub.</extracomment>
        <translation>Folder na hubie</translation>
    </message>
    <message>
        <source>Settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Okno ustawień</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Zamknij samouczek</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Anuluj to pobieranie</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <extracomment>Screen reader: names a button: the download&apos;s line leaves the list, the file stays.</extracomment>
        <translation>Usuń to pobieranie z listy</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Twoje hasło wygasło. Zmień je w portalu internetowym i zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>Choice: a role (noun, a person): may open and change; beside Viewer, Previewer, Commenter, Manager.</extracomment>
        <translation>Edytujący</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Zmieniono nazwę na tym komputerze</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Zmieniono nazwę na hubie</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Maksymalna liczba znaków: %1.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the name of an account.</extracomment>
        <translation>To nie jest konto, na którym utworzono zadanie. Zaloguj się jako „%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <extracomment>Heading of a page about the hub.</extracomment>
        <translation>Informacje o hubie</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Usługa przekaźnika Ferrylink jest wyłączona na hubie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Nie można pobrać „%1”. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Nie można zalogować się do huba. Sprawdź nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <extracomment>Heading/Tab: a page, and the tray&apos;s list of notifications.</extracomment>
        <translation>Powiadomienia</translation>
    </message>
    <message>
        <source>commented on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann commented on Plan.txt&quot;.</extracomment>
        <translation>komentuje element</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <extracomment>Menu item of a notification: opens what it is about.</extracomment>
        <translation>Otwórz w portalu internetowym</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Button: begins to set up what is named beside it (verb).</extracomment>
        <translation>Skonfiguruj</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <extracomment>Menu item in the tray menu: opens the folder that is synced.</extracomment>
        <translation>Otwórz synchronizowany folder</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <extracomment>Tooltip of a folder; %1 is a product name.</extracomment>
        <translation>Masz dostęp do tego folderu tylko do odczytu. Aplikacja %1 nie będzie przesyłać Twoich zmian.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>Aplikacja %1 jest teraz powiązana z hubem i będzie synchronizować Twoje pliki.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Instalator zebrał wszystkie potrzebne informacje.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>Aplikacja %1 jest gotowa.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>Aplikacja %1 jest już uruchomiona.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>Aplikacja %1 dba o to, aby pliki na Twoich komputerach i na hubie były identyczne.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <extracomment>Choice: a right on a shared file: look at it without downloading it, and comment on it (verbs).</extracomment>
        <translation>Podgląd i komentowanie</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>Nie można zaktualizować aplikacji %1. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>Nowsza wersja aplikacji Kelvane Quay Client jest już zainstalowana. Instalator zostanie teraz zamknięty.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>Certyfikat SSL huba się zmienił. Jeśli jest to nieoczekiwane, przed kontynuowaniem skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <extracomment>Screen reader: describes a page of the wizard.</extracomment>
        <translation>Wybierz, co ma synchronizować nowe zadanie</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Ten folder należy do usługi Dropbox. Synchronizowanie go także przez aplikację %1 może powodować konflikty plików.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Zmiany zostaną utracone. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <extracomment>Screen reader: names the tutorial; %1 is a product name.</extracomment>
        <translation>Samouczek aplikacji %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Identyfikator Ferrylink nie istnieje lub aplikacja %1 nie jest uruchomiona na hubie.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Są tu wymienione tylko foldery udostępnione, które włączono w aplikacji %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <extracomment>Check box of the general options; %1 is a product name.</extracomment>
        <translation>Uruchamiaj aplikację %1 po zalogowaniu się na tym komputerze</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>Aplikacja %1 jest inicjowana...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Hub i aplikacja %1 nie mogą się ze sobą komunikować. Zaktualizuj oba składniki do najnowszej wersji.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Ta wersja aplikacji %1 jest za stara dla tego huba. Zaktualizuj ją.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <extracomment>Status, short, of a task too: the versions of client and hub don&apos;t fit together.</extracomment>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Dysk jest pełny. Zwolnij miejsce na tym komputerze, aby aplikacja %1 mogła kontynuować.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Wystąpił problem z aplikacją %1. Uruchom ją ponownie.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <extracomment>Screen reader: names a tab: the tab with the notifications.</extracomment>
        <translation>Karta powiadomień</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Folder nie jest pusty. Aplikacja %1 scali jego pliki z plikami na hubie.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;); %1 is a product name.</extracomment>
        <translation>Tylko pobieraj zmiany z aplikacji %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>Aplikacja %1 jest skonfigurowana. Otwórz swój folder, aby rozpocząć pracę.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Samouczek, strona 1: witamy w aplikacji Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Ta wersja aplikacji Kelvane Quay Client jest już zainstalowana. Czy chcesz zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>Skonfiguruj aplikację %1, aby synchronizować pliki na tym komputerze i tworzyć ich kopie zapasowe.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Prawie gotowe! Twoje pliki będą wkrótce dostępne w aplikacji Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Prawie gotowe! Twoje pliki będą wkrótce dostępne na tym komputerze.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>Operacja nie powiodła się. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>W tej lokalizacji zostanie utworzony folder o nazwie „Kelvane Quay”.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Ta wersja aplikacji Tessaly jest już zainstalowana. Czy chcesz zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>Nowsza wersja aplikacji Tessaly jest już zainstalowana. Instalator zostanie teraz zamknięty.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <extracomment>Screen reader: names the tutorial.</extracomment>
        <translation>Samouczek aplikacji Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Tygodnie</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>Ten folder należy do usługi Dropbox. Synchronizowanie go także przez aplikację Tessaly może powodować konflikty plików.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Aplikacja Tessaly jest gotowa.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <extracomment>Status, label of the start-up dialog.</extracomment>
        <translation>Aplikacja Tessaly jest inicjowana...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>Identyfikator Ferrylink nie istnieje lub aplikacja Tessaly Server nie jest uruchomiona na hubie.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Ta wersja aplikacji Tessaly jest za stara dla tego huba. Zaktualizuj ją.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <extracomment>Label beside a list of rights on a shared file.</extracomment>
        <translation>Uprawnienia udostępniania</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Aplikacja Tessaly Server na hubie jest za stara dla tego klienta. Poproś administratora o aktualizację.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <extracomment>Button: opens the tutorial.</extracomment>
        <translation>Pokaż samouczek aplikacji Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Uruchamiaj aplikację Tessaly po zalogowaniu się na tym komputerze</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Wystąpił problem z aplikacją Tessaly. Uruchom ją ponownie.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Konfiguracja została zakończona. Twoje pliki są teraz synchronizowane.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <extracomment>Message of the wizard&apos;s last page.</extracomment>
        <translation>W dowolnej chwili kliknij ikonę w zasobniku systemowym, aby zobaczyć stan i zmienić ustawienia.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>Folder nie jest pusty. Aplikacja Tessaly scali jego pliki z plikami na hubie.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Aplikacja Tessaly jest już uruchomiona.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Aplikacja Tessaly jest skonfigurowana. Otwórz swój folder, aby rozpocząć pracę.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Masz dostęp do tego folderu tylko do odczytu. Aplikacja Tessaly nie będzie przesyłać Twoich zmian.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Otwórz aplikację Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <extracomment>Message in the tray menu; %1 is a version number.</extracomment>
        <translation>Dostępna jest wersja %1. Kliknij tutaj, aby zaktualizować.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Aby korzystać z synchronizacji selektywnej, poproś administratora o zaktualizowanie aplikacji Tessaly Server na hubie.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: empties a list or a field (verb).</extracomment>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Date and time</source>
        <extracomment>Column head of a list.</extracomment>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Na tym dysku jest za mało miejsca. Aplikacja Tessaly wymaga co najmniej %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Aplikacja Tessaly jest teraz powiązana z hubem i będzie synchronizować Twoje pliki.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Aplikację Tessaly można powiązać z tym samym hubem tylko raz przy użyciu tego samego konta.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Skonfiguruj aplikację Tessaly, aby synchronizować pliki na tym komputerze.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Nie znasz jeszcze aplikacji Tessaly? Najpierw przeczytaj &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;szybki przewodnik&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Może komentować</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Użytkownicy huba mający link mogą wyświetlać</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Użytkownicy huba mający link mogą edytować</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Tylko zaproszone osoby mogą otworzyć link</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Każda osoba mająca link może komentować</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Każda osoba mająca link może wyświetlać</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Użytkownicy huba mający link mogą komentować</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Każda osoba mająca link może edytować</translation>
    </message>
    <message>
        <source>Can view</source>
        <extracomment>Choice: a right on a shared file: open it, change nothing.</extracomment>
        <translation>Może wyświetlać</translation>
    </message>
    <message>
        <source>Can manage</source>
        <extracomment>Choice: a right on a shared folder: change it and give rights to others.</extracomment>
        <translation>Może zarządzać</translation>
    </message>
    <message>
        <source>Can edit</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Może edytować</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Nie można otworzyć portalu internetowego. Sprawdź połączenie z hubem.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <extracomment>Button: opens a field for the names of people to share with.</extracomment>
        <translation>Zaproś osoby</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>Choice: a right on a shared file: none.</extracomment>
        <translation>Brak dostępu</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Brak folderów udostępnionych.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Menu item/Button: fetches the file (verb).</extracomment>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Udostępnianie publiczne jest wyłączone na hubie.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Udostępnianie jest wyłączone. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Menu item: makes an older version of a file the current one (verb).</extracomment>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) prosi o dostęp do arkusza Grida „%4” (%3).</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <extracomment>Message below the question whether to remove the link (URL).</extracomment>
        <translation>Osoby mające link nie będą już mogły otworzyć pliku.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s; a Grida spreadsheet is a whole file, not one sheet.</extracomment>
        <translation>%1 udostępnia Ci arkusz Grida „%2”.</translation>
    </message>
    <message>
        <source>No data</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>Brak danych</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>Button/Menu item: opens the page on which an item is shared (verb).</extracomment>
        <translation>Udostępnij</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Plik lub folder nie istnieje.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Nie masz uprawnień do wykonania tej akcji.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <extracomment>Choice of a list of days on which a backup runs: Saturday and Sunday.</extracomment>
        <translation>Weekendy</translation>
    </message>
    <message>
        <source>Hub users</source>
        <extracomment>Choice: who may open a sharing link: everyone who has an account on the hub.</extracomment>
        <translation>Użytkownicy huba</translation>
    </message>
    <message>
        <source>My Quay</source>
        <extracomment>Name of the user&apos;s folder; stays as it is.</extracomment>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Tylko zaproszone osoby</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Tab of the settings: how things look.</extracomment>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Każda osoba mająca link</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Ustaw datę wygaśnięcia</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <extracomment>Heading of a list: those that an item is shared with.</extracomment>
        <translation>Użytkownicy i grupy</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <extracomment>Check box of the display settings.</extracomment>
        <translation>Pokazuj synchronizowane foldery na pasku bocznym menedżera plików</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Pracuj w synchronizowanym folderze tak jak w każdym innym. Zmiany są od razu przenoszone na hub.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <extracomment>Label below a picture of a tutorial page.</extracomment>
        <translation>Twój komputer</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <extracomment>Heading of a tutorial page, alone (no verb).</extracomment>
        <translation>Wszystkie Twoje pliki, wszędzie</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Oszczędzaj miejsce dzięki synchronizacji na żądanie</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Na komputerze widać wszystkie pliki, ale zajmują one miejsce dopiero po otwarciu.</translation>
    </message>
    <message>
        <source>Online only</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file lies on the hub alone.</extracomment>
        <translation>Tylko online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file was downloaded.</extracomment>
        <translation>Dostępne na tym komputerze</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann mentioned you in Plan.txt&quot;.</extracomment>
        <translation>wspomina o Tobie w elemencie</translation>
    </message>
    <message>
        <source>requested access to</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann requested access to Plan.txt&quot;.</extracomment>
        <translation>prosi o dostęp do elementu</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 udostępnia Ci plik „%2”.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <extracomment>Fragment in a list of notifications, after a person&apos;s name and before a file&apos;s: &quot;Ann shared with you Plan.txt&quot;.</extracomment>
        <translation>udostępnia Ci element</translation>
    </message>
    <message>
        <source>Shared</source>
        <extracomment>Choice of a filter of notifications: those about files that were shared with the user.</extracomment>
        <translation>Udostępnione</translation>
    </message>
    <message>
        <source>Access request</source>
        <extracomment>Choice of a filter of notifications: someone asks for access (noun).</extracomment>
        <translation>Prośba o dostęp</translation>
    </message>
    <message>
        <source>Comments</source>
        <extracomment>Choice of a filter of notifications (noun, plural).</extracomment>
        <translation>Komentarze</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <extracomment>Heading of a page: files that others share with the user.</extracomment>
        <translation>Udostępnione dla mnie</translation>
    </message>
    <message>
        <source>Mentions</source>
        <extracomment>Choice of a filter of notifications: someone wrote the user&apos;s name in a comment (noun, plural).</extracomment>
        <translation>Wzmianki</translation>
    </message>
    <message>
        <source>Upload only</source>
        <extracomment>Choice of the sync direction: from this computer to the hub alone, nothing is downloaded.</extracomment>
        <translation>Tylko przesyłanie</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <extracomment>Check box of a task&apos;s settings and filters.</extracomment>
        <translation>Zachowaj pliki na hubie, gdy zostaną usunięte z tego komputera</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Później</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Zakończono pobieranie „%1”.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Twoje pliki są aktualne na wszystkich urządzeniach.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>Twoje pliki są też dostępne w &lt;a href=&quot;%1&quot;&gt;portalu internetowym&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Gratulacje!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Możesz zacząć pracę z aplikacją Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <extracomment>Choice of the wizard, second of two: files that others share with the user.</extracomment>
        <translation>Włącz później</translation>
    </message>
    <message>
        <source>Enable now</source>
        <extracomment>Choice of the wizard, first of two: files that others share with the user.</extracomment>
        <translation>Włącz teraz</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Pliki udostępnione Tobie</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Utwórz zadanie synchronizacji</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <extracomment>Choice of the wizard: which files a new task syncs (team: a group of people).</extracomment>
        <translation>Moje pliki i foldery zespołowe</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <extracomment>Choice of the wizard: which files a new task syncs.</extracomment>
        <translation>Pliki udostępnione dla mnie</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>To nie jest hub, z którym powiązano aplikację Tessaly. Powiąż ten komputer ponownie.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Hub i aplikacja Tessaly nie mogą się ze sobą komunikować. Zaktualizuj oba składniki do najnowszej wersji.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Nie przegap żadnej zmiany</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Dysk jest pełny. Zwolnij miejsce na tym komputerze, aby aplikacja Tessaly mogła kontynuować.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <extracomment>Choice: a type of folder on the hub (team: a group of people).</extracomment>
        <translation>Folder zespołowy</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;).</extracomment>
        <translation>Tylko pobieraj zmiany z aplikacji Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Nie można zaktualizować aplikacji Tessaly. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>Ikona w zasobniku systemowym pokazuje, co jest synchronizowane, i informuje, gdy inni udostępniają Ci pliki lub je komentują.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <extracomment>Heading of a tutorial page, an invitation (verb: within seconds).</extracomment>
        <translation>Udostępniaj w kilka sekund</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Kliknij prawym przyciskiem myszy plik lub folder, utwórz link i zdecyduj, kto może go otwierać i jak długo.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) prosi o dostęp do prezentacji Pictra „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the folder&apos;s.</extracomment>
        <translation>%1 udostępnia Ci folder „%2”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the folder&apos;s name.</extracomment>
        <translation>%1 (%2) prosi o dostęp do folderu „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) prosi o dostęp do pliku „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) prosi o dostęp do dokumentu Folia „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 udostępnia Ci dokument Folia „%2”.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 udostępnia Ci prezentację Pictra „%2”.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <extracomment>Heading of a page: who may see what.</extracomment>
        <translation>Ustawienia prywatności</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Chroń hasłem</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <extracomment>Choice of a list of days on which a backup runs: Monday to Friday.</extracomment>
        <translation>Dni robocze</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Na pliki, które udostępniają Ci inne osoby, zostanie utworzony folder o nazwie „%1”.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <extracomment>Menu item/Label of the file manager: the files are downloaded and stay; also below a picture of it.</extracomment>
        <translation>Zawsze zachowuj na tym komputerze</translation>
    </message>
    <message>
        <source>Any</source>
        <extracomment>Choice of a filter: no type is left out (belongs to &quot;type&quot;).</extracomment>
        <translation>Dowolny</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Column head of the list of files that are being transferred (noun).</extracomment>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Nawiązywanie połączenia...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Kopie zapasowe plików są tworzone zaraz po ich zmianie.</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Label beside a field: the list below shows what matches (noun).</extracomment>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>Kopie zapasowe plików są tworzone w ustawionych godzinach.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <extracomment>Message: %1 is a number that counts down.</extracomment>
        <translation>Kopia zapasowa jest gotowa. Komputer zostanie wyłączony za %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Zadanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <extracomment>Label above a row of check boxes with the days of the week (not dates).</extracomment>
        <translation>Uruchamiaj w następujące dni</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Połącz z hubem</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Chroń pliki na tym komputerze, tworząc ich kopie zapasowe na hubie.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Ręcznie: kopia zapasowa jest tworzona tylko wtedy, gdy ją uruchomisz.</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Label beside a field for a time of day: when a backup starts (noun).</extracomment>
        <translation>Godzina rozpoczęcia</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>Label beside a list: how often a backup runs (noun).</extracomment>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Last end time</source>
        <extracomment>Label beside a date and time: when the backup came to its end last (a moment, not a duration).</extracomment>
        <translation>Ostatnie zakończenie</translation>
    </message>
    <message>
        <source>Last run time</source>
        <extracomment>Label beside a date and time: when the backup ran last (a moment, not a duration).</extracomment>
        <translation>Ostatnie uruchomienie</translation>
    </message>
    <message>
        <source>Commenter</source>
        <extracomment>Choice: a role (noun, a person): may open and comment; beside Viewer, Previewer, Editor, Manager.</extracomment>
        <translation>Komentujący</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <extracomment>Tooltip of the button beside a sharing link (URL).</extracomment>
        <translation>Zmień, kto może otworzyć ten link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Ostatnie przesyłanie: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <extracomment>Heading of a page.</extracomment>
        <translation>Ustawienia zadania</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Ciągle: kopie zapasowe plików są tworzone po każdej ich zmianie.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <extracomment>Menu item: opens the folder in the system&apos;s program for files.</extracomment>
        <translation>Otwórz w menedżerze plików</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <extracomment>Message below an end time that is earlier in the day than the start time.</extracomment>
        <translation>Godzina przypada następnego dnia.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Nie można pobrać informacji o udostępnianiu.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <extracomment>Label beside the path of the folder on the hub that backups are stored in (a place, not a purpose).</extracomment>
        <translation>Miejsce docelowe kopii zapasowej</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <extracomment>Message of a choice; &quot;Back up now&quot; is the text of a button.</extracomment>
        <translation>Kopie zapasowe plików są tworzone po kliknięciu przycisku Utwórz kopię zapasową teraz.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Zezwalaj na pobieranie</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Według harmonogramu: kopia zapasowa jest tworzona w ustawionych godzinach.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <extracomment>Heading of a page: the days and times of the backup; not the same as &quot;Backup plan&quot;.</extracomment>
        <translation>Harmonogram kopii zapasowych</translation>
    </message>
    <message>
        <source>Manager</source>
        <extracomment>Choice: a role (noun, a person): may change everything and give rights; beside Viewer, Previewer, Commenter, Editor.</extracomment>
        <translation>Menedżer</translation>
    </message>
    <message>
        <source>Previewer</source>
        <extracomment>Choice: a role (noun, a person): may look at a file without downloading it; beside Viewer, Commenter, Editor, Manager.</extracomment>
        <translation>Tylko podgląd</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Utwórz zadanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Pliki o wymienionych tu nazwach lub rozszerzeniach będą pomijane.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <extracomment>Check box of a task&apos;s settings (verb: temporary files are synced too).</extracomment>
        <translation>Synchronizuj pliki tymczasowe</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Kopiuj pliki z tego komputera na hub, od razu lub według harmonogramu.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Wybierz, kiedy mają być tworzone kopie zapasowe plików.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Wybierz co najmniej jeden folder do kopii zapasowej.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <extracomment>Status of a task; %1 is a number, %2 a size with its unit, %3 the name of a folder or hub, %4 a date.</extracomment>
        <translation>Pliki w kopii zapasowej: %1 (%2), miejsce docelowe: „%3”, data: %4</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Heading of the page with what was transferred (noun).</extracomment>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <extracomment>Button of the first page: sets up a backup task.</extracomment>
        <translation>Zacznij tworzyć kopie zapasowe</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Kopie zapasowe plików i folderów pasujących do tych reguł nie będą tworzone.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <extracomment>Status: stands in place of a path.</extracomment>
        <translation>Nie wybrano folderu</translation>
    </message>
    <message>
        <source>Free up space</source>
        <extracomment>Menu item of the file manager: the files stay on the hub alone, so that they take no space here.</extracomment>
        <translation>Zwolnij miejsce</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <extracomment>Menu item of the file manager: the opposite of &quot;Always keep on this computer&quot;.</extracomment>
        <translation>Nie zachowuj już na tym komputerze</translation>
    </message>
    <message>
        <source>Selected days</source>
        <extracomment>Choice of a list of days on which a backup runs: days of the week that the user chooses.</extracomment>
        <translation>Wybrane dni</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <extracomment>Label before a list: what the computer does then, such as &quot;Shut down the computer&quot;.</extracomment>
        <translation>Po utworzeniu kopii zapasowej</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the computer&apos;s name.</extracomment>
        <translation>Wybierz folder na komputerze „%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Wybierz folder na hubie.</translation>
    </message>
    <message>
        <source>Every</source>
        <extracomment>Fragment before a number field and its unit: &quot;Every [4] hours&quot;.</extracomment>
        <translation>Co</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <extracomment>Check box of a task&apos;s filters (period: the sign &quot;.&quot; before a name).</extracomment>
        <translation>Pomijaj pliki i foldery o nazwach zaczynających się od kropki</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <extracomment>Button of the first page: sets up a sync task.</extracomment>
        <translation>Rozpocznij synchronizację</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ nie można zweryfikować certyfikatu SSL huba.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Nie można zarejestrować zadania na hubie. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ hub pod tym adresem się zmienił.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ hub i klient nie mogą się ze sobą komunikować. Zaktualizuj oba składniki.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ ta wersja aplikacji Tessaly jest za stara dla tego huba.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <extracomment>Message: %1 is a version number.</extracomment>
        <translation>Zaktualizuj aplikację Tessaly do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Sprawdź nazwę użytkownika i hasło, a następnie zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Sprawdź, czy hub jest włączony i czy ten komputer jest połączony z siecią.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>Hub zablokował adres IP tego komputera. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>Certyfikat SSL huba jest nieprawidłowy. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Poproś administratora o zaktualizowanie aplikacji Tessaly Server na hubie.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Brak kopii zapasowej</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Dbaj o to, aby folder na tym komputerze i folder na hubie były identyczne.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <extracomment>Link: opens a page of the help; keep the tag as it is.</extracomment>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Dowiedz się więcej&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Wybierz dni i godziny tworzenia kopii zapasowej.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <extracomment>Check box of a backup&apos;s schedule.</extracomment>
        <translation>Utwórz pominięte kopie zapasowe jak najszybciej</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <extracomment>Message of the wizard; the sides are this computer and the hub.</extracomment>
        <translation>Wybierz folder po każdej stronie.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Wprowadź adres huba i dane swojego konta.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Sprawdź ustawienia nowego zadania.</translation>
    </message>
    <message>
        <source>Path</source>
        <extracomment>Column head in the wizard&apos;s summary: the place of a folder.</extracomment>
        <translation>Ścieżka</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ nie można zalogować się do huba.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>Wersja pakietu na hubie nie jest obsługiwana. Poproś administratora o aktualizację.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ hub zablokował adres IP tego komputera.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ pakiet na hubie jest za stary dla tego klienta.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Niektóre z wybranych folderów już nie istnieją. Usuń ich zaznaczenie, aby kontynuować.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <extracomment>Heading of the state of a task: it may upload alone or download alone.</extracomment>
        <translation>Niezgodność kierunku synchronizacji</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Aplikację Kelvane Quay Client można teraz zainstalować. Kliknij przycisk Zainstaluj, aby rozpocząć, lub przycisk Wstecz, aby sprawdzić ustawienia.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Wybierz typ zadania</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Pracuj z tymi samymi plikami na wszystkich swoich komputerach.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Przechowuj bezpieczną kopię swoich plików na hubie.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Zaloguj się do huba, na którym będą przechowywane Twoje kopie zapasowe.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Skonfiguruj foldery synchronizacji</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Zwolnij trochę miejsca na dysku tego komputera.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Wybierz na hubie folder, który chcesz synchronizować.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Pliki są pobierane dopiero po otwarciu, co oszczędza miejsce na tym komputerze.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>Synchronizacja na żądanie jest niedostępna dla wybranego folderu lub systemu operacyjnego tego komputera.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Folder udostępniony nie jest zamontowany</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <extracomment>Choice of the sync direction: changes are uploaded and never downloaded (&quot;only&quot; goes with &quot;upload&quot;); %1 is a product name.</extracomment>
        <translation>Tylko przesyłaj zmiany do aplikacji %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <extracomment>Check box of a page of the settings; the user speaks.</extracomment>
        <translation>Synchronizuj pliki, które udostępniają mi inne osoby</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <extracomment>Check box of a backup task (verb: temporary files are backed up too).</extracomment>
        <translation>Twórz kopie zapasowe plików tymczasowych</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Pliki, które udostępniają Ci inne osoby, będą widoczne w osobnym folderze na tym komputerze.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <extracomment>Label beside the address of the hub&apos;s web pages.</extracomment>
        <translation>Portal internetowy</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Przydział miejsca wyczerpany</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <extracomment>Heading of the state of a task: the hub offers no home folders.</extracomment>
        <translation>Folder domowy wyłączony</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Pon</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Czw</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Sob</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Nie znaleziono folderu lokalnego</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Nie można uruchomić zadania. Uruchom ponownie aplikację.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>Folder udostępniony tego zadania nie jest zamontowany na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Nie masz już uprawnień dostępu do folderu udostępnionego tego zadania.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <extracomment>Heading of the state of a task: a disk drive of this computer.</extracomment>
        <translation>Dysk nie jest podłączony</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Prawie gotowe! Twoje pliki będą wkrótce dostępne w aplikacji %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Wprowadź 0, aby nie ustawiać limitu.</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Role</source>
        <extracomment>Column head of the list of people that an item is shared with: Viewer, Editor and so on.</extracomment>
        <translation>Rola</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Niedz</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Wt</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Śr</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Środa</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <extracomment>Choice of the installer, second of two; the user speaks.</extracomment>
        <translation>Nie akceptuję umowy licencyjnej</translation>
    </message>
    <message>
        <source>Disk full</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Dysk pełny</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Inicjowanie nie powiodło się</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Być może folder lokalny przeniesiono, zmieniono jego nazwę lub go usunięto.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Przydział folderu udostępnionego wyczerpany</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Przydział folderu udostępnionego został wyczerpany. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Nie znaleziono folderu zdalnego</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Być może folder zdalny przeniesiono, zmieniono jego nazwę lub go usunięto.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <extracomment>Label beside a list: what people with the link (URL) may do.</extracomment>
        <translation>Uprawnienia linku</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Następna kopia zapasowa: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <extracomment>Label of a task: on which days and at which times, as a whole; not the same as &quot;Backup schedule&quot;.</extracomment>
        <translation>Plan kopii zapasowych</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>Label above a field with a URL (noun).</extracomment>
        <translation>Link do udostępniania</translation>
    </message>
    <message>
        <source>Share link</source>
        <extracomment>Button: shows the URL to an item (verb and noun: share the link).</extracomment>
        <translation>Udostępnij link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <extracomment>Message: %1 is a product name, %2 and %3 are version numbers.</extracomment>
        <translation>Zadania kopii zapasowej wymagają na hubie aplikacji %1 w wersji %2 lub nowszej. Zainstalowana wersja to %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Ten komputer jest już powiązany z tym hubem przy użyciu tego samego konta.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Wczytywanie folderów udostępnionych...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Zmian na dyskach sieciowych nie można wykrywać od razu. Będą synchronizowane z opóźnieniem.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Witamy w aplikacji Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Kliknij ikonę aplikacji Tessaly w zasobniku systemowym, aby zmienić ustawienia.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Kliknij ikonę aplikacji %1 w zasobniku systemowym, aby zmienić ustawienia.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>Synchronizacja została zatrzymana, ponieważ wolumin huba jest pełny.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Pakiet na hubie jest za stary dla tego klienta.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Tworzenie powiązania z hubem...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Wszystkie pliki są aktualne.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Choice: a right on a shared file, or the command: look at it without downloading it.</extracomment>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>Status of a task and of the client in the tray (adjective).</extracomment>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>Folder link</source>
        <extracomment>Label above a field with a URL to a folder (noun).</extracomment>
        <translation>Link do folderu</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <extracomment>Label beside a field of a sharing link: the last day on which it may be opened.</extracomment>
        <translation>Data wygaśnięcia</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <extracomment>Message of the tutorial; %1 is a product name.</extracomment>
        <translation>Możesz zacząć pracę z aplikacją %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Status: how long ago a file changed: at this moment.</extracomment>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>Button: sends the file to the hub (verb).</extracomment>
        <translation>Prześlij</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Zaktualizuj aplikację %1 do wersji %2 lub nowszej.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Wybierz pliki, które nowe zadanie ma synchronizować.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <extracomment>Screen reader: names a button; %1 is a product name.</extracomment>
        <translation>Otwórz portal internetowy aplikacji %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <extracomment>Name of the product, %1 of many texts; fixed.</extracomment>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ ta wersja aplikacji %1 jest za stara dla tego huba.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Poproś administratora o zaktualizowanie aplikacji %1 na hubie.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>W tej lokalizacji zostanie utworzony folder o nazwie „%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Nie można utworzyć folderu „%1” na tym komputerze.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Zobacz wszystkie swoje pliki bez zapełniania dysku. Każdy plik jest pobierany dopiero po otwarciu.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Otwórz portal internetowy Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Nowsza wersja aplikacji Tessaly jest już zainstalowana. Usuń ją przed zainstalowaniem aplikacji Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <extracomment>Screen reader: names a page of the tutorial; %1 is a product name.</extracomment>
        <translation>Samouczek, strona 1: witamy w aplikacji %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <extracomment>Column head of a list: sync or backup (noun).</extracomment>
        <translation>Typ zadania</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button: takes what was chosen in a list (verb).</extracomment>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Funkcje synchronizacji i kopii zapasowych aplikacji Kelvane Quay Client można teraz zainstalować. Kliknij przycisk Zainstaluj, aby rozpocząć, lub przycisk Wstecz, aby sprawdzić ustawienia.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Włącz synchronizację na żądanie</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Brak folderu synchronizacji na żądanie „%1”. Skonfiguruj zadanie ponownie.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <extracomment>Heading of a part of the settings: a feature&apos;s name (noun).</extracomment>
        <translation>Synchronizacja na żądanie</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <extracomment>Heading of an offer: a feature&apos;s name follows the verb (&quot;try&quot; as an invitation).</extracomment>
        <translation>Wypróbuj synchronizację na żądanie</translation>
    </message>
    <message>
        <source>Comment</source>
        <extracomment>Choice: a right on a shared file (verb), beside Preview and Edit.</extracomment>
        <translation>Komentuj</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Wolumin huba jest pełny. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Wprowadź prawidłową datę.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>Godzina zakończenia musi być późniejsza niż godzina rozpoczęcia.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <extracomment>Tooltip of a cell of the list of excluded files; &quot;*.tmp&quot; is an example and stays.</extracomment>
        <translation>Wprowadź nazwę lub rozszerzenie pliku, na przykład „*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <extracomment>Heading of a page that explains Viewer, Editor and so on.</extracomment>
        <translation>Role i uprawnienia</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>Button: changes an entry (verb); also a right on a shared file.</extracomment>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <extracomment>Event: what happened to the file, in the history too: it stays on the hub alone (the space was freed up).</extracomment>
        <translation>Zwolniono miejsce</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <extracomment>Event: what happened to the file, in the history too: it was downloaded and stays.</extracomment>
        <translation>Już dostępne na tym komputerze</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Synchronizacja na żądanie wymaga folderu na dysku NTFS, który nie jest dyskiem sieciowym ani wymiennym.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Pozostaw pliki online, dopóki nie będą potrzebne. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Jak działa synchronizacja na żądanie&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <extracomment>Message: %1 is a product name, %2 a number.</extracomment>
        <translation>Na tym dysku jest za mało miejsca. Aplikacja %1 wymaga co najmniej %2&#xa0;MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Synchronizuj swój folder domowy i foldery zespołowe, do których masz dostęp.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Jeśli wyłączysz tę opcję, folder z plikami, które udostępniają Ci inne osoby, zostanie usunięty z tego komputera. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Synchronizuj pliki, które udostępniają Ci inne osoby, i otwieraj je jak własne.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <extracomment>Check box of the wizard.</extracomment>
        <translation>Włącz synchronizację na żądanie dla tego zadania</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ Twoje konto nie ma uprawnień do używania pakietu na hubie.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Synchronizuj pliki i foldery, które udostępniają Ci inni użytkownicy.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Dysk się zapełnia. Włącz synchronizację na żądanie, aby zwolnić miejsce.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <extracomment>Heading of a wizard page, below its title.</extracomment>
        <translation>Wszystko, co udostępniają Ci inne osoby, w jednym folderze</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Poproś administratora o uprawnienia do używania pakietu.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Ten klient wymaga na hubie aplikacji %1 w wersji %2 lub nowszej. Poproś administratora o aktualizację.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Nie masz uprawnień do używania pakietu na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>Miejsce docelowe jest już używane przez inne zadanie kopii zapasowej. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Aplikacja %1 nie może komunikować się z pakietem na hubie. Zaktualizuj oba składniki do najnowszej wersji.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Tylko Ty możesz otworzyć link</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <extracomment>Button in a warning about the certificate: goes on in spite of it.</extracomment>
        <translation>Kontynuuj mimo to</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Aplikacja Tessaly dba o to, aby Twoje pliki były identyczne na wszystkich komputerach, i chroni je na hubie.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Udostępnij plik za pomocą linku. Ty decydujesz, kto może go wyświetlać lub edytować.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <extracomment>Button on the first page of the tutorial.</extracomment>
        <translation>Rozpocznij wprowadzenie</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: %1 is a product name; keep the link as it is.</extracomment>
        <translation>Nie znasz jeszcze aplikacji %1? Najpierw przeczytaj &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;szybki przewodnik&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Wszystkie pliki tego zadania zostaną pobrane na ten komputer. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <extracomment>Heading of the first page of the tutorial.</extracomment>
        <translation>Witamy w aplikacji Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Udostępniaj innym</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Otwórz historię, aby sprawdzić, kto i kiedy zmienił plik.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Zadbaj o identyczne pliki na wszystkich swoich komputerach, synchronizując je z hubem.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <extracomment>Status of a task; %1 is always 1.</extracomment>
        <translation>Przetwarzany jest %1 plik</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Aplikacja %1 i klient mają różne wersje. Zaktualizuj oba składniki do tej samej wersji.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <extracomment>Status of a task; %1 is any number.</extracomment>
        <translation>Przetwarzane pliki: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <extracomment>Status of a task; %1 is a number, more than one.</extracomment>
        <translation>Przetwarzane pliki: %1</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Wolumin tego folderu nie obsługuje przydziałów.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Twój osobisty przydział miejsca został wyczerpany.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <extracomment>Message: %1 to %4 are sizes with their units: used, of, used, of.</extracomment>
        <translation>Twój folder domowy zajmuje %1 z %2, a foldery udostępnione %3 z %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Przydział folderu udostępnionego „%1” został wyczerpany.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Niektóre foldery osiągnęły swój przydział.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Nie można przywrócić wersji, ponieważ plik jest wykluczony przez filtr.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Wybierz foldery do kopii zapasowej i miejsce przechowywania kopii zapasowych.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Wybierz zawartość kopii zapasowej</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ Twoje konto zostało wyłączone na hubie.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Synchronizowanie...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Poproś administratora o włączenie Twojego konta.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Twoje konto zostało wyłączone na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <extracomment>Status, short, of a task: the administrator has disabled the user&apos;s account.</extracomment>
        <translation>Konto wyłączone</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Pokazuj ikony na plikach wykluczonych przez filtr</translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>Tab of the hub&apos;s page: space and quotas.</extracomment>
        <translation>Miejsce na dane</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <extracomment>Screen reader: names a window that asks.</extracomment>
        <translation>Okno dialogowe</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Wszystkie zadania związane z tym hubem zostaną usunięte z tego komputera. Pliki zostaną zachowane. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Tworzenie kopii zapasowej nie powiodło się. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Nie można utworzyć zadania. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Nie masz już uprawnień dostępu do folderu udostępnionego „%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <extracomment>Status of a task; %1 is a file name.</extracomment>
        <translation>Przetwarzanie „%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Dni</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Nie można wczytać zadania.</translation>
    </message>
    <message>
        <source>Operation</source>
        <extracomment>Column head of a list: what can be done with an entry (noun).</extracomment>
        <translation>Operacja</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <extracomment>Message: %1 is a path.</extracomment>
        <translation>Folder „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <extracomment>Choice of a list after &quot;When the backup is done&quot;: what the computer does then (verb).</extracomment>
        <translation>Wyłącz komputer</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Nie masz uprawnień do automatycznego wyłączania tego komputera.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Tworzenie kopii zapasowej anulowano.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Kopia zapasowa jest gotowa.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <extracomment>Choice: how often a backup runs; %1 is a number, more than one.</extracomment>
        <translation>Liczba kopii zapasowych dziennie: %1</translation>
    </message>
    <message>
        <source>times</source>
        <extracomment>Fragment, unit after a number field: &quot;[3] times&quot;, a day.</extracomment>
        <translation>razy</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <extracomment>Heading/Label: continuous, scheduled or manual (the way in which is backed up).</extracomment>
        <translation>Tryb kopii zapasowej</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Czy chcesz teraz rozpocząć tworzenie kopii zapasowej?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Jeśli ten komputer jest o zaplanowanej godzinie wyłączony lub uśpiony, tworzenie kopii zapasowej rozpocznie się zaraz po jego włączeniu lub wybudzeniu.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Wybierz co najmniej jeden dzień tygodnia.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Ostatnia kopia zapasowa: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Codziennie</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <extracomment>Choice of the backup mode (noun): runs when the user starts it.</extracomment>
        <translation>Ręczna kopia zapasowa</translation>
    </message>
    <message>
        <source>Once a day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Raz dziennie</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <extracomment>Choice of the backup mode (noun): runs as soon as a file changes.</extracomment>
        <translation>Ciągła kopia zapasowa</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <extracomment>Choice of the backup mode (noun): runs at set times.</extracomment>
        <translation>Zaplanowana kopia zapasowa</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Ustaw plan kopii zapasowych</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <extracomment>Status of a backup: the state of the disk is being recorded.</extracomment>
        <translation>Tworzenie migawki...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Nie można zapisać planu kopii zapasowych. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Wprowadź rozmiar od 0 do %1&#xa0;MB. Wprowadź 0, aby nie ustawiać limitu.</translation>
    </message>
    <message>
        <source>Connection</source>
        <extracomment>Tab/Heading: the connection to the hub.</extracomment>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Pokaż aktywność tego zadania</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Pokaż usunięte elementy</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>Label beside a size: how much space is taken (participle; belongs to &quot;space&quot;).</extracomment>
        <translation>Zajęte</translation>
    </message>
    <message>
        <source>Months</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Miesiące</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <extracomment>Label below a bar; %1 and %2 are sizes with their units: &quot;3 GB of 10 GB used&quot;.</extracomment>
        <translation>Zajęte: %1 z %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <extracomment>Label beside a task that runs without a window.</extracomment>
        <translation>Zadanie w tle</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Okno ustawień filtra</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Wprowadź prawidłową godzinę.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <extracomment>Event in the history, of a file: a rule of the client, not one of the user.</extracomment>
        <translation>Nie zsynchronizowano: wykluczone przez regułę systemową</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <extracomment>Button: opens the settings of the connection to the hub (verb).</extracomment>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>Not now</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>Created on</source>
        <extracomment>Column head of a list: the day on which a link or a task was made.</extracomment>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Zadania kopii zapasowej</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Filters</source>
        <extracomment>Tab of a task&apos;s settings: which files are left out (plural).</extracomment>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <extracomment>Heading of the list of files that were changed lately (plural).</extracomment>
        <translation>Ostatnio zmienione</translation>
    </message>
    <message>
        <source>Back up now</source>
        <extracomment>Button: starts the backup at once (verb).</extracomment>
        <translation>Utwórz kopię zapasową teraz</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Heading of the part of a page with the files to sync (noun, plural).</extracomment>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Equal to</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Równy</translation>
    </message>
    <message>
        <source>Less than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Mniejszy niż</translation>
    </message>
    <message>
        <source>Greater than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Większy niż</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <extracomment>Heading of the box in which a folder is chosen (verb).</extracomment>
        <translation>Wybierz folder na tym komputerze</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Ten folder należy już do zadania kopii zapasowej aplikacji %1. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Ten folder jest już synchronizowany przez aplikację Kelvane Quay Client i nie można dodatkowo tworzyć jego kopii zapasowej. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>IP address</source>
        <extracomment>Label beside the hub&apos;s address in the network.</extracomment>
        <translation>Adres IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann replied to your comment on Plan.txt&quot;.</extracomment>
        <translation>odpowiada na Twój komentarz do elementu</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <extracomment>Menu item in the tray menu: opens the page with the state of the tasks.</extracomment>
        <translation>Otwórz stan synchronizacji</translation>
    </message>
    <message>
        <source>Replies</source>
        <extracomment>Choice of a filter of notifications: replies to the user&apos;s comments (noun, plural).</extracomment>
        <translation>Odpowiedzi</translation>
    </message>
    <message>
        <source>Not synced</source>
        <extracomment>Event in the history: the file was left out.</extracomment>
        <translation>Nie zsynchronizowano</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Aplikacja Tessaly Server na hubie jest za stara dla aplikacji %1. Poproś administratora o aktualizację.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Brak połączenia z hubem</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes a box.</extracomment>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <extracomment>Heading of a page: rights, password and validity of a sharing link.</extracomment>
        <translation>Zaawansowane udostępnianie</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Nie można zapisać ustawień udostępniania. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <extracomment>Check box for an item.</extracomment>
        <translation>Włącz zaawansowane udostępnianie</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <extracomment>Check box for an item: password and validity of its link (URL).</extracomment>
        <translation>Włącz ochronę linku</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos is now shared with advanced settings.&quot;</extracomment>
        <translation>ma teraz zaawansowane ustawienia udostępniania.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <extracomment>Heading of a page: a link (URL) with password and validity (participle; belongs to &quot;sharing&quot;).</extracomment>
        <translation>Chronione udostępnianie</translation>
    </message>
    <message>
        <source>Link protection</source>
        <extracomment>Heading of a page: password and validity of a link (URL).</extracomment>
        <translation>Ochrona linku</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Czy na pewno chcesz usunąć link? Nie można go przywrócić.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <extracomment>Heading of a question; the link is a URL.</extracomment>
        <translation>Usunąć ten link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Zapisz dzienniki klienta w pliku, który możesz wysłać do pomocy technicznej.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <extracomment>Hint in an empty field.</extracomment>
        <translation>Wprowadź słowo kluczowe</translation>
    </message>
    <message>
        <source>Remove link</source>
        <extracomment>Button: takes a link (URL) away (verb).</extracomment>
        <translation>Usuń link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <extracomment>Tab of the settings: logs and so on (noun).</extracomment>
        <translation>Rozwiązywanie problemów</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Zapisuj więcej szczegółów w dziennikach, aby pomóc działowi pomocy technicznej w znalezieniu przyczyny problemu.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Eksportuj dzienniki</translation>
    </message>
    <message>
        <source>File deleted</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Usunięto plik</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <extracomment>Label above a list, ends in a colon.</extracomment>
        <translation>Wyeksportowany plik zawiera:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Informacje o systemie operacyjnym tego komputera</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <extracomment>Heading of a part of the settings: more details are written to the logs.</extracomment>
        <translation>Rejestrowanie zaawansowane</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Dzienniki zaawansowane zajmują więcej miejsca na dysku i mogą spowolnić klienta.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Oświadczenie o prywatności</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Dzienniki i ustawienia klienta, bez haseł</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <extracomment>Check box of the settings: more details are written to the logs.</extracomment>
        <translation>Włącz rejestrowanie zaawansowane</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <extracomment>Event in the history, of a file: a rule of the user.</extracomment>
        <translation>Nie zsynchronizowano: wykluczone przez filtr zadania</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <extracomment>Event in the history, of a file.</extracomment>
        <translation>Nie zsynchronizowano: brak uprawnień</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Warunki korzystania z usługi</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Wprowadź rozmiar mniejszy niż %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Ten folder należy już do innego zadania kopii zapasowej. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>Zadanie zostało zatrzymane z powodu nieoczekiwanego błędu. Uruchom ponownie aplikację.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Ten plik nie ma poprzednich wersji.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Nie można włączyć synchronizacji na żądanie dla tego zadania.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Połączenie z hubem nie powiodło się. Sprawdź adres i sieć.</translation>
    </message>
    <message>
        <source>:</source>
        <extracomment>Fragment: the colon between a label and its value; a blank that the language sets before it belongs to it.</extracomment>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Dodano plik</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Nazwa nie może zaczynać się ani kończyć spacją.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ certyfikat SSL huba się zmienił.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>Certyfikat SSL huba wygasł. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>Hub może teraz indeksować cały Twój folder domowy.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Możesz teraz synchronizować cały swój folder domowy z tym komputerem.</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Status of a file: another program has it open (participle; belongs to &quot;file&quot;).</extracomment>
        <translation>Zablokowane</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <extracomment>Status, short, of a task: a service of the hub is turned off.</extracomment>
        <translation>Usługa Norvik wyłączona</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>Hub przygotowuje Twój folder domowy. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Zmieniono nazwę pliku</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <extracomment>Event in a notification; %1 is a file name.</extracomment>
        <translation>Zaktualizowano plik „%1”</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <extracomment>Message: the signs after the colon are to be kept as they are.</extracomment>
        <translation>Nazwa nie może zawierać żadnego z następujących znaków: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Usługa Norvik jest wyłączona na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Twoje konto zostało wyłączone na hubie, dlatego nie można sprawdzić folderu.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Button: adds an entry to a list (verb).</extracomment>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>Button: deletes an entry (verb).</extracomment>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Zadanie o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Nie można użyć żadnego z wybranych folderów. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Brak prawidłowych folderów</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <extracomment>Tooltip: the link is to be kept as it is.</extracomment>
        <translation>Pliki pozostają na hubie, dopóki ich nie otworzysz. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Dowiedz się więcej o synchronizacji na żądanie&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <extracomment>Check box beside a field: the user names the task.</extracomment>
        <translation>Własna nazwa zadania</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Nazwa pomaga odróżniać zadania. Jest widoczna tylko na tym komputerze.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>Synchronizację na żądanie można włączyć lub wyłączyć w ustawieniach zadania.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>To pole jest wymagane.</translation>
    </message>
</context>
</TS>
