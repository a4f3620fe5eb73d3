<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Połącz przez Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
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
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Folder lokalny</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Sprawdzanie nazwy użytkownika i hasła...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Połączono pomyślnie</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Pliki z obu folderów zostaną scalone. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Uruchamianie...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Przed zakończeniem sprawdź poniższe ustawienia.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Identyfikator Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Ostatnio zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Wyszukiwanie zmian...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>Utracono połączenie z hubem. Ponowne nawiązywanie połączenia...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Przesłano</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Dostosuj</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Logowanie nie powiodło się</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Wykrywanie typu połączenia...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Przekaźnik Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Usługa Ferrylink nie odpowiada. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Zaktualizowane pliki: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Masz dostęp do tego folderu tylko do odczytu. Zmiany wprowadzone na tym komputerze nie będą przesyłane.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Przydział miejsca na hubie został wyczerpany. Zwolnij trochę miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ połączenia</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Zmień folder lokalny</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu SSL huba.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Nie używaj serwera proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Select a folder</source>
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
        <translation>Brak miejsca na dane</translation>
    </message>
    <message>
        <source>Proxy settings</source>
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
        <translation>Maksymalna liczba synchronizowanych folderów udostępnionych: %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
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
        <translation>Skonfiguruj serwer proxy ręcznie</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Nie ma żadnych zmian do zastosowania.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Włącz synchronizację</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Nazwa folderu udostępnionego</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Serwer proxy wymaga zalogowania</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Wystąpił problem</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizowanie...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Szyfruj przesyłanie danych za pomocą SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Nazwa huba, adres IP lub identyfikator Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Pokazuj ikony stanu synchronizacji na plikach i folderach</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Opcje ogólne</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Używaj czarno-białej ikony w zasobniku systemowym</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Folder udostępniony „%1” jest dla Ciebie dostępny. Możesz ustawić jego synchronizację z tym komputerem.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Sprawdzanie danych...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Automatyczna konfiguracja nie powiodła się. Skonfiguruj połączenie ręcznie.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Kończenie konfiguracji...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Pliki i foldery pasujące do tych reguł nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Instalowanie aktualizacji...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Rozszerzenia plików</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Folder w punkcie montowania</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Postęp: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
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
        <translation>Folder</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Dysk tego komputera jest pełny. Zwolnij trochę miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Wczytywanie listy folderów...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Czy na pewno chcesz odłączyć ten komputer od huba?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Przesyłanie...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Domyślny systemu</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalator [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Synchronizowanie plików (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Pobieranie „%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Wykluczone nazwy plików</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Lokalna baza danych jest uszkodzona. Odłącz ten komputer od huba i połącz go ponownie.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr plików</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Lista wykluczeń</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Foldery, które odznaczono, zostaną usunięte z tego komputera. Na hubie pozostaną.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Obsługa konfliktów</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wczytywanie...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Ten folder jest punktem montowania i nie można go synchronizować. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Pobieranie „%1” zostało anulowane.</translation>
    </message>
    <message>
        <source>Start now</source>
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
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Nie można pobrać z huba informacji o Twoim koncie.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Połączenie jest niestabilne</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Pobierz link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Łączenie tego komputera z hubem...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Próba synchronizacji...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Przeglądający</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Ostrzeżenie o certyfikacie</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Reguły wykluczeń</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identyfikator</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączono</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączono</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Jeśli zatrzymasz synchronizację tego folderu udostępnionego, późniejsze zmiany nie będą przenoszone. Pliki lokalne zostaną zachowane.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Włącz szyfrowanie SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Wybierz na tym komputerze folder, który chcesz synchronizować z hubem.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>właśnie Ci udostępniono.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Nowe udostępnienie</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Pobieranie zakończone</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Pobieranie nie powiodło się</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>Przegląd huba</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Hub pod tym adresem się zmienił. Połącz ten komputer ponownie.</translation>
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
        <translation>Tryb gotowości</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
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
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Pozostaw aplikacje otwarte. Później trzeba będzie ponownie uruchomić komputer.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Przywraca brakujące lub uszkodzone pliki programu, skróty i wpisy rejestru.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Uruchom aplikację [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>Aplikacja [ProductName] zadba o bezpieczeństwo i synchronizację Twoich plików.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Kliknij przycisk Zakończ, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>Dysk, na którym znajduje się folder lokalny, nie jest podłączony.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Napraw aplikację [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
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
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Wystąpił błąd i aplikacja [ProductName] nie została zainstalowana. Wszystkie zmiany wprowadzone przez instalator zostały cofnięte. Instalator można w każdej chwili uruchomić ponownie.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Informacje o tym komputerze i o hubie, z którym jest on połączony.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Ten kreator umożliwia zmianę, naprawę lub usunięcie aplikacji [ProductName]. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Usuń aplikację [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Umowa licencyjna</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Następujące aplikacje mają otwarte pliki, które instalator [ProductName] musi zastąpić:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Aktywność synchronizacji</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalowanie aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Brak folderu lokalnego. Być może przeniesiono go, zmieniono jego nazwę lub go usunięto.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów próbę</translation>
    </message>
    <message>
        <source>Yes</source>
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
        <translation>Zamknij aplikacje teraz i otwórz je ponownie po zakończeniu instalacji.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Zamknij aplikacje i kliknij przycisk Ponów próbę. Jeśli klikniesz przycisk Ignoruj, aplikacja [ProductName] będzie kompletna dopiero po następnym ponownym uruchomieniu komputera.</translation>
    </message>
    <message>
        <source>Change</source>
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
        <translation>Gotowość do naprawy aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Kliknij przycisk Napraw, aby rozpocząć, przycisk Wstecz, aby wybrać inną akcję, lub przycisk Anuluj, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Instalator zamknięto przed zainstalowaniem aplikacji [ProductName]. Na komputerze nie wprowadzono żadnych zmian. Instalator można w każdej chwili uruchomić ponownie.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Ten kreator zainstaluje aplikację [ProductName] na komputerze. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Witamy w instalatorze [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>Aplikacja [ProductName] jest zainstalowana</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Instalacja aplikacji [ProductName] została anulowana</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Połącz z nowym hubem</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>Nie można zainstalować aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Synchronizacja włączona</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Dodaj zadanie</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Akceptuję umowę licencyjną</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Twoje pliki, aktualne na każdym urządzeniu.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>To nie jest hub, z którym połączono aplikację %1. Połącz ten komputer ponownie.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Udostępnianie jest wyłączone dla Twojego konta.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>Zadanie „%1” zostanie zatrzymane, a jego połączenie z hubem zostanie usunięte. Pliki po obu stronach zostaną zachowane.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
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
        <translation>Hub się zmienił</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>Folder udostępniony „%1” nie jest zamontowany na hubie.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Wolumin folderu zdalnego nie jest zamontowany na hubie.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Lokalizacja folderu</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Synchronizuj z tym komputerem</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Nie zalogowano się jako administrator, dlatego niektóre funkcje mogą nie zostać zainstalowane. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Synchronizuj, udostępniaj i chroń swoje pliki</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Udostępnianie plików przez Ferrylink jest wyłączone na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Wybierz sposób konfiguracji aplikacji Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Elementy %1–%2 z %3</translation>
    </message>
    <message>
        <source>Got it</source>
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
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Zatrzymaj synchronizację tego folderu</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Wybierz folder na hubie i folder na tym komputerze. Ich zawartość będzie zawsze identyczna.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Ten komputer jest już połączony</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 d temu</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Ubiegły miesiąc</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
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
        <translation>Ubiegły tydzień</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Kwiecień</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Luty</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Sierpień</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Październik</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synchronizuj ponownie ten folder</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Zatrzymaj synchronizację tych folderów</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Brak historii do wyświetlenia</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synchronizuj ponownie te foldery</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Wyślij do</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Styczeń</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Teraz synchronizowane</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Wrzesień</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Lipiec</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Czerwiec</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzec</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Grudzień</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
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
        <translation>Tryb konfiguracji</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Synchronizuj swoje pliki</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Śledź zmiany</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Znajdź huby w sieci lokalnej</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informacje o stanie</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Dostępna aktualizacja</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Użytkownik: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Ten plik nie należy do żadnego zadania synchronizacji.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Otwórz okno główne</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Połącz ten komputer z innym hubem</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Synchronizuj inny folder z tym hubem</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nowa synchronizacja</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Samodzielnie wybierz foldery, kierunek synchronizacji i filtry.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Pliki większe niż %1 MB nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Tego folderu nie można synchronizować. Wybierz inny.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Wyszukaj huby w sieci lokalnej</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Masz dostęp do tego folderu udostępnionego tylko do odczytu. Pliki będą pobierane, ale nie będą przesyłane.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Więcej wskazówek znajdziesz w &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;samouczkach&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Ten folder znajduje się wewnątrz już synchronizowanego folderu lub go zawiera. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Ten komputer jest już połączony z hubem „%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>W tej lokalizacji zostanie utworzony folder o nazwie „Tessaly”.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Jeśli będziesz kontynuować, istniejące połączenie zostanie zastąpione.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Hub jest w trybie offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Folder domowy</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Nie można utworzyć linku, ponieważ usługa Norvik jest niedostępna na hubie.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>Certyfikat SSL huba się zmienił. Potwierdź nowy certyfikat.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Ustaw foldery do synchronizacji</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>Kierunek synchronizacji nie odpowiada Twoim uprawnieniom do folderu zdalnego.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>Adres IP tego komputera jest blokowany przez hub. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Gdy plik zmieniono po obu stronach:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Witamy w kreatorze konfiguracji</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Poprzednie strony: %1</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Następne strony: %1</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odłączanie...</translation>
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
        <translation>Foldery synchronizacji</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Zachowaj ostatnio zmodyfikowaną wersję</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>W obu kierunkach</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Wybierz, który folder na hubie synchronizować z którym folderem na tym komputerze.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>prosi o dostęp do szablonu Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Ten folder jest już używany przez inne zadanie synchronizacji na tym komputerze.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
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
        <translation>Wprowadź 6-cyfrowy kod weryfikacyjny</translation>
    </message>
    <message>
        <source>Hours</source>
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
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Zawsze zachowuj wersję z huba</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Zmień nazwy plików w konflikcie i zachowaj obie wersje</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) prosi o dostęp do szablonu Bureau „%4” (%3).</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Zawartość obu folderów zostanie scalona. Żaden plik nie zostanie usunięty.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Lista połączeń</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Połączony hub</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Kopiuj link do udostępniania</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Usuń uprawnienia tego użytkownika</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Grupa: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Otwórz portal internetowy aplikacji Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Połączony hub</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Zadanie synchronizacji plików, które udostępniają Ci inne osoby</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Karta ostatnio zmienionych plików</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Samouczek, strona 2: synchronizuj swoje pliki</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Samouczek, strona 3: śledź zmiany</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Samouczek, strona 4: udostępniaj innym</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Wybierz uprawnienia udostępniania</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Aplikacja Tessaly dba o to, aby pliki na Twoich komputerach i na hubie były identyczne.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>godz.</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Otwórz mój folder</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Nie znaleziono folderu udostępnionego</translation>
    </message>
    <message>
        <source>Version %1</source>
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
        <translation>Niektóre pola zawierają nieprawidłowe wartości. Sprawdź wyróżnione pola.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
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
        <translation>Adres</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Wygasa po</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Brak dostępnych akcji</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe. Zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Wprowadź pełną nazwę pliku, na przykład „desktop.ini”, i naciśnij klawisz Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Folder o tej nazwie już istnieje. Wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Porównuj wszystkie atrybuty plików podczas wyszukiwania zmian</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Ważne do</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>To pole nie może być puste.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Ogranicz dostęp</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Pokazuj akcje synchronizacji w menu kontekstowym plików i folderów</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Usługa folderów domowych użytkowników jest wyłączona na hubie. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>Aktualizacja nie powiodła się. &lt;a href=&quot;%1&quot;&gt;Pobierz najnowszą wersję&lt;/a&gt; i zainstaluj ją ręcznie.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Zastosuj i kopiuj link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Ogranicz liczbę odwiedzin</translation>
    </message>
    <message>
        <source>Valid from</source>
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
        <translation>Pokaż informacje</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Dodaj nazwę pliku</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Folder na tym komputerze</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Wybierz język</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Lista pobieranych wersji plików</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Dostosuj okres ważności</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Pokaż samouczek aplikacji %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Zmień folder synchronizacji</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Połączony folder synchronizacji</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Odśwież historię</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Wprowadź słowo kluczowe, aby przeszukać historię</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Wybierz typ zdarzenia</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Synchronizacja „%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Folder na hubie</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Okno ustawień</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Zamknij samouczek</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Anuluj to pobieranie</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Usuń to pobieranie z listy</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Twoje hasło wygasło. Zmień je w portalu internetowym i zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Edytujący</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Zmieniono nazwę na tym komputerze</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Zmieniono nazwę na hubie</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Maksymalna liczba znaków: %1.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>To nie jest konto, na którym utworzono zadanie. Zaloguj się jako „%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Informacje o hubie</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Usługa przekaźnika Ferrylink jest wyłączona na hubie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>Nie można pobrać „%1”. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Nie można zalogować się do huba. Sprawdź nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Powiadomienia</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>komentuje element</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Otwórz w portalu internetowym</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Skonfiguruj</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Otwórz synchronizowany folder</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Masz dostęp do tego folderu tylko do odczytu. Aplikacja %1 nie będzie przesyłać Twoich zmian.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>Aplikacja %1 jest teraz połączona z hubem i będzie synchronizować Twoje pliki.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Instalator zebrał wszystkie potrzebne informacje.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>Aplikacja %1 jest gotowa.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>Aplikacja %1 jest już uruchomiona.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>Aplikacja %1 dba o to, aby pliki na Twoich komputerach i na hubie były identyczne.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Podgląd i komentowanie</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
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
        <translation>Wybierz, co ma synchronizować nowe zadanie</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>Ten folder należy do usługi Dropbox. Synchronizowanie go także przez aplikację %1 może powodować konflikty plików.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Zmiany zostaną utracone. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Samouczek aplikacji %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>Identyfikator Ferrylink nie istnieje lub aplikacja %1 nie jest uruchomiona na hubie.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Są tu wymienione tylko foldery udostępnione, które włączono w aplikacji %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Uruchamiaj aplikację %1 po zalogowaniu się na tym komputerze</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>Aplikacja %1 jest inicjowana...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>Hub i aplikacja %1 nie mogą się ze sobą komunikować. Zaktualizuj oba składniki do najnowszej wersji.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Ta wersja aplikacji %1 jest za stara dla tego huba. Zaktualizuj ją.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Dysk jest pełny. Zwolnij miejsce na tym komputerze, aby aplikacja %1 mogła kontynuować.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>Wystąpił problem z aplikacją %1. Uruchom ją ponownie.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Karta powiadomień</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>Folder nie jest pusty. Aplikacja %1 scali jego pliki z plikami na hubie.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Tylko pobieraj zmiany z aplikacji %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>Aplikacja %1 jest skonfigurowana. Otwórz swój folder, aby rozpocząć pracę.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Samouczek, strona 1: witamy w aplikacji Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Ta wersja aplikacji Kelvane Quay Client jest już zainstalowana. Czy chcesz zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
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
        <translation>Samouczek aplikacji Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
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
        <translation>Uprawnienia udostępniania</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Aplikacja Tessaly Server na hubie jest za stara dla tego klienta. Poproś administratora o jej zaktualizowanie.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Pokaż samouczek aplikacji Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
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
        <translation>Otwórz aplikację Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>Dostępna jest wersja %1. Kliknij tutaj, aby zaktualizować.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Aby korzystać z synchronizacji selektywnej, poproś administratora o zaktualizowanie aplikacji Tessaly Server na hubie.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Na tym dysku jest za mało miejsca. Aplikacja Tessaly wymaga co najmniej %1 MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Aplikacja Tessaly jest teraz połączona z hubem i będzie synchronizować Twoje pliki.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Aplikację Tessaly można połączyć z tym samym hubem tylko raz przy użyciu tego samego konta.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Skonfiguruj aplikację Tessaly, aby synchronizować pliki na tym komputerze.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Nie znasz jeszcze aplikacji Tessaly? Najpierw przeczytaj &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;szybki przewodnik&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Może komentować</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Użytkownicy huba mający link mogą wyświetlać</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Użytkownicy huba mający link mogą edytować</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Tylko zaproszone osoby mogą otworzyć link</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Każda osoba mająca link może komentować</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Każda osoba mająca link może wyświetlać</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Użytkownicy huba mający link mogą komentować</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Każda osoba mająca link może edytować</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Może wyświetlać</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Może zarządzać</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Może edytować</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Nie można otworzyć portalu internetowego. Sprawdź połączenie z hubem.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Zaproś osoby</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Brak dostępu</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Brak folderów udostępnionych.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) prosi o dostęp do arkusza Grida „%4” (%3).</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Osoby mające link nie będą już mogły otworzyć pliku.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 udostępnia Ci arkusz Grida „%2”.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Brak danych</translation>
    </message>
    <message>
        <source>Share</source>
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
        <translation>Weekendy</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Użytkownicy huba</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Tylko zaproszone osoby</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Każda osoba mająca link</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Ustaw datę wygaśnięcia</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Użytkownicy i grupy</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Pokazuj synchronizowane foldery na pasku bocznym menedżera plików</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Pracuj w synchronizowanym folderze tak jak w każdym innym. Zmiany są od razu przenoszone na hub.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Twój komputer</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Wszystkie Twoje pliki, wszędzie</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Oszczędzaj miejsce dzięki synchronizacji na żądanie</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Na komputerze widać wszystkie pliki, ale zajmują one miejsce dopiero po otwarciu.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Tylko online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Dostępne na tym komputerze</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>wspomina o Tobie w elemencie</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>prosi o dostęp do elementu</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 udostępnia Ci plik „%2”.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>udostępnia Ci element</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Udostępnione</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Prośba o dostęp</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentarze</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Udostępnione dla mnie</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Wzmianki</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Tylko przesyłanie</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Zachowaj pliki na hubie, gdy zostaną usunięte z tego komputera</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Zakończono pobieranie „%1”.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Twoje pliki są aktualne na wszystkich urządzeniach.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
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
        <translation>Włącz później</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Włącz teraz</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Pliki udostępnione Tobie</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Utwórz zadanie synchronizacji</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Moje pliki i foldery zespołowe</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Pliki udostępnione dla mnie</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>To nie jest hub, z którym połączono aplikację Tessaly. Połącz ten komputer ponownie.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Hub i aplikacja Tessaly nie mogą się ze sobą komunikować. Zaktualizuj oba składniki do najnowszej wersji.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Nie przegap żadnej zmiany</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Dysk jest pełny. Zwolnij miejsce na tym komputerze, aby aplikacja Tessaly mogła kontynuować.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Folder zespołowy</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
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
        <translation>Udostępniaj w kilka sekund</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Kliknij prawym przyciskiem myszy plik lub folder, utwórz link i zdecyduj, kto może go otwierać i jak długo.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) prosi o dostęp do prezentacji Pictra „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 udostępnia Ci folder „%2”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) prosi o dostęp do folderu „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) prosi o dostęp do pliku „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) prosi o dostęp do dokumentu Folia „%4” (%3).</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 udostępnia Ci dokument Folia „%2”.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 udostępnia Ci prezentację Pictra „%2”.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Ustawienia prywatności</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Chroń hasłem</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Dni robocze</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Na pliki, które udostępniają Ci inne osoby, zostanie utworzony folder o nazwie „%1”.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Zawsze zachowuj na tym komputerze</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Dowolny</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Nawiązywanie połączenia...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Kopie zapasowe plików są tworzone zaraz po ich zmianie.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Kopie zapasowe plików są tworzone w ustawionych godzinach.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>Kopia zapasowa jest gotowa. Komputer zostanie wyłączony za %1 s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Zadanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Uruchamiaj w następujące dni</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Połącz z hubem</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Chroń pliki na tym komputerze, tworząc ich kopie zapasowe na hubie.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Ręcznie: kopia zapasowa jest tworzona tylko wtedy, gdy ją uruchomisz.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Godzina rozpoczęcia</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Ostatnie zakończenie</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Ostatnie uruchomienie</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Komentujący</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Zmień, kto może otworzyć ten link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ostatnie przesyłanie: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Ustawienia zadania</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Ciągle: kopie zapasowe plików są tworzone po każdej ich zmianie.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Otwórz w menedżerze plików</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Godzina przypada następnego dnia.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Nie można pobrać informacji o udostępnianiu.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Miejsce docelowe kopii zapasowej</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Kopie zapasowe plików są tworzone po kliknięciu przycisku Utwórz kopię teraz.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Zezwalaj na pobieranie</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Według harmonogramu: kopia zapasowa jest tworzona w ustawionych godzinach.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Harmonogram kopii zapasowych</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Menedżer</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Tylko podgląd</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Utwórz zadanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Pliki o wymienionych tu nazwach lub rozszerzeniach będą pomijane.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
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
        <translation>Pliki w kopii zapasowej: %1 (%2), miejsce docelowe: „%3”, data: %4</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Zacznij tworzyć kopie zapasowe</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Kopie zapasowe plików i folderów pasujących do tych reguł nie będą tworzone.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nie wybrano folderu</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Zwolnij miejsce</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Nie zachowuj już na tym komputerze</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Wybrane dni</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Po utworzeniu kopii zapasowej</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Wybierz folder na komputerze „%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Wybierz folder na hubie.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Pomijaj pliki i foldery o nazwach zaczynających się od kropki</translation>
    </message>
    <message>
        <source>Start syncing</source>
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
        <translation>Brak kopii zapasowej</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Dbaj o to, aby folder na tym komputerze i folder na hubie były identyczne.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Dowiedz się więcej&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Wybierz dni i godziny tworzenia kopii zapasowej.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Utwórz pominięte kopie zapasowe jak najszybciej</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
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
        <translation>Ścieżka</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ nie można zalogować się do huba.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>Wersja pakietu na hubie nie jest obsługiwana. Poproś administratora o jego zaktualizowanie.</translation>
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
        <translation>Niektóre z wybranych folderów już nie istnieją. Usuń ich zaznaczenie, aby kontynuować.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Niezgodność kierunku synchronizacji</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Aplikację Kelvane Quay Client można teraz zainstalować. Kliknij przycisk Zainstaluj, aby rozpocząć, lub przycisk Wstecz, aby sprawdzić ustawienia.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
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
        <translation>Folder udostępniony nie jest zamontowany</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Tylko przesyłaj zmiany do aplikacji %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Synchronizuj pliki, które udostępniają mi inne osoby</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Twórz kopie zapasowe plików tymczasowych</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Pliki, które udostępniają Ci inne osoby, będą widoczne w osobnym folderze na tym komputerze.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Portal internetowy</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Przydział miejsca wyczerpany</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Folder domowy wyłączony</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Pon</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Czw</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sob</translation>
    </message>
    <message>
        <source>Local folder not found</source>
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
        <translation>Dysk nie jest podłączony</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Prawie gotowe! Twoje pliki będą wkrótce dostępne w aplikacji %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Wprowadź 0, aby nie ustawiać limitu.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rola</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Niedz</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Wt</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Śr</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Nie akceptuję umowy licencyjnej</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Dysk pełny</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Inicjowanie nie powiodło się</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Być może folder lokalny przeniesiono, zmieniono jego nazwę lub go usunięto.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Przydział folderu udostępnionego wyczerpany</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Przydział folderu udostępnionego został wyczerpany. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Nie znaleziono folderu zdalnego</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Być może folder zdalny przeniesiono, zmieniono jego nazwę lub go usunięto.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Uprawnienia linku</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Następna kopia zapasowa: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plan kopii zapasowych</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Link do udostępniania</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Udostępnij link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Zadania kopii zapasowej wymagają na hubie aplikacji %1 w wersji %2 lub nowszej. Zainstalowana wersja to %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Ten komputer jest już połączony z tym hubem przy użyciu tego samego konta.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
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
        <translation>Łączenie z hubem...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Wszystkie pliki są aktualne.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Link do folderu</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Data wygaśnięcia</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Możesz zacząć pracę z aplikacją %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Prześlij</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Zaktualizuj aplikację %1 do wersji %2 lub nowszej.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Wybierz pliki, które nowe zadanie ma synchronizować.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Otwórz portal internetowy aplikacji %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ ta wersja aplikacji %1 jest za stara dla tego huba.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Poproś administratora o zaktualizowanie aplikacji %1 na hubie.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>W tej lokalizacji zostanie utworzony folder o nazwie „%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Nie można utworzyć folderu „%1” na tym komputerze.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Zobacz wszystkie swoje pliki bez zapełniania dysku. Każdy plik jest pobierany dopiero po otwarciu.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Otwórz portal internetowy Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Nowsza wersja aplikacji Tessaly jest już zainstalowana. Usuń ją przed zainstalowaniem aplikacji Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Samouczek, strona 1: witamy w aplikacji %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Typ zadania</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Funkcje synchronizacji i kopii zapasowych aplikacji Kelvane Quay Client można teraz zainstalować. Kliknij przycisk Zainstaluj, aby rozpocząć, lub przycisk Wstecz, aby sprawdzić ustawienia.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Włącz synchronizację na żądanie</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Brak folderu synchronizacji na żądanie „%1”. Skonfiguruj zadanie ponownie.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchronizacja na żądanie</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Wypróbuj synchronizację na żądanie</translation>
    </message>
    <message>
        <source>Comment</source>
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
        <translation>Wprowadź nazwę lub rozszerzenie pliku, na przykład „*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Role i uprawnienia</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Zwolniono miejsce</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Dostępne na tym komputerze</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Synchronizacja na żądanie wymaga folderu na dysku NTFS, który nie jest dyskiem sieciowym ani wymiennym.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Pozostaw pliki online, dopóki nie będą potrzebne. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Jak działa synchronizacja na żądanie&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Na tym dysku jest za mało miejsca. Aplikacja %1 wymaga co najmniej %2 MB.</translation>
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
        <translation>Wszystko, co udostępniają Ci inne osoby, w jednym folderze</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Poproś administratora o uprawnienia do używania pakietu.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Ten klient wymaga na hubie aplikacji %1 w wersji %2 lub nowszej. Poproś administratora o jej zaktualizowanie.</translation>
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
        <translation>Aplikacja %1 nie może komunikować się z pakietem na hubie. Zaktualizuj oba składniki do najnowszej wersji.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Tylko Ty możesz otworzyć link</translation>
    </message>
    <message>
        <source>Continue anyway</source>
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
        <translation>Rozpocznij prezentację</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
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
        <translation>Witamy w aplikacji Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
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
        <translation>Przetwarzany jest %1 plik</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>Aplikacja %1 i klient mają różne wersje. Zaktualizuj oba składniki do tej samej wersji.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Przetwarzane pliki: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
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
        <translation>Twój folder domowy zajmuje %1 z %2, a foldery udostępnione %3 z %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
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
        <translation>Wybierz zawartość kopii zapasowej</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane, ponieważ Twoje konto zostało wyłączone na hubie.</translation>
    </message>
    <message>
        <source>Syncing...</source>
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
        <translation>Konto wyłączone</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Pokazuj ikony na plikach wykluczonych przez filtr</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Miejsce na dane</translation>
    </message>
    <message>
        <source>Dialog box</source>
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
        <translation>Nie masz już uprawnień dostępu do folderu udostępnionego „%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Przetwarzanie „%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dni</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Nie można wczytać zadania.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operacja</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Folder „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
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
        <translation>Liczba kopii zapasowych dziennie: %1</translation>
    </message>
    <message>
        <source>times</source>
        <translation>raz(y)</translation>
    </message>
    <message>
        <source>Backup mode</source>
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
        <translation>Ostatnia kopia zapasowa: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Codziennie</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Ręczna kopia zapasowa</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Raz dziennie</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Ciągła kopia zapasowa</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Zaplanowana kopia zapasowa</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Ustaw plan kopii zapasowych</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Tworzenie migawki...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Nie można zapisać planu kopii zapasowych. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Wprowadź rozmiar od 0 do %1 MB. Wprowadź 0, aby nie ustawiać limitu.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Pokaż aktywność tego zadania</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Pokaż usunięte elementy</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Zajęte</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Miesiące</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Zajęte: %1 z %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Zadanie w tle</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Okno ustawień filtra</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Wprowadź prawidłową godzinę.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Nie zsynchronizowano: wykluczone przez regułę systemową</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Zadania kopii zapasowej</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Ostatnio zmienione</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Utwórz kopię teraz</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Równy</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Mniejszy niż</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Większy niż</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Wybierz folder na tym komputerze</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Ten folder należy już do zadania kopii zapasowej aplikacji %1. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Ten folder jest już synchronizowany przez aplikację Kelvane Quay Client i nie można dodatkowo tworzyć jego kopii zapasowej. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adres IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>odpowiada na Twój komentarz do elementu</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Otwórz stan synchronizacji</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Odpowiedzi</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Nie zsynchronizowano</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Aplikacja Tessaly Server na hubie jest za stara dla aplikacji %1. Poproś administratora o jej zaktualizowanie.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Brak połączenia z hubem</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Zaawansowane udostępnianie</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Nie można zapisać ustawień udostępniania. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Włącz zaawansowane udostępnianie</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Włącz ochronę linku</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>ma teraz zaawansowane ustawienia udostępniania.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Chronione udostępnianie</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Ochrona linku</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Czy na pewno chcesz usunąć link? Nie można go przywrócić.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Usunąć ten link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Zapisz dzienniki klienta w pliku, który możesz wysłać do pomocy technicznej.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Wprowadź słowo kluczowe</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Usuń link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Rozwiązywanie problemów</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Zapisuj więcej szczegółów w dziennikach, aby pomóc działowi pomocy technicznej w znalezieniu przyczyny problemu.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Eksportuj dzienniki</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Usunięto plik</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Wyeksportowany plik zawiera:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Informacje o systemie operacyjnym tego komputera</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Rejestrowanie zaawansowane</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Dzienniki zaawansowane zajmują więcej miejsca na dysku i mogą spowolnić klienta.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Oświadczenie o prywatności</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Dzienniki i ustawienia klienta, bez haseł</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Włącz rejestrowanie zaawansowane</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Nie zsynchronizowano: wykluczone przez filtr zadania</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Nie zsynchronizowano: brak uprawnień</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Warunki korzystania z usługi</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Wprowadź rozmiar mniejszy niż %1 MB.</translation>
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
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
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
        <translation>Hub może teraz indeksować cały Twój folder domowy.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Możesz teraz synchronizować cały swój folder domowy z tym komputerem.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Zablokowane</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Usługa Norvik wyłączona</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>Hub przygotowuje Twój folder domowy. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Zmieniono nazwę pliku</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>Zaktualizowano plik „%1”</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
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
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Delete</source>
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
        <translation>Brak prawidłowych folderów</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Pliki pozostają na hubie, dopóki ich nie otworzysz. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Dowiedz się więcej o synchronizacji na żądanie&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
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
