<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Подключиться через Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Возник конфликт файлов. Новое имя файла: %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>Недопустимое значение. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>Сеть недоступна. Проверьте подключение и повторите попытку.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Локальная папка</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Привязать снова</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Проверка имени пользователя и пароля...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Подключение установлено</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Файлы в двух папках будут объединены. Продолжить?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Запуск...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Проверьте следующие настройки перед завершением.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Изменить папку</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>Ferrylink ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Недавно обновленные файлы</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Скачано</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Поиск изменений...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>Подключение к хабу прервано. Повторное подключение...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Настроить</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Не удалось войти</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Определение типа подключения...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Ретранслятор Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>Служба Ferrylink не отвечает. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Обновлено файлов: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Эта папка доступна вам только для чтения. Изменения, внесенные на этом компьютере, не будут отправляться.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Ваша квота хранилища на хабе исчерпана. Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Тип подключения</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Папка только для чтения</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Изменить локальную папку</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Не удалось проверить SSL-сертификат хаба.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Не использовать прокси-сервер</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Использовать системные настройки прокси</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Не удалось подключиться к управляющему серверу Ferrylink. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Изменения не сохранены. Покинуть эту страницу?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Хранилище заполнено</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Настройки прокси</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Не удалось включить синхронизацию для общей папки.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Эта папка пересекается с уже синхронизируемой папкой. Выберите другую.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>Максимальное число синхронизируемых общих папок: %1.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Введите номер порта от 1 до 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>Настроить прокси-сервер вручную</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Нет изменений, которые можно применить.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Включить синхронизацию</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Имя общей папки</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Настройки сети</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Прокси-сервер требует входа</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Что-то пошло не так</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Шифровать передачу данных с помощью SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Имя хаба, IP-адрес или Ferrylink ID</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Показывать значки состояния синхронизации на файлах и папках</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Общие параметры</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Использовать черно-белый значок в области уведомлений</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>Вам доступна общая папка «%1». Вы можете настроить ее синхронизацию с этим компьютером.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Проверка данных...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Не удалось выполнить автоматическую настройку. Настройте подключение вручную.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Завершение настройки...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Файлы и папки, соответствующие этим правилам, не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Установка обновления...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Расширения файлов</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Папка на точке монтирования</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Ход выполнения: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>Прекратить синхронизацию папки «%1»? Файлы на этом компьютере и на хабе сохранятся.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Не удалось удалить общую папку из списка.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Этот ключ настройки уже использован. Запросите новый у администратора.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>Новый язык начнет действовать после перезапуска приложения.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>Диск этого компьютера заполнен. Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Загрузка списка папок...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Вы действительно хотите отвязать этот компьютер от хаба?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Отправка...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Установка [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Синхронизация файлов: %1...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Скачивается «%1»...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Папки для синхронизации</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Максимальный размер файла</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Исключенные имена файлов</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Исключенные файлы</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>Локальная база данных повреждена. Отвяжите этот компьютер от хаба и привяжите его снова.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Фильтр файлов</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Список исключений</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Папки, с которых снят флажок, будут удалены с этого компьютера. На хабе они останутся.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Обработка конфликтов</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Папка является точкой монтирования, и ее нельзя синхронизировать. Выберите другую папку.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Скачивание отменено: «%1».</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>Синхронизация остановлена: диск этого компьютера заполнен.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>Синхронизация остановлена: ваша квота хранилища на хабе исчерпана.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Привязка...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Отказано в доступе</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Не удалось получить с хаба сведения о вашей учетной записи.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Подключение нестабильно</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Получить ссылку</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Привязка этого компьютера к хабу...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Попытка синхронизации...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Читатель</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Предупреждение о сертификате</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Правила исключения</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Если прекратить синхронизацию этой общей папки, дальнейшие изменения не будут передаваться. Локальные файлы сохранятся.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Включить SSL-шифрование</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Выберите на этом компьютере папку, которую нужно синхронизировать с хабом.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>— вам открыт доступ.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Новый общий доступ</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Скачивание завершено</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Не удалось скачать</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>Обзор хаба</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>Хаб по этому адресу изменился. Привяжите этот компьютер снова.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>Синхронизация приостановлена.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>SSL-сертификат хаба не является доверенным.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>Выполняется синхронизация.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>Клиент слишком старый для этого хаба. Обновите клиент.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Эта папка уже входит в задачу резервного копирования Tessaly. Выберите другую папку.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Задача неактивна, так как хаб недоступен.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Не удается скачать файл. Проверьте подключение и свои права.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>История версий этого файла недоступна.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Для этого объекта нельзя создать ссылку.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>При двойном щелчке значка в области уведомлений</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>Хаб индексирует эту папку. Подождите.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Сбой инициализации. Перезапустите приложение.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>Программа установки не может заменить файлы, открытые в других приложениях.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Не закрывать приложения. После установки потребуется перезагрузить компьютер.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Восстанавливает отсутствующие или поврежденные файлы программы, ярлыки и записи реестра.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Запустить [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] обеспечит защиту и синхронизацию ваших файлов.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Для выхода из программы установки нажмите «Готово».</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>Диск, на котором находится локальная папка, не подключен.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Восстановить [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Что вы хотите сделать?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>[ProductName] устанавливается на ваш компьютер.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Произошла ошибка, и установить [ProductName] не удалось. Все изменения, внесенные программой установки, отменены. Вы можете запустить ее снова в любое время.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Сведения об этом компьютере и хабе, к которому он привязан.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>С помощью этого мастера можно изменить, восстановить или удалить [ProductName]. Нажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Удалить [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Лицензионное соглашение</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>В этих приложениях открыты файлы, которые программа установки [ProductName] должна заменить:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Активность синхронизации</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Установка [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Локальная папка не найдена. Возможно, она была перемещена, переименована или удалена.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Вы действительно хотите отменить установку [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Прочитайте соглашение, прежде чем продолжить.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>Закрыть приложения сейчас и снова открыть их после завершения установки.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Используемые файлы</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Закройте приложения и нажмите «Повторить». Если нажать «Пропустить», установка [ProductName] завершится полностью только после следующей перезагрузки компьютера.</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Выберите, какие компоненты и куда установить.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] всегда устанавливается со всеми компонентами.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>Изменить [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Установленную программу можно изменить, восстановить или удалить.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Удаляет программу и ее настройки с вашего компьютера.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Все готово к установке [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Все готово к установке Tessaly. Нажмите «Установить», чтобы начать, или «Назад», чтобы проверить настройки.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>Программа установки готова удалить программу.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Все готово к удалению [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Нажмите «Удалить», чтобы удалить [ProductName] с этого компьютера. Синхронизированные файлы сохранятся.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>Программа установки готова восстановить программу.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Все готово к восстановлению [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Нажмите «Восстановить», чтобы начать, «Назад», чтобы выбрать другое действие, или «Отмена», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Вы вышли из программы установки до завершения установки [ProductName]. На компьютере ничего не изменено. Вы можете запустить программу установки снова в любое время.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Этот мастер установит [ProductName] на ваш компьютер. Нажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Вас приветствует мастер установки [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>Установка [ProductName] завершена</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Установка [ProductName] отменена</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>История скачивания</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Привязать к новому хабу</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>Не удалось установить [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Синхронизация включена</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Добавить задачу</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Я принимаю лицензионное соглашение</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Ваши файлы актуальны на каждом устройстве.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Это не тот хаб, к которому привязан %1. Привяжите этот компьютер снова.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>Общий доступ отключен для вашей учетной записи.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>Задача «%1» будет остановлена, а ее подключение к хабу удалено. Файлы на обеих сторонах сохранятся.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Открыть папку с файлом</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Не удалось получить адрес файла с хаба.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Выберите на этом компьютере папку, в которой хранятся ваши файлы.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>Хаб изменился</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>Общая папка «%1» не смонтирована на хабе.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>Том, содержащий папку на хабе, не смонтирован.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Расположение папки</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Синхронизировать с этим компьютером</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Вы вошли в систему не как администратор, поэтому некоторые компоненты могут не установиться. Продолжить?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Синхронизируйте файлы, делитесь ими и защищайте их</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>Общий доступ к файлам через Ferrylink отключен на хабе. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Выберите способ настройки Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>%1–%2 из %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>Объект удален, или у вас больше нет прав доступа к нему.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Щелкните файл или папку правой кнопкой мыши, чтобы поделиться, получить ссылку или просмотреть предыдущие версии.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Период</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Прекратить синхронизацию этой папки</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Выберите папку на хабе и папку на этом компьютере. Их содержимое всегда будет одинаковым.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Этот компьютер уже привязан</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Апрель</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Февраль</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Август</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Октябрь</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Снова синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Прекратить синхронизацию этих папок</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>История пуста</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Снова синхронизировать эти папки</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Отправить в</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Январь</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Ноябрь</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Синхронизируется</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Сентябрь</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Июль</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Июнь</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Март</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Декабрь</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Расширенная настройка</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Начните синхронизацию в один шаг с рекомендуемыми настройками.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Теперь ваша домашняя папка на хабе и новая папка на этом компьютере всегда будут одинаковыми.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>Настройка завершена</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Поместите файлы в синхронизируемую папку, и они появятся на хабе и на всех остальных ваших компьютерах.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Щелкните значок в области уведомлений, чтобы увидеть состояние синхронизации и недавно измененные файлы.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>Режим настройки</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Синхронизируйте свои файлы</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Следите за изменениями</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Найти хабы в локальной сети</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Сведения о состоянии</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Пользователь: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Этот файл не относится ни к одной задаче синхронизации.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Открыть главное окно</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Привязать этот компьютер к другому хабу</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Синхронизировать другую папку с этим хабом</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Новая задача синхронизации</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Самостоятельно выберите папки, направление синхронизации и фильтры.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Файлы размером более %1 МБ не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Эту папку нельзя синхронизировать. Выберите другую.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Поиск хабов в локальной сети</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Эта общая папка доступна вам только для чтения. Файлы будут скачиваться, но не будут отправляться.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Другие инструкции см. в &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;руководствах&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Эта папка находится внутри уже синхронизируемой папки или содержит ее. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Этот компьютер уже привязан к хабу «%1».</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>В этом расположении будет создана папка «Tessaly».</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Если вы продолжите, существующая привязка будет заменена.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>Хаб не в сети.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Домашняя папка</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Не удается создать ссылку, так как служба Norvik недоступна на хабе.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>SSL-сертификат хаба изменился. Подтвердите новый сертификат.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Настройка папок для синхронизации</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>Направление синхронизации не соответствует вашим правам доступа к папке на хабе.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>IP-адрес этого компьютера заблокирован хабом. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Если файл изменен на обеих сторонах:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Вас приветствует мастер настройки</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Предыдущие страницы (%1)</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Следующие страницы (%1)</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отвязка...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Слишком много неудачных попыток. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Не удается проверить папку: нет подключения к хабу.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>Общая папка больше не существует на хабе.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>Папки синхронизации</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Сохранять версию, измененную последней</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>В обоих направлениях</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Выберите, какую папку на хабе и с какой папкой на этом компьютере синхронизировать.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>запрашивает доступ к шаблону Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Эта папка уже используется другой задачей синхронизации на этом компьютере.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 запрашивает доступ к шаблону Bureau «%2».</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Не удается проверить папку: SSL-сертификат хаба изменился.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Введите код подтверждения.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>Неверный код подтверждения. Повторите попытку.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Введите 6-значный код подтверждения</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Ваша квота хранилища на томе с этой папкой исчерпана.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Не удается проверить папку: SSL-сертификат хаба не является доверенным.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Не удается проверить папку: на хабе произошла системная ошибка.</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Всегда сохранять версию на хабе</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Переименовывать конфликтующие файлы и сохранять обе версии</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) запрашивает доступ «%3» к шаблону Bureau «%4».</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Содержимое обеих папок будет объединено. Файлы не будут удалены.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Учетная запись</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Список подключений</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Подключенный хаб</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Копировать ссылку общего доступа</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Удалить права этого пользователя</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Группа: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Открыть веб-портал Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Привязанный хаб</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Задача синхронизации файлов, к которым вам открыли доступ другие</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Вкладка недавно измененных файлов</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Руководство, страница 2: синхронизируйте свои файлы</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Руководство, страница 3: следите за изменениями</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Руководство, страница 4: делитесь с другими</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Выберите права общего доступа</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>С Tessaly файлы на ваших компьютерах и на хабе всегда одинаковы.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ч</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Хаб</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Открыть мою папку</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Общая папка не найдена</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>Для входа на хаб требуется двухфакторная аутентификация. Настройте ее на веб-портале и войдите снова.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Квота общей папки исчерпана.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Некоторые поля содержат недопустимые значения. Проверьте выделенные поля.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>В одной из задач что-то пошло не так. Подробности см. в главном окне.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Здесь показаны только общие папки, включенные в Tessaly Server.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>У вас нет прав доступа к этой папке.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Истекает через</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Нет доступных действий</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Неверное имя пользователя или пароль. Войдите снова.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Введите полное имя файла, например «desktop.ini», и нажмите клавишу Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Папка с таким именем уже существует. Выберите другое имя.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Сравнивать все атрибуты файлов при поиске изменений</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Действует до</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Это поле не может быть пустым.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Ограничить доступ</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Показывать действия синхронизации в контекстном меню файлов и папок</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>Служба домашних папок отключена на хабе. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>Не удалось выполнить обновление. &lt;a href=&quot;%1&quot;&gt;Скачайте последнюю версию&lt;/a&gt; и установите ее вручную.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Применить и скопировать ссылку</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Ограничить число посещений</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Действует с</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>Для хаба требуется более новая версия клиента. Обновить сейчас?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>Папка на хабе находится на томе, который не смонтирован.</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>Показать сведения</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Добавить имя файла</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Папка на этом компьютере</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Выберите язык</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Список скачиваемых версий файлов</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Настроить срок действия</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Показать руководство по %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Изменить папку синхронизации</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Привязанная папка синхронизации</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Обновить историю</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Введите ключевое слово для поиска в истории</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Выберите тип события</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Задача синхронизации «%1»</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Папка на хабе</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Окно настроек</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Закрыть руководство</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Отменить это скачивание</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Удалить это скачивание из списка</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Срок действия пароля истек. Измените его на веб-портале и войдите снова.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Редактор</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Переименовано на этом компьютере</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Переименовано на хабе</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Максимальное число символов: %1.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Задача создана с другой учетной записью. Войдите как «%1».</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Сведения о хабе</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>Служба ретрансляции Ferrylink отключена на хабе.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>Не удалось скачать «%1». Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Не удалось войти на хаб. Проверьте имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>комментирует файл</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Открыть на веб-портале</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Настроить</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Открыть синхронизируемую папку</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Эта папка доступна вам только для чтения. %1 не будет отправлять ваши изменения.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 теперь привязан к хабу и будет синхронизировать ваши файлы.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>Программа установки собрала все необходимые сведения.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 готов.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 уже запущен.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>С %1 файлы на ваших компьютерах и на хабе всегда одинаковы.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Просмотр и комментирование</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>Не удалось обновить %1. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>Более новая версия Kelvane Quay Client уже установлена. Программа установки будет закрыта.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>SSL-сертификат хаба изменился. Если вы этого не ожидали, обратитесь к администратору, прежде чем продолжить.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>Выберите, что будет синхронизировать новая задача</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>Папка принадлежит Dropbox. Если синхронизировать ее еще и с помощью %1, могут возникнуть конфликты файлов.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Изменения будут потеряны. Продолжить?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Руководство по %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>Этот Ferrylink ID не существует, или %1 не запущен на хабе.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Здесь показаны только общие папки, включенные в %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Запускать %1 при входе в систему на этом компьютере</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 выполняет инициализацию...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>Хаб и %1 не могут связаться друг с другом. Обновите их до последней версии.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Эта версия %1 слишком старая для хаба. Обновите ее.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Несовпадение версий</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>Диск заполнен. Чтобы %1 мог продолжить работу, освободите место на этом компьютере.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>В работе %1 возникла проблема. Перезапустите приложение.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Вкладка уведомлений</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>Папка не пуста. %1 объединит ее файлы с файлами на хабе.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Только скачивать изменения из %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>%1 настроен. Откройте свою папку, чтобы начать работу.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Руководство, страница 1: добро пожаловать в Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Эта версия Kelvane Quay Client уже установлена. Установить ее повторно?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>Настройте %1 для синхронизации и резервного копирования файлов на этом компьютере.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Почти готово! Скоро ваши файлы будут доступны в Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Почти готово! Скоро ваши файлы будут доступны на этом компьютере.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>Не удалось выполнить операцию. Повторите попытку.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>В этом расположении будет создана папка «Kelvane Quay».</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Эта версия Tessaly уже установлена. Установить ее повторно?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>Более новая версия Tessaly уже установлена. Программа установки будет закрыта.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>Руководство по Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Недели</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>Папка принадлежит Dropbox. Если синхронизировать ее еще и с помощью Tessaly, могут возникнуть конфликты файлов.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Приложение Tessaly готово.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>Tessaly выполняет инициализацию...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>Этот Ferrylink ID не существует, или Tessaly Server не запущен на хабе.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Эта версия Tessaly слишком старая для хаба. Обновите ее.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>Права общего доступа</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>Версия Tessaly Server на хабе слишком старая для этого клиента. Попросите администратора обновить ее.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Показать руководство по Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>Запускать Tessaly при входе в систему на этом компьютере</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>В работе Tessaly возникла проблема. Перезапустите приложение.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Настройка завершена. Выполняется синхронизация ваших файлов.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>Щелкните значок в области уведомлений в любое время, чтобы увидеть состояние и изменить настройки.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>Папка не пуста. Tessaly объединит ее файлы с файлами на хабе.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Приложение Tessaly уже запущено.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Приложение Tessaly настроено. Откройте свою папку, чтобы начать работу.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Эта папка доступна вам только для чтения. Tessaly не будет отправлять ваши изменения.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Открыть Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>Доступна версия %1. Щелкните здесь, чтобы обновить.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Чтобы использовать выборочную синхронизацию, попросите администратора обновить Tessaly Server на хабе.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>На этом диске недостаточно места. Для Tessaly требуется не менее %1 МБ.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Приложение Tessaly теперь привязано к хабу и будет синхронизировать ваши файлы.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly можно привязать к одному хабу с одной учетной записью только один раз.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Настройте Tessaly для синхронизации файлов на этом компьютере.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Впервые используете Tessaly? Сначала прочитайте &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;краткое руководство&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Комментирование</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Просматривать могут пользователи хаба со ссылкой</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Редактировать могут пользователи хаба со ссылкой</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Открыть ссылку могут только приглашенные пользователи</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Комментировать могут все, у кого есть ссылка</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Просматривать могут все, у кого есть ссылка</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Комментировать могут пользователи хаба со ссылкой</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Редактировать могут все, у кого есть ссылка</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Редактирование</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Не удается открыть веб-портал. Проверьте подключение к хабу.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Пригласить пользователей</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Нет доступа</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Общих папок нет.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>Публичный общий доступ отключен на хабе.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>Общий доступ отключен. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) запрашивает доступ «%3» к таблице Grida «%4».</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Те, у кого есть ссылка, больше не смогут открыть файл.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>Пользователь %1 открыл вам доступ к таблице Grida «%2».</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Нет данных</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Файл или папка не существует.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>У вас нет прав на выполнение этого действия.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>Выходные</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Пользователи хаба</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Только приглашенные</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Отображение</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Все, у кого есть ссылка</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Задать срок действия</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Пользователи и группы</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Показывать синхронизируемые папки на боковой панели файлового менеджера</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Работайте в синхронизируемой папке как в любой другой. Изменения сразу передаются на хаб.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Ваш компьютер</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Все ваши файлы — где угодно</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Экономьте место с синхронизацией по запросу</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Все файлы видны на вашем компьютере, но занимают место только после того, как вы их откроете.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Только онлайн</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Доступно на этом компьютере</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>упоминает вас в файле</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>запрашивает доступ к объекту</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>Пользователь %1 открыл вам доступ к файлу «%2».</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>открывает вам доступ к объекту</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Общий доступ</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Запрос доступа</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Комментарии</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Доступные мне</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Упоминания</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Только отправка</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Сохранять файлы на хабе при их удалении с этого компьютера</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Скачивание завершено: «%1».</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Ваши файлы актуальны на всех ваших устройствах.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>Ваши файлы также доступны на &lt;a href=&quot;%1&quot;&gt;веб-портале&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Поздравляем!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Теперь вы можете работать с Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>Включить позже</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Включить сейчас</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Доступные вам файлы</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Создание задачи синхронизации</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Мои файлы и командные папки</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Доступные мне файлы</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Это не тот хаб, к которому привязано приложение Tessaly. Привяжите этот компьютер снова.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>Хаб и Tessaly не могут связаться друг с другом. Обновите их до последней версии.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Не пропускайте изменений</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>Диск заполнен. Освободите место на этом компьютере, чтобы приложение Tessaly могло продолжить работу.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Командная папка</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Только скачивать изменения из Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Не удалось обновить Tessaly. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>Значок в области уведомлений показывает, что синхронизируется, и сообщает, когда другие открывают вам доступ к файлам или комментируют их.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>Делитесь за считаные секунды</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Щелкните файл или папку правой кнопкой мыши, создайте ссылку и решите, кто и как долго может ее открывать.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) запрашивает доступ «%3» к презентации Pictra «%4».</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>Пользователь %1 открыл вам доступ к папке «%2».</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) запрашивает доступ «%3» к папке «%4».</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) запрашивает доступ «%3» к файлу «%4».</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) запрашивает доступ «%3» к документу Folia «%4».</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>Пользователь %1 открыл вам доступ к документу Folia «%2».</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>Пользователь %1 открыл вам доступ к презентации Pictra «%2».</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Настройки конфиденциальности</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Защитить паролем</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Будни</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Для файлов, к которым другие открывают вам доступ, будет создана папка «%1».</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Всегда хранить на этом компьютере</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Любой</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Задача синхронизации</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>Резервная копия файлов создается сразу после их изменения.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>Резервные копии файлов создаются в заданное вами время.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>Резервное копирование завершено. Компьютер выключится через %1 с.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Задача копирования</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Выполнять в следующие дни</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Подключение к хабу</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Защитите файлы на этом компьютере, создавая их резервные копии на хабе.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Вручную: резервное копирование выполняется, только когда вы его запускаете.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Время начала</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Последнее завершение</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Последний запуск</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Комментатор</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Изменить, кто может открыть эту ссылку</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Последняя отправка: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Настройки задачи</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Непрерывно: резервная копия файлов создается при каждом их изменении.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Открыть в файловом менеджере</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>Это время приходится на следующий день.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Не удалось получить сведения об общем доступе.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Место хранения резервных копий</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>Резервные копии файлов создаются при нажатии кнопки «Создать копию сейчас».</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Разрешить скачивание</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>По расписанию: резервное копирование выполняется в заданное вами время.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Расписание копирования</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Менеджер</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Только просмотр</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Создать задачу резервного копирования</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Файлы, имена или расширения которых указаны здесь, будут пропущены.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Синхронизировать временные файлы</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Копируйте файлы с этого компьютера на хаб сразу или по расписанию.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Выберите, когда создаются резервные копии файлов.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Выберите хотя бы одну папку для резервного копирования.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>Файлов скопировано в папку «%3»: %1 (%2), %4</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Начать резервное копирование</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Файлы и папки, соответствующие этим правилам, не будут включены в резервную копию.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Папка не выбрана</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Освободить место</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Не хранить на этом компьютере</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Выбранные дни</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>По завершении резервного копирования</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Выберите папку на компьютере «%1».</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Выберите папку на хабе.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Каждые</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Пропускать файлы и папки, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>Начать синхронизацию</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>Резервное копирование остановлено: не удалось проверить SSL-сертификат хаба.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Не удалось зарегистрировать задачу на хабе. Повторите попытку.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>Резервное копирование остановлено: хаб по этому адресу изменился.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>Резервное копирование остановлено: хаб и клиент не могут связаться друг с другом. Обновите их.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>Резервное копирование остановлено: эта версия Tessaly слишком старая для хаба.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>Обновите Tessaly до версии %1 или более поздней.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Проверьте имя пользователя и пароль и войдите снова.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Убедитесь, что хаб включен, а этот компьютер подключен к сети.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>Хаб заблокировал IP-адрес этого компьютера. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>SSL-сертификат хаба недействителен. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Попросите администратора обновить Tessaly Server на хабе.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Резервной копии еще нет</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Содержимое папки на этом компьютере и папки на хабе всегда будет одинаковым.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Подробнее&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Выберите дни и время резервного копирования.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Как можно скорее выполнять пропущенное резервное копирование</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>Выберите папку на каждой стороне.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Введите адрес хаба и данные учетной записи.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Проверьте настройки новой задачи.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>Резервное копирование остановлено: не удалось войти на хаб.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>Версия пакета на хабе не поддерживается. Попросите администратора обновить его.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>Резервное копирование остановлено: хаб заблокировал IP-адрес этого компьютера.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>Резервное копирование остановлено: пакет на хабе слишком старый для этого клиента.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>Некоторые выбранные папки больше не существуют. Снимите с них флажки, чтобы продолжить.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Несоответствие направления синхронизации</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Все готово к установке Kelvane Quay Client. Нажмите «Установить», чтобы начать, или «Назад», чтобы проверить настройки.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>Выберите тип задачи</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Работайте с одними и теми же файлами на всех своих компьютерах.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Храните надежную копию файлов на хабе.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Войдите на хаб, на котором будут храниться резервные копии.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>Настройте папки синхронизации</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Освободите место на диске этого компьютера.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Выберите на хабе папку, которую нужно синхронизировать.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Файлы скачиваются, только когда вы их открываете, что экономит место на этом компьютере.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>Синхронизация по запросу недоступна для выбранной папки или операционной системы этого компьютера.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>Общая папка не смонтирована</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Только отправлять изменения в %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Синхронизировать файлы, к которым мне открыли доступ</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Включать временные файлы в резервную копию</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Файлы, к которым другие открывают вам доступ, появятся в отдельной папке на этом компьютере.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Веб-портал</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Квота хранилища исчерпана</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Домашняя папка отключена</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Пн</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Сб</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <translation>Локальная папка не найдена</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Не удалось запустить задачу. Перезапустите приложение.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>Общая папка этой задачи не смонтирована на хабе. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>У вас больше нет прав доступа к общей папке этой задачи.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>Диск не подключен</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Почти готово! Скоро ваши файлы будут доступны в %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Введите 0, чтобы снять ограничение.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Роль</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Вс</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Вт</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Ср</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Я не принимаю лицензионное соглашение</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Диск заполнен</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Сбой инициализации</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Возможно, локальная папка была перемещена, переименована или удалена.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Квота общей папки исчерпана</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>Квота общей папки исчерпана. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Папка на хабе не найдена</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Возможно, папка на хабе была перемещена, переименована или удалена.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Права по ссылке</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Следующее копирование: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>План копирования</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Ссылка общего доступа</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Поделиться ссылкой</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Для резервного копирования на хабе требуется %1 версии %2 или более поздней. Установлена версия %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Этот компьютер уже привязан к этому хабу с той же учетной записью.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Загрузка общих папок...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Изменения на сетевых дисках не определяются сразу. Они будут синхронизированы с задержкой.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Добро пожаловать в Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Щелкните значок Tessaly в области уведомлений, чтобы изменить настройки.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>Щелкните значок %1 в области уведомлений, чтобы изменить настройки.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>Синхронизация остановлена: том хаба заполнен.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>Пакет на хабе слишком старый для этого клиента.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>Привязка к хабу...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Все файлы актуальны.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Актуально</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Ссылка на папку</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Дата окончания срока действия</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Теперь вы можете работать с %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Обновите %1 до версии %2 или более поздней.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Выберите файлы, которые будет синхронизировать новая задача.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Открыть веб-портал %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>Резервное копирование остановлено: эта версия %1 слишком старая для хаба.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Попросите администратора обновить %1 на хабе.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>В этом расположении будет создана папка «%1».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Не удалось создать папку «%1» на этом компьютере.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Просматривайте все свои файлы, не заполняя диск. Каждый файл скачивается, когда вы его открываете.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Открыть веб-портал Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Более новая версия Tessaly уже установлена. Удалите ее перед установкой Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Руководство, страница 1: добро пожаловать в %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Тип задачи</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Все готово к установке функций синхронизации и резервного копирования Kelvane Quay Client. Нажмите «Установить», чтобы начать, или «Назад», чтобы проверить настройки.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Включить синхронизацию по запросу</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Папка синхронизации по запросу «%1» не найдена. Настройте задачу снова.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Синхронизация по запросу</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Попробуйте синхронизацию по запросу</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Комментировать</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>Том хаба заполнен. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Введите допустимую дату.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>Время окончания должно быть позже времени начала.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>Введите имя или расширение файла, например «*.tmp»</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Роли и права</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Редактировать</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Место освобождено</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Теперь доступно на этом компьютере</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>Для синхронизации по запросу нужна папка на диске NTFS, который не является сетевым или съемным.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Храните файлы онлайн, пока они вам не понадобятся. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Как работает синхронизация по запросу&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>На этом диске недостаточно места. Для %1 требуется не менее %2 МБ.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Синхронизируйте домашнюю папку и командные папки, к которым у вас есть доступ.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Если отключить этот параметр, папка с файлами, к которым вам открыли доступ другие, будет удалена с этого компьютера. Продолжить?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Синхронизируйте файлы, к которым вам открыли доступ другие, чтобы открывать их как свои.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Включить синхронизацию по запросу для этой задачи</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>Резервное копирование остановлено: вашей учетной записи не разрешено использовать пакет на хабе.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Синхронизируйте файлы и папки, к которым вам открыли доступ другие пользователи.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Диск заполняется. Включите синхронизацию по запросу, чтобы освободить место.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Все, к чему вам открыли доступ другие, — в одной папке</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Попросите администратора предоставить вам права на использование пакета.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Для этого клиента на хабе требуется %1 версии %2 или более поздней. Попросите администратора выполнить обновление.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>У вас нет прав на использование пакета на хабе. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>Это место уже используется другой задачей резервного копирования. Выберите другую папку.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>%1 не может связаться с пакетом на хабе. Обновите их до последней версии.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Открыть ссылку можете только вы</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Все равно продолжить</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>С Tessaly ваши файлы одинаковы на всех компьютерах и защищены на хабе.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Поделитесь файлом по ссылке. Вы решаете, кто может просматривать или редактировать его.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Начать знакомство</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Впервые используете %1? Сначала прочитайте &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;краткое руководство&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Все файлы этой задачи будут скачаны на этот компьютер. Продолжить?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Добро пожаловать в Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Делитесь с другими</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Откройте историю, чтобы узнать, кто и когда изменил файл.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Синхронизируйте файлы с хабом, чтобы они были одинаковыми на всех ваших компьютерах.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>Обрабатывается %1 файл</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>Версии %1 и клиента различаются. Обновите их до одной версии.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Обрабатывается файлов: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>Обрабатывается файлов: %1</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>Том с этой папкой не поддерживает квоты.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Ваша личная квота хранилища исчерпана.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>Ваша домашняя папка занимает %1 из %2, а общие папки — %3 из %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>Квота общей папки «%1» исчерпана.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Квоты некоторых папок исчерпаны.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Не удается восстановить версию: файл исключен фильтром.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Выберите папки для резервного копирования и место хранения резервных копий.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>Выберите данные для резервного копирования</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>Резервное копирование остановлено: ваша учетная запись отключена на хабе.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Синхронизация...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Попросите администратора включить вашу учетную запись.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Ваша учетная запись отключена на хабе. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>Учетная запись отключена</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Показывать значки на файлах, исключенных фильтром</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Хранилище</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Диалоговое окно</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Все задачи, связанные с этим хабом, будут удалены с этого компьютера. Файлы сохранятся. Продолжить?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Не удалось выполнить резервное копирование. Повторите попытку.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Не удалось создать задачу. Повторите попытку.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>У вас больше нет прав доступа к общей папке «%1».</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Обрабатывается «%1»...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Дни</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Не удалось загрузить задачу.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Операция</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>Папка «%1» не существует.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>Выключить компьютер</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>У вас нет прав на автоматическое выключение этого компьютера.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Резервное копирование отменено.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Резервное копирование завершено.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>Резервных копирований в день: %1</translation>
    </message>
    <message>
        <source>times</source>
        <translation>раз(а)</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Режим копирования</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Начать резервное копирование сейчас?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Если в запланированное время этот компьютер выключен или находится в спящем режиме, резервное копирование начнется, как только он снова заработает.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Выберите хотя бы один день недели.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Последнее копирование: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Каждый день</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Копирование вручную</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Один раз в день</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Непрерывное копирование</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Копирование по расписанию</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Настройка плана копирования</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Создание снимка...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Не удалось сохранить план копирования. Повторите попытку.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Введите размер от 0 до %1 МБ. Введите 0, чтобы снять ограничение.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Показать активность этой задачи</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Минуты</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Показать удаленные объекты</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Использовано</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Месяцы</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Использовано %1 из %2</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Фоновая задача</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Окно настроек фильтра</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Введите допустимое время.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Не синхронизировано: исключено системным правилом</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспортировать</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Дата создания</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Задачи копирования</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задачи синхронизации</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Фильтры</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Недавно измененные</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Создать копию сейчас</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Равно</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Больше</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Выберите папку на этом компьютере</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Эта папка уже входит в задачу резервного копирования %1. Выберите другую папку.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Эта папка уже синхронизируется Kelvane Quay Client, поэтому ее нельзя включить в резервную копию. Выберите другую папку.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-адрес</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>отвечает на ваш комментарий к файлу</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Открыть состояние синхронизации</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Ответы</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Не синхронизировано</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>Версия Tessaly Server на хабе слишком старая для %1. Попросите администратора обновить ее.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Нет подключения к хабу</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Расширенный общий доступ</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Не удалось сохранить настройки общего доступа. Повторите попытку.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Включить расширенный общий доступ</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Включить защиту ссылки</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>теперь в общем доступе с расширенными настройками.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Защищенный общий доступ</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Защита ссылки</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Вы действительно хотите удалить ссылку? Восстановить ее будет нельзя.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Удалить эту ссылку?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Сохраните журналы клиента в файл, который можно отправить в службу технической поддержки.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Введите ключевое слово</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Удалить ссылку</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Устранение неполадок</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Записывать в журналы больше сведений, чтобы помочь технической поддержке найти причину неполадки.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Экспортировать журналы</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Файл удален</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>Экспортированный файл содержит:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Сведения об операционной системе этого компьютера</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Расширенное ведение журналов</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Расширенные журналы занимают больше места на диске и могут замедлить работу клиента.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Заявление о конфиденциальности</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Журналы и настройки клиента без паролей</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Включить расширенное ведение журналов</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Не синхронизировано: исключено фильтром задачи</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Не синхронизировано: нет прав</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Условия использования</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Введите размер меньше %1 МБ.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Эта папка уже входит в другую задачу резервного копирования. Выберите другую папку.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>Задача остановлена из-за непредвиденной ошибки. Перезапустите приложение.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>У этого файла нет предыдущих версий.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Не удалось включить синхронизацию по запросу для этой задачи.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Не удалось подключиться к хабу. Проверьте адрес и сеть.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>Файл добавлен</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>Имя не может начинаться с пробела или заканчиваться им.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>Резервное копирование остановлено: SSL-сертификат хаба изменился.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>Срок действия SSL-сертификата хаба истек. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>Теперь хаб может индексировать всю вашу домашнюю папку.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Теперь вы можете синхронизировать всю домашнюю папку с этим компьютером.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Заблокировано</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik отключен</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>Хаб подготавливает вашу домашнюю папку. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Файл переименован</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>Обновлено: «%1»</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>Имя не может содержать следующие символы: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik отключен на хабе. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Ваша учетная запись отключена на хабе, поэтому проверить папку не удается.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Задача с таким именем уже существует.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Ни одну из выбранных папок нельзя использовать. Выберите другую папку.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>Нет подходящих папок</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Файлы остаются на хабе, пока вы их не откроете. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Подробнее о синхронизации по запросу&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Свое имя задачи</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>Имя помогает различать задачи. Оно отображается только на этом компьютере.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>Синхронизацию по запросу можно включить или отключить в настройках задачи.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Это обязательное поле.</translation>
    </message>
</context>
</TS>
