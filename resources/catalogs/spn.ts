<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was deleted).</extracomment>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Unlink</source>
        <extracomment>Menu item/Button: ends the link between this computer and the hub (verb).</extracomment>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <extracomment>Check box/Menu item in the connection settings; Ferrylink is the name of a relay service.</extracomment>
        <translation>Conectar mediante Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <extracomment>Button beside a warning about the folder that was chosen.</extracomment>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Merge</source>
        <extracomment>Button in a question: puts the files of two folders together.</extracomment>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>Heading/Status: title of a message box, and the state of a task that failed.</extracomment>
        <translation>Error</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <extracomment>Message: %1 is the new file name.</extracomment>
        <translation>Se han producido conflictos de archivos. El archivo se ha renombrado como %1.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>El valor no es válido. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>La red no está disponible. Compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Finish</source>
        <extracomment>Button on the last page of a wizard and of the installer (verb).</extracomment>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Local folder</source>
        <extracomment>Label/Column head: above the path of the folder on this computer, and of a list of such folders.</extracomment>
        <translation>Carpeta local</translation>
    </message>
    <message>
        <source>Link again</source>
        <extracomment>Menu item in the tray menu: links this computer to the hub again.</extracomment>
        <translation>Volver a vincular</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Menu item in the tray menu: opens the box with the version and the copyright.</extracomment>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <extracomment>Status, shown while the wizard signs in.</extracomment>
        <translation>Comprobando el nombre de usuario y la contraseña...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <extracomment>Status, shown when the test of the connection is done.</extracomment>
        <translation>Conexión establecida</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Se combinarán los archivos de las dos carpetas. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <extracomment>Status, shown while the client starts.</extracomment>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Revise la siguiente configuración antes de finalizar.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <extracomment>Status, shown while the wizard tests the connection.</extracomment>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>El nombre de usuario o la contraseña no son correctos.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <extracomment>Button beside the path of the sync folder.</extracomment>
        <translation>Cambiar de carpeta</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <extracomment>Heading of a warning about the folder that was chosen.</extracomment>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Folder path</source>
        <extracomment>Label beside a field with the path of a folder.</extracomment>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <extracomment>Label beside the field for the identifier of a hub in the Ferrylink service.</extracomment>
        <translation>ID de Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Value&quot;.</extracomment>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>Column head of a table of properties; stands beside &quot;Name&quot;.</extracomment>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Welcome</source>
        <extracomment>Heading of the first page of a wizard, alone.</extracomment>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Menu item in the tray menu: ends the client.</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <extracomment>Menu item in the tray menu: opens the list of these files.</extracomment>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was downloaded).</extracomment>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Button: opens the help.</extracomment>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Button: closes a box and takes what was entered, in the installer too.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: closes a box and drops what was entered, in the installer too (verb).</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>Button: goes to the next page of a wizard and of the installer.</extracomment>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: goes to the page before in a wizard and in the installer.</extracomment>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Get started</source>
        <extracomment>Button on the first page of the set-up: begins with it.</extracomment>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Label in the about box, beside the version number.</extracomment>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <extracomment>Status, shown while the client looks through the folders.</extracomment>
        <translation>Buscando cambios...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <extracomment>Status in the tray.</extracomment>
        <translation>Se ha perdido la conexión con el hub. Volviendo a conectar...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was uploaded).</extracomment>
        <translation>Subido</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>Choice: last entry of a list of filters or periods: the user sets one (verb).</extracomment>
        <translation>Personalizar</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Label/Column head: beside a time of day, and when something happened to a file.</extracomment>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Local network</source>
        <extracomment>Choice: how the hub is reached: in the same network.</extracomment>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <extracomment>Choice: how the hub is reached: straight, without a relay.</extracomment>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <extracomment>Status, short, in the tray: the hub refused username or password.</extracomment>
        <translation>Error al iniciar sesión</translation>
    </message>
    <message>
        <source>Internet</source>
        <extracomment>Choice: how the hub is reached: over the Internet.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <extracomment>Status: stands in place of the connection type while it is being found out.</extracomment>
        <translation>Detectando el tipo de conexión...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <extracomment>Choice: how the hub is reached: through the relay server of Ferrylink.</extracomment>
        <translation>Retransmisión de Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>El servicio Ferrylink no responde. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <extracomment>Event in a notification; %1 is a number, always more than one.</extracomment>
        <translation>Archivos actualizados: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta. Los cambios que haga en este equipo no se subirán.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <extracomment>Message of a task, and of a notification.</extracomment>
        <translation>Ha agotado su cuota de almacenamiento en el hub. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <extracomment>Label beside &quot;Local network&quot;, &quot;Direct connection&quot;, &quot;Internet&quot; or &quot;Ferrylink relay&quot;.</extracomment>
        <translation>Tipo de conexión</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <extracomment>Heading of a warning: nothing can be changed in the folder.</extracomment>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Menu item/Button/Tab: opens the settings.</extracomment>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <extracomment>Button in the settings of a shared folder.</extracomment>
        <translation>Cambiar la carpeta local</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <extracomment>Heading/Tab: the folders that the hub shares (noun; folders).</extracomment>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <extracomment>Message of the connection settings, and of a task.</extracomment>
        <translation>No se ha podido verificar el certificado SSL del hub.</translation>
    </message>
    <message>
        <source>Port</source>
        <extracomment>Label beside the field for the port number of the proxy server.</extracomment>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Information</source>
        <extracomment>Heading of a message box that informs.</extracomment>
        <translation>Información</translation>
    </message>
    <message>
        <source>Proxy</source>
        <extracomment>Tab of the settings: the proxy server.</extracomment>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <extracomment>Choice, first of three: none, the system&apos;s, manual.</extracomment>
        <translation>No usar un servidor proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <extracomment>Choice, second of three: none, the system&apos;s, manual.</extracomment>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <extracomment>Heading of the box in which a folder is chosen.</extracomment>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Error al conectar con el servidor de control de Ferrylink. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Los cambios no se han guardado. ¿Desea salir de esta página?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <extracomment>Status, short, in the tray: the user&apos;s space on the hub is used up.</extracomment>
        <translation>Almacenamiento lleno</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <extracomment>Heading of the proxy page of the settings.</extracomment>
        <translation>Configuración de proxy</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>No se ha podido activar la sincronización de la carpeta compartida.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Esta carpeta se solapa con una carpeta que ya se sincroniza. Elija otra.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>No se pueden sincronizar más de %1 carpetas compartidas.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <extracomment>Status, shown while the settings are being stored.</extracomment>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Introduzca un número de puerto entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Introduzca la dirección y el puerto del servidor proxy.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <extracomment>Choice, third of three: none, the system&apos;s, manual.</extracomment>
        <translation>Configurar el servidor proxy manualmente</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>No hay cambios que aplicar.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <extracomment>Check box for a shared folder: it is synced.</extracomment>
        <translation>Activar la sincronización</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <extracomment>Column head of the list of shared folders.</extracomment>
        <translation>Nombre de la carpeta compartida</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Column head: whether a folder or file is synced.</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Button: takes over the changes (verb).</extracomment>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Network settings</source>
        <extracomment>Button: opens the network page of the system.</extracomment>
        <translation>Configuración de red</translation>
    </message>
    <message>
        <source>Manage</source>
        <extracomment>Menu item/Button: opens the page on which tasks or other things are managed (verb).</extracomment>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <extracomment>Check box of the proxy page: the fields for username and password follow.</extracomment>
        <translation>El servidor proxy requiere iniciar sesión</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <extracomment>Status, short, in the tray and of a task: an unexpected error.</extracomment>
        <translation>Se ha producido un problema</translation>
    </message>
    <message>
        <source>Updating...</source>
        <extracomment>Status, short, in the tray: the client or a file is being brought up to date.</extracomment>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Cifrar la transmisión de datos con SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <extracomment>Label beside the field for how to reach the hub.</extracomment>
        <translation>Nombre del hub, dirección IP o ID de Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostrar notificaciones en el escritorio</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostrar iconos de estado de sincronización en archivos y carpetas</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Tab of the settings.</extracomment>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>General options</source>
        <extracomment>Heading of the general page of the settings.</extracomment>
        <translation>Opciones generales</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <extracomment>Check box of the general options, and of the display settings.</extracomment>
        <translation>Usar un icono en blanco y negro en la bandeja del sistema</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>La carpeta compartida “%1” está a su disposición. Puede configurarla para que se sincronice con este equipo.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <extracomment>Heading of a notification: someone has shared a folder with the user.</extracomment>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Comprobando los datos...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Error en la configuración automática. Configure la conexión manualmente.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <extracomment>Status: last step of the automatic set-up of the client (not of the installer).</extracomment>
        <translation>Finalizando la configuración...</translation>
    </message>
    <message>
        <source>Continue</source>
        <extracomment>Button: goes on after a warning or a question.</extracomment>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <extracomment>Button: opens the choice of the folders and files that are synced.</extracomment>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <extracomment>Message above the rules of a task&apos;s filter.</extracomment>
        <translation>Los archivos y carpetas que cumplan estas reglas no se sincronizarán.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <extracomment>Status, shown while a new version of the client is being installed.</extracomment>
        <translation>Instalando la actualización...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <extracomment>Label above the list of excluded file extensions such as &quot;tmp&quot;.</extracomment>
        <translation>Extensiones de archivo</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <extracomment>Status, short: the shared folder can&apos;t be synced since a volume is mounted in it.</extracomment>
        <translation>Carpeta en un punto de montaje</translation>
    </message>
    <message>
        <source>Software update</source>
        <extracomment>Heading of the box about a new version of the client (noun).</extracomment>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <extracomment>Status: %1 is a percentage such as 42%.</extracomment>
        <translation>Progreso: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <extracomment>Message: question; %1 is the shared folder&apos;s name.</extracomment>
        <translation>¿Desea dejar de sincronizar “%1”? Los archivos de este equipo y del hub se conservarán.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>No se ha podido quitar la carpeta compartida de la lista.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Esta clave de configuración ya se ha usado. Solicite una nueva al administrador.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>El nuevo idioma se aplicará cuando reinicie la aplicación.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Choice/Tab: a type of item in a filter or list, and the page with the two folders of a task (noun, singular).</extracomment>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>El disco de este equipo está lleno. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <extracomment>Status, shown while the list of folders comes from the hub.</extracomment>
        <translation>Cargando la lista de carpetas...</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Button/Menu item/Label: takes an entry off a list, someone&apos;s right off a file, the program off the computer (verb).</extracomment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>¿Seguro que desea desvincular este equipo del hub?</translation>
    </message>
    <message>
        <source>Destination</source>
        <extracomment>Column head of the list of files: the folder that a file goes to.</extracomment>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <extracomment>Status: state of a task or a file before its transfer.</extracomment>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Subiendo...</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>Choice of the list of languages: the one of the system.</extracomment>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>Label beside the list of languages.</extracomment>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Folder name</source>
        <extracomment>Label beside a field, or a column&apos;s head: the name of a folder.</extracomment>
        <translation>Nombre de la carpeta</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <extracomment>Status: state of a file.</extracomment>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <extracomment>Heading of an installer window; [ProductName] becomes a product name; &quot;Setup&quot; is the installer.</extracomment>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <extracomment>Status in the tray; %1 is a number, mostly more than one.</extracomment>
        <translation>Sincronizando archivos (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <extracomment>Status: %1 is a file name.</extracomment>
        <translation>Descargando “%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <extracomment>Heading of a page: the folders that the user wants to sync.</extracomment>
        <translation>Carpetas que se sincronizan</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <extracomment>Button: opens further settings of a task.</extracomment>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <extracomment>Label beside a field: files above this size are not synced.</extracomment>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <extracomment>Label above the list of names of files that are not synced.</extracomment>
        <translation>Nombres de archivo excluidos</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <extracomment>Heading of the table of files that are not synced.</extracomment>
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>La base de datos local está dañada. Desvincule este equipo del hub y vuelva a vincularlo.</translation>
    </message>
    <message>
        <source>File filter</source>
        <extracomment>Heading of a page: which files are synced and which not (noun).</extracomment>
        <translation>Filtro de archivos</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <extracomment>Label above the list of names and extensions that are not synced (noun).</extracomment>
        <translation>Lista de exclusiones</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Las carpetas desmarcadas se quitarán de este equipo. Seguirán en el hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <extracomment>Label beside a list: what happens when a file was changed on both sides.</extracomment>
        <translation>Gestión de conflictos</translation>
    </message>
    <message>
        <source>Loading...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <extracomment>Label/Heading: two-way sync, upload only, download only (the way in which is synced).</extracomment>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Status in the tray and of a task (participle; the task or the client was paused).</extracomment>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>La carpeta es un punto de montaje y no se puede sincronizar. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Se ha cancelado la descarga de “%1”.</translation>
    </message>
    <message>
        <source>Start now</source>
        <extracomment>Button: begins at once what was offered.</extracomment>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>La sincronización se ha detenido porque el disco de este equipo está lleno.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>La sincronización se ha detenido porque ha agotado su cuota de almacenamiento en el hub.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <extracomment>Status in the tray: this computer is being linked to the hub.</extracomment>
        <translation>Vinculando...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>Status/Heading, short: the user may not do this, or not use the shared folder.</extracomment>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>No se ha podido obtener del hub la información de su cuenta.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <extracomment>Column head of a list, or a label beside a field: the name of this computer.</extracomment>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <extracomment>Status, short, in the tray: the connection comes and goes.</extracomment>
        <translation>La conexión es inestable</translation>
    </message>
    <message>
        <source>Get link</source>
        <extracomment>Menu item: makes a link (URL) to the file and copies it.</extracomment>
        <translation>Obtener enlace</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Vinculando este equipo al hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <extracomment>Status, shown while the client tries to sync again.</extracomment>
        <translation>Intentando sincronizar...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <extracomment>Choice: a role (noun, a person): may open and read; beside Previewer, Commenter, Editor, Manager.</extracomment>
        <translation>Lector</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <extracomment>Heading of a warning about the SSL certificate.</extracomment>
        <translation>Advertencia de certificado</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Button/Menu item: interrupts a task, or all, for a while (verb).</extracomment>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Button/Menu item: goes on with a task, or all, after a pause (verb).</extracomment>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <extracomment>Button: opens the rules by which files are not synced (noun).</extracomment>
        <translation>Reglas de exclusión</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>Column head: what was done with the file (noun).</extracomment>
        <translation>Acción</translation>
    </message>
    <message>
        <source>File name</source>
        <extracomment>Column head of a list of files.</extracomment>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column head/Label: the size of a file.</extracomment>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>ID</source>
        <extracomment>Column head of a list: an identifier.</extracomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>Status of a shared folder: its sync is turned off.</extracomment>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>Status of a shared folder: its sync is turned on.</extracomment>
        <translation>Activado</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <extracomment>Message of a question that offers to stop the sync.</extracomment>
        <translation>Si deja de sincronizar esta carpeta compartida, los cambios posteriores no se transferirán. Los archivos locales se conservarán.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <extracomment>Check box of the connection settings.</extracomment>
        <translation>Activar el cifrado SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Seleccione la carpeta de este equipo que desea sincronizar con el hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos has been shared with you.&quot;</extracomment>
        <translation>se ha compartido con usted.</translation>
    </message>
    <message>
        <source>New share</source>
        <extracomment>Heading of a notification: someone has shared something with the user (noun).</extracomment>
        <translation>Nuevo elemento compartido</translation>
    </message>
    <message>
        <source>Download completed</source>
        <extracomment>Heading of a notification.</extracomment>
        <translation>Descarga completada</translation>
    </message>
    <message>
        <source>Download failed</source>
        <extracomment>Heading of a notification, or the state of a file.</extracomment>
        <translation>Error en la descarga</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <extracomment>Heading of a page: the hub&apos;s name, version, space and so on.</extracomment>
        <translation>Vista general del hub</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>El hub de esta dirección ha cambiado. Vuelva a vincular este equipo.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>La sincronización está en pausa.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>El certificado SSL del hub no es de confianza.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>La sincronización está en curso.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>El cliente es demasiado antiguo para el hub. Actualice el cliente.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Esta carpeta ya forma parte de una tarea de copia de seguridad de Tessaly. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Esta tarea está inactiva porque no se puede acceder al hub.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Heading of the state of a task that can&apos;t reach the hub (adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>No se puede descargar el archivo. Compruebe la conexión y sus permisos.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>El historial de versiones de este archivo no está disponible.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>No se puede crear un enlace para este elemento.</translation>
    </message>
    <message>
        <source>Standby</source>
        <extracomment>Heading of the state of a task that waits for work (a state, noun or adjective; belongs to &quot;task&quot;).</extracomment>
        <translation>En espera</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <extracomment>Label beside a list of actions: what a double click on the tray icon does.</extracomment>
        <translation>Al hacer doble clic en el icono de la bandeja del sistema</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>El hub está indexando esta carpeta. Espere un momento.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Error de inicialización. Reinicie la aplicación.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>El programa de instalación no puede reemplazar archivos que otras aplicaciones tienen abiertos.</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Button of the installer: ends it.</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Print</source>
        <extracomment>Button of the installer: prints the license agreement (verb).</extracomment>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <extracomment>Message of the installer, second of two: what happens to programs that have files open.</extracomment>
        <translation>Dejar las aplicaciones abiertas. Después tendrá que reiniciar el equipo.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Restaura los archivos de programa, los accesos directos y las entradas del Registro que falten o estén dañados.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <extracomment>Check box on the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>Iniciar [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] mantendrá sus archivos seguros y sincronizados.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <extracomment>Message of the installer; Finish is its button.</extracomment>
        <translation>Haga clic en Finalizar para salir de la instalación.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <extracomment>Message of a task; a disk drive of this computer.</extracomment>
        <translation>La unidad que contiene la carpeta local no está conectada.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Reparar [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <extracomment>Menu item: opens the list of older versions of the file.</extracomment>
        <translation>Examinar las versiones anteriores</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>¿Qué desea hacer?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>[ProductName] se está instalando en el equipo.</translation>
    </message>
    <message>
        <source>Download only</source>
        <extracomment>Choice of the sync direction: from the hub to this computer alone, nothing is uploaded.</extracomment>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Se ha producido un error y [ProductName] no se ha instalado. Se han deshecho todos los cambios del programa de instalación. Puede volver a iniciar la instalación en cualquier momento.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <extracomment>Button of the installer, beside Retry: goes on although files are in use (verb).</extracomment>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Button: answers a question of the installer.</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <extracomment>Message: an entry of a list: what the exported file holds about this computer and about the hub.</extracomment>
        <translation>Información sobre este equipo y el hub al que está vinculado.</translation>
    </message>
    <message>
        <source>Status:</source>
        <extracomment>Label of the installer, before the step that is being done; a colon ends it.</extracomment>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Install</source>
        <extracomment>Button of the installer (verb).</extracomment>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Use este asistente para cambiar, reparar o quitar [ProductName]. Haga clic en Siguiente para continuar o en Cancelar para salir del programa de instalación.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Quitar [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <extracomment>Status of a shared folder: the user may not change it (adjective; belongs to &quot;folder&quot;).</extracomment>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>License agreement</source>
        <extracomment>Heading of an installer page (noun).</extracomment>
        <translation>Contrato de licencia</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <extracomment>Message of the installer, above a list of programs; [ProductName] becomes a product name.</extracomment>
        <translation>Estas aplicaciones tienen abiertos archivos que el programa de instalación de [ProductName] debe reemplazar:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <extracomment>Heading of a chart of what was transferred lately (noun).</extracomment>
        <translation>Actividad de sincronización</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Label/Button of the installer: puts damaged files right (verb).</extracomment>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <extracomment>Heading of an installer page while it works; [ProductName] becomes a product name.</extracomment>
        <translation>Instalando [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Falta la carpeta local. Es posible que se haya movido, renombrado o eliminado.</translation>
    </message>
    <message>
        <source>Retry</source>
        <extracomment>Button of the installer: tries once more (verb).</extracomment>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>Button: answers a question, in the installer too.</extracomment>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>¿Seguro que desea cancelar la instalación de [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Lea el contrato antes de continuar.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <extracomment>Message of the installer, first of two: what happens to programs that have files open.</extracomment>
        <translation>Cerrar las aplicaciones ahora y volver a abrirlas al terminar la instalación.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <extracomment>Heading of an installer page: files that other programs have open.</extracomment>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Cierre las aplicaciones y haga clic en Reintentar. Si hace clic en Omitir, la instalación de [ProductName] no se completará hasta que reinicie el equipo.</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>Label/Button: takes another value, in the installer other features (verb).</extracomment>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Permite elegir qué características se instalan y dónde.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>[ProductName] siempre se instala con todas sus características.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <extracomment>Tooltip of the installer&apos;s button; [ProductName] becomes a product name.</extracomment>
        <translation>Cambiar [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Puede cambiar, reparar o quitar el programa instalado.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Quita el programa y su configuración del equipo.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Esta operación puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Todo listo para instalar [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ya se puede instalar Tessaly. Haga clic en Instalar para comenzar o en Atrás para revisar la configuración.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>El programa de instalación está a punto de quitar el programa.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Todo listo para quitar [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Haga clic en Quitar para quitar [ProductName] de este equipo. Los archivos sincronizados se conservarán.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>El programa de instalación está a punto de reparar el programa.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Todo listo para reparar [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Repair, Back, Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Haga clic en Reparar para comenzar, en Atrás para elegir otra acción o en Cancelar para salir del programa de instalación.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <extracomment>Message of the installer: the user ended it before it had installed anything (canceled, not completed).</extracomment>
        <translation>Ha salido del programa de instalación antes de instalar [ProductName]. No se ha modificado nada en el equipo. Puede volver a iniciar la instalación en cualquier momento.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <extracomment>Message of the installer: Next and Cancel are buttons; to leave is to cancel, not to complete.</extracomment>
        <translation>Este asistente instalará [ProductName] en el equipo. Haga clic en Siguiente para continuar o en Cancelar para salir del programa de instalación.</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Label of a range of dates, before the first field; &quot;To&quot; stands before the second.</extracomment>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>Le damos la bienvenida a la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name.</extracomment>
        <translation>[ProductName] se ha instalado</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <extracomment>Heading of the installer&apos;s last page; [ProductName] becomes a product name; the user canceled.</extracomment>
        <translation>Se ha cancelado la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Download history</source>
        <extracomment>Heading of the list of what was downloaded (noun).</extracomment>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <extracomment>Button: links this computer to a hub that it does not know yet (verb).</extracomment>
        <translation>Vincular a un hub nuevo</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <extracomment>Heading of an installer page; [ProductName] becomes a product name.</extracomment>
        <translation>No se ha podido instalar [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <extracomment>Status of a shared folder.</extracomment>
        <translation>Sincronización activada</translation>
    </message>
    <message>
        <source>Add task</source>
        <extracomment>Button: adds a sync task.</extracomment>
        <translation>Añadir tarea</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <extracomment>Choice of the installer, first of two; the user speaks.</extracomment>
        <translation>Acepto el contrato de licencia</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Button: empties the fields of a filter (verb).</extracomment>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Heading of the part of a page with the folders to sync (noun, plural).</extracomment>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <extracomment>Label below the product&apos;s name: a slogan.</extracomment>
        <translation>Sus archivos, al día en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Este no es el hub al que estaba vinculada %1. Vuelva a vincular este equipo.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>El uso compartido está desactivado para su cuenta.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <extracomment>Message: %1 is the task&apos;s name.</extracomment>
        <translation>La tarea “%1” se detendrá y se quitará su conexión con el hub. Los archivos de ambos lados se conservarán.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <extracomment>Menu item: opens the folder that a file lies in.</extracomment>
        <translation>Abrir la carpeta contenedora</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>No se ha podido obtener del hub la dirección del archivo.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Elija la carpeta de este equipo en la que se guardan sus archivos.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <extracomment>Status, short, in the tray: another hub answers at this address.</extracomment>
        <translation>El hub ha cambiado</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>La carpeta compartida “%1” no está montada en el hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Choice of a list of periods, or the head of a group of events.</extracomment>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>El volumen de la carpeta remota no está montado en el hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <extracomment>Label beside the path of a folder.</extracomment>
        <translation>Ubicación de la carpeta</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <extracomment>Label beside a check box: the folder is synced to this computer (verb).</extracomment>
        <translation>Sincronizar con este equipo</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>No ha iniciado sesión como administrador, por lo que es posible que algunas características no se instalen. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <extracomment>Label below the product&apos;s name: a slogan, three verbs.</extracomment>
        <translation>Sincronice, comparta y proteja sus archivos</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>El uso compartido de archivos mediante Ferrylink está desactivado en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Choice/Heading: an entry of a list of periods, and the head of a group of events.</extracomment>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Elija cómo desea configurar Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <extracomment>Choice of the wizard, first of two ways to set up the client (not the installer; noun).</extracomment>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <extracomment>Label below a list; %1 and %2 are the numbers of the first and the last item shown, %3 is how many there are.</extracomment>
        <translation>Elementos del %1 al %2 de %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <extracomment>Button: closes a hint: the user has understood it.</extracomment>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>El elemento se ha eliminado o usted ya no tiene permiso para acceder a él.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Haga clic con el botón derecho en un archivo o carpeta para compartirlo, obtener un enlace o examinar sus versiones anteriores.</translation>
    </message>
    <message>
        <source>Date range</source>
        <extracomment>Label of a filter, beside two dates.</extracomment>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <extracomment>Menu item of the file manager, one folder: it is no longer synced.</extracomment>
        <translation>Dejar de sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Hace %1&#xa0;h</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Elija una carpeta del hub y otra de este equipo. Su contenido se mantendrá idéntico.</translation>
    </message>
    <message>
        <source>May</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Mayo</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <extracomment>Heading of a warning of the wizard.</extracomment>
        <translation>Este equipo ya está vinculado</translation>
    </message>
    <message>
        <source>Renamed</source>
        <extracomment>Event: what happened to the file named beside it, in the history too (participle; the file was renamed).</extracomment>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Hace %1&#xa0;d</translation>
    </message>
    <message>
        <source>Just now</source>
        <extracomment>Status: how long ago a file changed: less than a minute.</extracomment>
        <translation>Ahora mismo</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <extracomment>Status: how long ago a file changed; %1 is a number from 1; one text for every number, days, hours and minutes in one style.</extracomment>
        <translation>Hace %1&#xa0;min</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Choice: a type of item in a filter or list (noun, singular).</extracomment>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Last month</source>
        <extracomment>Choice of a list of periods: the calendar month before this one.</extracomment>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>Label beside the field for a word to search for.</extracomment>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Label of a range of dates, before the second field; &quot;From&quot; stands before the first.</extracomment>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>Label/Column head: the type of an item or a file.</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Last week</source>
        <extracomment>Choice of a list of periods: the calendar week before this one.</extracomment>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>April</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Abril</translation>
    </message>
    <message>
        <source>February</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Febrero</translation>
    </message>
    <message>
        <source>August</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Button: begins a search (verb).</extracomment>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>October</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <extracomment>Menu item of the file manager, one folder: it is synced once more.</extracomment>
        <translation>Volver a sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <extracomment>Menu item of the file manager, several folders: they are no longer synced.</extracomment>
        <translation>Dejar de sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>No history to show</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>No hay historial que mostrar</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <extracomment>Menu item of the file manager, several folders: they are synced once more.</extracomment>
        <translation>Volver a sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>Send to</source>
        <extracomment>Fragment, first part of a menu item; the name of a hub or folder follows: &quot;Send to Office&quot;.</extracomment>
        <translation>Enviar a</translation>
    </message>
    <message>
        <source>January</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Enero</translation>
    </message>
    <message>
        <source>November</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <extracomment>Heading of the list of files that are being synced at present.</extracomment>
        <translation>Sincronizando ahora</translation>
    </message>
    <message>
        <source>September</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>All events</source>
        <extracomment>Choice of a filter of the history: no type of event is left out.</extracomment>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>July</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Julio</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>Column head of the history: the day.</extracomment>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>June</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Junio</translation>
    </message>
    <message>
        <source>March</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>December</source>
        <extracomment>Label: a month&apos;s name, in the head of a calendar.</extracomment>
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>File type</source>
        <extracomment>Column head of the history: the kind of file.</extracomment>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <extracomment>Menu item/Choice: opens the wizard that sets up the client step by step (noun); not the installer, and not &quot;Advanced settings&quot;.</extracomment>
        <translation>Asistente de configuración avanzada</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <extracomment>Check box below a message.</extracomment>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Empiece a sincronizar en un solo paso con la configuración recomendada.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Su carpeta personal del hub y la nueva carpeta de este equipo se mantienen ahora idénticas.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <extracomment>Heading of the wizard&apos;s last page: the client is set up (not the installer).</extracomment>
        <translation>Configuración completada</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Guarde archivos en la carpeta sincronizada y aparecerán en el hub y en todos sus demás equipos.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Haga clic en el icono de la bandeja del sistema para ver el estado de sincronización y los últimos archivos modificados.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <extracomment>Heading of a wizard page: quick or advanced set-up of the client (not the installer).</extracomment>
        <translation>Modo de configuración</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <extracomment>Button: turns an offer down.</extracomment>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Sincronice sus archivos</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Esté al tanto de los cambios</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <extracomment>Button of the wizard.</extracomment>
        <translation>Encontrar hubs en la red local</translation>
    </message>
    <message>
        <source>Status information</source>
        <extracomment>Heading of a box with the state of a task.</extracomment>
        <translation>Información de estado</translation>
    </message>
    <message>
        <source>Username</source>
        <extracomment>Label beside a field.</extracomment>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Menu item in the tray menu: there is a newer version of the client (noun and adjective).</extracomment>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>User: %1</source>
        <extracomment>Screen reader: %1 is a user&apos;s name; &quot;User&quot; is the kind of entry.</extracomment>
        <translation>Usuario: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Este archivo no pertenece a ninguna tarea de sincronización.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Abrir la ventana principal</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Vincular este equipo a otro hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <extracomment>Choice of the wizard: what to set up next.</extracomment>
        <translation>Sincronizar otra carpeta con este hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Nueva tarea de sincronización</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Elija por su cuenta las carpetas, el sentido de la sincronización y los filtros.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button: closes the wizard&apos;s last page.</extracomment>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Los archivos de más de %1&#xa0;MB no se sincronizarán.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <extracomment>Button: opens the folder.</extracomment>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Esta carpeta no se puede sincronizar. Elija otra.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <extracomment>Tooltip of the button that searches.</extracomment>
        <translation>Buscar hubs en la red local</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta compartida. Los archivos se descargarán, pero no se subirán.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <extracomment>Message: %1 is a link; keep it as it is.</extracomment>
        <translation>Encontrará más guías en los &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutoriales&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Esta carpeta contiene una carpeta que ya se sincroniza o está dentro de ella. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Open file</source>
        <extracomment>Menu item: opens the file.</extracomment>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the hub&apos;s name.</extracomment>
        <translation>Este equipo ya está vinculado al hub “%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <extracomment>Message of the wizard.</extracomment>
        <translation>Se creará una carpeta llamada “Tessaly” en esta ubicación.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <extracomment>Message of the wizard; &quot;link&quot; is that of this computer to the hub, not a URL.</extracomment>
        <translation>Si continúa, se reemplazará la vinculación actual.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>El hub está sin conexión.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <extracomment>Label: the folder of the user on the hub.</extracomment>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>No se puede crear un enlace porque Norvik no está disponible en el hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <extracomment>Message of a task; a button beside it confirms.</extracomment>
        <translation>El certificado SSL del hub ha cambiado. Confirme el nuevo certificado.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Definir las carpetas que se sincronizan</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <extracomment>Message of a task; the direction is upload only, download only or two-way.</extracomment>
        <translation>El sentido de la sincronización no se corresponde con sus permisos en la carpeta remota.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>El hub ha bloqueado la dirección IP de este equipo. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <extracomment>Label above three choices, ends in a colon.</extracomment>
        <translation>Cuando un archivo se ha modificado en ambos lados:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <extracomment>Heading of the wizard&apos;s first page.</extracomment>
        <translation>Le damos la bienvenida al asistente de configuración</translation>
    </message>
    <message>
        <source>Last page</source>
        <extracomment>Tooltip of the button that turns to the last page of a list (&quot;last&quot; as the opposite of first).</extracomment>
        <translation>Última página</translation>
    </message>
    <message>
        <source>First page</source>
        <extracomment>Tooltip of the button that turns to the first page of a list.</extracomment>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <extracomment>Tooltip of the button that turns back several pages; %1 is a number, more than one.</extracomment>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <extracomment>Tooltip of the button that turns on several pages; %1 is a number, more than one.</extracomment>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <extracomment>Status, shown while this computer&apos;s link to the hub is being ended.</extracomment>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Demasiados intentos fallidos. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>No se puede comprobar la carpeta porque ha fallado la conexión con el hub.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>La carpeta compartida ya no existe en el hub.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <extracomment>Heading of a wizard page: the folders that are synced (noun).</extracomment>
        <translation>Carpetas sincronizadas</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <extracomment>Choice, first of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Conservar la última versión modificada</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <extracomment>Choice of the sync direction: changes are both uploaded and downloaded.</extracomment>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Elija qué carpeta del hub se sincroniza con qué carpeta de este equipo.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <extracomment>Choice: a type of folder on the hub (noun).</extracomment>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a template&apos;s: &quot;Ann requested access to the Bureau template Memo&quot;.</extracomment>
        <translation>ha solicitado acceso a la plantilla de Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Otra tarea de sincronización de este equipo ya usa esta carpeta.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the template&apos;s.</extracomment>
        <translation>%1 ha solicitado acceso a la plantilla de Bureau “%2”.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>No se puede comprobar la carpeta porque el certificado SSL del hub ha cambiado.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Introduzca el código de verificación.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>El código de verificación no es correcto. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <extracomment>Hint in the empty field for the code.</extracomment>
        <translation>Introduzca el código de verificación de 6 dígitos</translation>
    </message>
    <message>
        <source>Hours</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Ha agotado su cuota de almacenamiento en el volumen de esta carpeta.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>No se puede comprobar la carpeta porque el certificado SSL del hub no es de confianza.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>No se puede comprobar la carpeta por un error del sistema en el hub.</translation>
    </message>
    <message>
        <source>Sync</source>
        <extracomment>Tab/Choice: the page of what is synced, and a filter of notifications (noun).</extracomment>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <extracomment>Choice, second of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Conservar siempre la versión del hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <extracomment>Choice, third of three: what happens when a file was changed on both sides.</extracomment>
        <translation>Renombrar los archivos en conflicto y conservar ambas versiones</translation>
    </message>
    <message>
        <source>Summary</source>
        <extracomment>Heading of the wizard&apos;s last page: what was set up.</extracomment>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the template&apos;s name.</extracomment>
        <translation>%1 (%2) solicita acceso (%3) a la plantilla de Bureau “%4”.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Se combinará el contenido de ambas carpetas. No se eliminará ningún archivo.</translation>
    </message>
    <message>
        <source>Account</source>
        <extracomment>Label in the wizard&apos;s summary: the user&apos;s account on the hub.</extracomment>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>List of connections</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Lista de conexiones</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <extracomment>Screen reader: names the hub that this computer has a connection to now; not the same as &quot;Linked hub&quot;.</extracomment>
        <translation>Hub conectado</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <extracomment>Screen reader: names a button; the link is a URL.</extracomment>
        <translation>Copiar el enlace para compartir</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Quitar el permiso de este usuario</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <extracomment>Screen reader: %1 is a group&apos;s name; &quot;Group&quot; is the kind of entry.</extracomment>
        <translation>Grupo: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Abrir el portal web de Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <extracomment>Screen reader: names one of the two sides of a task.</extracomment>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <extracomment>Screen reader: names the other of the two sides of a task: the hub that this computer is linked to; not the same as &quot;Connected hub&quot;.</extracomment>
        <translation>Hub vinculado</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <extracomment>Screen reader: describes a task.</extracomment>
        <translation>Tarea de sincronización de los archivos que otros comparten con usted</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <extracomment>Screen reader: names a tab: the tab with the files that were changed lately.</extracomment>
        <translation>Pestaña de archivos modificados recientemente</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Página 2 del tutorial: sincronice sus archivos</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Página 3 del tutorial: esté al tanto de los cambios</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Página 4 del tutorial: comparta con otras personas</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <extracomment>Screen reader: names a list of permissions.</extracomment>
        <translation>Elija un permiso de uso compartido</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly mantiene idénticos los archivos de sus equipos y del hub.</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Fragment, unit after a number field: &quot;Every [4] hours&quot;; the number is mostly more than one.</extracomment>
        <translation>horas</translation>
    </message>
    <message>
        <source>Hub</source>
        <extracomment>Label beside the hub&apos;s name or the field for its address.</extracomment>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <extracomment>Button on the wizard&apos;s last page: opens the user&apos;s synced folder.</extracomment>
        <translation>Abrir mi carpeta</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <extracomment>Status, short, of a task.</extracomment>
        <translation>No se encuentra la carpeta compartida</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Label in the about box; %1 is a version number.</extracomment>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>El hub requiere la autenticación de dos factores. Configúrela en el portal web e inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>La cuota de la carpeta compartida se ha agotado.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <extracomment>Message above a form.</extracomment>
        <translation>Algunos campos contienen valores no válidos. Compruebe los campos resaltados.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <extracomment>Label beside a list: two-way sync, upload only, download only.</extracomment>
        <translation>Sentido de la sincronización</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <extracomment>Message of a notification.</extracomment>
        <translation>Se ha producido un problema en una de sus tareas. Abra la ventana principal para ver los detalles.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Aquí solo se muestran las carpetas compartidas que se han activado en Tessaly Server.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>No tiene permiso para acceder a esta carpeta.</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>Label beside the field for the proxy server&apos;s address in the network.</extracomment>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Expires after</source>
        <extracomment>Label of a sharing link, before a number of days or a date: &quot;Expires after [30] days&quot;.</extracomment>
        <translation>Caduca tras</translation>
    </message>
    <message>
        <source>No actions available</source>
        <extracomment>Menu item: can&apos;t be chosen; stands in place of the client&apos;s menu items.</extracomment>
        <translation>No hay acciones disponibles</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <extracomment>Tooltip of a field; &quot;desktop.ini&quot; is an example and stays; Enter is the key.</extracomment>
        <translation>Escriba un nombre de archivo completo, como “desktop.ini”, y pulse Intro.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Ya existe una carpeta con este nombre. Elija otro nombre.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Comparar todos los atributos de los archivos al buscar cambios</translation>
    </message>
    <message>
        <source>Valid until</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Válido hasta</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Este campo no puede quedar en blanco.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <extracomment>Heading of a part of the page for a sharing link (verb: who may open the link).</extracomment>
        <translation>Restringir el acceso</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostrar acciones de sincronización en el menú contextual de archivos y carpetas</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <extracomment>Message of a task; the service gives each user a home folder.</extracomment>
        <translation>El servicio de carpetas personales está desactivado en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>Error en la actualización. &lt;a href=&quot;%1&quot;&gt;Descargue la última versión&lt;/a&gt; e instálela manualmente.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <extracomment>Button of the page for a sharing link (URL).</extracomment>
        <translation>Aplicar y copiar el enlace</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <extracomment>Check box of a sharing link: how often it may be opened.</extracomment>
        <translation>Limitar el número de visitas</translation>
    </message>
    <message>
        <source>Valid from</source>
        <extracomment>Label of a sharing link, before a date.</extracomment>
        <translation>Válido desde</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>El hub requiere una versión más reciente del cliente. ¿Desea actualizarlo ahora?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>La carpeta remota está en un volumen que no está montado.</translation>
    </message>
    <message>
        <source>Show information</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Mostrar información</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Añadir un nombre de archivo</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <extracomment>Screen reader: names the side of a task on this computer.</extracomment>
        <translation>Carpeta de este equipo</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Elija un idioma</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Lista de las versiones de archivo que se están descargando</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <extracomment>Button of a sharing link: sets from when until when it may be opened (verb).</extracomment>
        <translation>Personalizar el periodo de validez</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <extracomment>Button: opens the tutorial; %1 is a product name.</extracomment>
        <translation>Mostrar el tutorial de %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Cambiar la carpeta sincronizada</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <extracomment>Screen reader: names the folder on this computer that belongs to a folder on the hub.</extracomment>
        <translation>Carpeta sincronizada vinculada</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <extracomment>Screen reader: names a button; the history is the list of transfers.</extracomment>
        <translation>Actualizar el historial</translation>
    </message>
    <message>
        <source>Previous month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <extracomment>Hint in the empty field for a search of the history.</extracomment>
        <translation>Escriba una palabra clave para buscar en el historial</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Añadir una carpeta</translation>
    </message>
    <message>
        <source>Calendar</source>
        <extracomment>Screen reader: names a calendar.</extracomment>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Screen reader: names a button of a calendar.</extracomment>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <extracomment>Screen reader: names a list.</extracomment>
        <translation>Elija un tipo de evento</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <extracomment>Screen reader: %1 is the task&apos;s name.</extracomment>
        <translation>Tarea de sincronización “%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <extracomment>Screen reader/Label: the side of a task on the hub.</extracomment>
        <translation>Carpeta del hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Ventana de configuración</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Cerrar el tutorial</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <extracomment>Screen reader: names a button.</extracomment>
        <translation>Cancelar esta descarga</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <extracomment>Screen reader: names a button: the download&apos;s line leaves the list, the file stays.</extracomment>
        <translation>Quitar esta descarga de la lista</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Su contraseña ha caducado. Cámbiela en el portal web e inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>Choice: a role (noun, a person): may open and change; beside Viewer, Previewer, Commenter, Manager.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Renombrado en este equipo</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <extracomment>Event in the history: what happened to the file (participle; the file was renamed).</extracomment>
        <translation>Renombrado en el hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>Introduzca %1 caracteres como máximo.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the name of an account.</extracomment>
        <translation>Esta no es la cuenta con la que se creó la tarea. Inicie sesión como “%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <extracomment>Heading of a page about the hub.</extracomment>
        <translation>Información del hub</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>El servicio de retransmisión de Ferrylink está desactivado en el hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>No se ha podido descargar “%1”. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Error al iniciar sesión en el hub. Compruebe el nombre de usuario y la contraseña.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <extracomment>Heading/Tab: a page, and the tray&apos;s list of notifications.</extracomment>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>commented on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann commented on Plan.txt&quot;.</extracomment>
        <translation>ha comentado en</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <extracomment>Menu item of a notification: opens what it is about.</extracomment>
        <translation>Abrir en el portal web</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Button: begins to set up what is named beside it (verb).</extracomment>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <extracomment>Menu item in the tray menu: opens the folder that is synced.</extracomment>
        <translation>Abrir la carpeta sincronizada</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <extracomment>Tooltip of a folder; %1 is a product name.</extracomment>
        <translation>Solo tiene acceso de lectura a esta carpeta. %1 no subirá sus cambios.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>%1 ya está vinculada al hub y mantendrá sus archivos sincronizados.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>El programa de instalación ha reunido toda la información que necesita.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 está lista.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>%1 ya se está ejecutando.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>%1 mantiene idénticos los archivos de sus equipos y del hub.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <extracomment>Choice: a right on a shared file: look at it without downloading it, and comment on it (verbs).</extracomment>
        <translation>Ver vista previa y comentar</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <extracomment>Message in a box; %1 is a product name.</extracomment>
        <translation>No se ha podido actualizar %1. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>Ya está instalada una versión más reciente de Kelvane Quay Client. El programa de instalación se cerrará.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>El certificado SSL del hub ha cambiado. Si no esperaba este cambio, póngase en contacto con el administrador antes de continuar.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <extracomment>Screen reader: describes a page of the wizard.</extracomment>
        <translation>Elija qué desea sincronizar con la nueva tarea</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La carpeta pertenece a Dropbox. Si también se sincroniza con %1, pueden producirse conflictos de archivos.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Sus cambios se perderán. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <extracomment>Screen reader: names the tutorial; %1 is a product name.</extracomment>
        <translation>Tutorial de %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>El ID de Ferrylink no existe o %1 no se está ejecutando en el hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Aquí solo se muestran las carpetas compartidas que se han activado en %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <extracomment>Check box of the general options; %1 is a product name.</extracomment>
        <translation>Abrir %1 al iniciar sesión en este equipo</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <extracomment>Status, label of the start-up dialog; %1 is the product name; fixed.</extracomment>
        <translation>%1 se está inicializando...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>El hub y %1 no pueden comunicarse. Actualice ambos a la última versión.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Esta versión de %1 es demasiado antigua para el hub. Actualícela.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <extracomment>Status, short, of a task too: the versions of client and hub don&apos;t fit together.</extracomment>
        <translation>Versiones no compatibles</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>El disco está lleno. Libere espacio en este equipo para que %1 pueda continuar.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Se ha producido un problema en %1. Reinicie la aplicación.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <extracomment>Screen reader: names a tab: the tab with the notifications.</extracomment>
        <translation>Pestaña de notificaciones</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La carpeta no está vacía. %1 combinará sus archivos con los del hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;); %1 is a product name.</extracomment>
        <translation>Solo descargar los cambios de %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <extracomment>Message of the wizard&apos;s last page; %1 is a product name.</extracomment>
        <translation>%1 está configurada. Abra su carpeta para empezar a trabajar.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <extracomment>Screen reader: names a page of the tutorial.</extracomment>
        <translation>Página 1 del tutorial: le damos la bienvenida a Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Esta versión de Kelvane Quay Client ya está instalada. ¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <extracomment>Message of the wizard; %1 is a product name.</extracomment>
        <translation>Configure %1 para sincronizar los archivos de este equipo y hacer copias de seguridad.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>¡Casi listo! Sus archivos estarán disponibles en breve en Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>¡Casi listo! Sus archivos estarán disponibles en breve en este equipo.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>Error en la operación. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>Se creará una carpeta llamada “Kelvane Quay” en esta ubicación.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Esta versión de Tessaly ya está instalada. ¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>Ya está instalada una versión más reciente de Tessaly. El programa de instalación se cerrará.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <extracomment>Screen reader: names the tutorial.</extracomment>
        <translation>Tutorial de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Semanas</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with Tessaly as well may cause file conflicts.</source>
        <translation>La carpeta pertenece a Dropbox. Si también se sincroniza con Tessaly, pueden producirse conflictos de archivos.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>Tessaly está lista.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <extracomment>Status, label of the start-up dialog.</extracomment>
        <translation>Tessaly se está inicializando...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>El ID de Ferrylink no existe o Tessaly Server no se está ejecutando en el hub.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Esta versión de Tessaly es demasiado antigua para el hub. Actualícela.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <extracomment>Label beside a list of rights on a shared file.</extracomment>
        <translation>Permiso de uso compartido</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>La versión de Tessaly Server del hub es demasiado antigua para este cliente. Pida al administrador que realice la actualización.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <extracomment>Button: opens the tutorial.</extracomment>
        <translation>Mostrar el tutorial de Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Abrir Tessaly al iniciar sesión en este equipo</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>Se ha producido un problema en Tessaly. Reinicie la aplicación.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>Configuración completada. Sus archivos se están sincronizando.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <extracomment>Message of the wizard&apos;s last page.</extracomment>
        <translation>Haga clic en el icono de la bandeja del sistema en cualquier momento para ver el estado y cambiar la configuración.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>La carpeta no está vacía. Tessaly combinará sus archivos con los del hub.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>Tessaly ya se está ejecutando.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>Tessaly está configurada. Abra su carpeta para empezar a trabajar.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta. Tessaly no subirá sus cambios.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Abrir Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <extracomment>Message in the tray menu; %1 is a version number.</extracomment>
        <translation>La versión %1 está disponible. Haga clic aquí para actualizar.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Para usar la sincronización selectiva, pida al administrador que actualice Tessaly Server en el hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: empties a list or a field (verb).</extracomment>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Date and time</source>
        <extracomment>Column head of a list.</extracomment>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <extracomment>Message: %1 is a number.</extracomment>
        <translation>No hay suficiente espacio en este disco. Tessaly necesita al menos %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>Tessaly ya está vinculada al hub y mantendrá sus archivos sincronizados.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>Tessaly solo se puede vincular una vez al mismo hub con la misma cuenta.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Configure Tessaly para sincronizar los archivos de este equipo.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>¿Es la primera vez que usa Tessaly? Lea antes la &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;guía de inicio rápido&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Puede comentar</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Los usuarios del hub que tengan el enlace pueden ver</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Los usuarios del hub que tengan el enlace pueden editar</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Solo las personas invitadas pueden abrir el enlace</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Cualquier persona con el enlace puede comentar</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Cualquier persona con el enlace puede ver</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Los usuarios del hub que tengan el enlace pueden comentar</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <extracomment>Choice: who may open a sharing link, and what they may do (a sentence without a full stop).</extracomment>
        <translation>Cualquier persona con el enlace puede editar</translation>
    </message>
    <message>
        <source>Can view</source>
        <extracomment>Choice: a right on a shared file: open it, change nothing.</extracomment>
        <translation>Puede ver</translation>
    </message>
    <message>
        <source>Can manage</source>
        <extracomment>Choice: a right on a shared folder: change it and give rights to others.</extracomment>
        <translation>Puede administrar</translation>
    </message>
    <message>
        <source>Can edit</source>
        <extracomment>Choice: a right on a shared file.</extracomment>
        <translation>Puede editar</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>No se puede abrir el portal web. Compruebe la conexión con el hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <extracomment>Button: opens a field for the names of people to share with.</extracomment>
        <translation>Invitar a personas</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>Choice: a right on a shared file: none.</extracomment>
        <translation>Sin acceso</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>No hay carpetas compartidas.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Menu item/Button: fetches the file (verb).</extracomment>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>El uso compartido público está desactivado en el hub.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>El uso compartido está desactivado. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Menu item: makes an older version of a file the current one (verb).</extracomment>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) solicita acceso (%3) a la hoja de cálculo de Grida “%4”.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <extracomment>Message below the question whether to remove the link (URL).</extracomment>
        <translation>Las personas que tienen el enlace ya no podrán abrir el archivo.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s; a Grida spreadsheet is a whole file, not one sheet.</extracomment>
        <translation>%1 ha compartido con usted la hoja de cálculo de Grida “%2”.</translation>
    </message>
    <message>
        <source>No data</source>
        <extracomment>Status: stands in place of an empty list.</extracomment>
        <translation>No hay datos</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>Button/Menu item: opens the page on which an item is shared (verb).</extracomment>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>El archivo o la carpeta no existe.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>No tiene permiso para realizar esta acción.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <extracomment>Choice of a list of days on which a backup runs: Saturday and Sunday.</extracomment>
        <translation>Fines de semana</translation>
    </message>
    <message>
        <source>Hub users</source>
        <extracomment>Choice: who may open a sharing link: everyone who has an account on the hub.</extracomment>
        <translation>Usuarios del hub</translation>
    </message>
    <message>
        <source>My Quay</source>
        <extracomment>Name of the user&apos;s folder; stays as it is.</extracomment>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Solo personas invitadas</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Tab of the settings: how things look.</extracomment>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <extracomment>Choice: who may open a sharing link.</extracomment>
        <translation>Cualquier persona con el enlace</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Definir una fecha de caducidad</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <extracomment>Heading of a list: those that an item is shared with.</extracomment>
        <translation>Usuarios y grupos</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <extracomment>Check box of the display settings.</extracomment>
        <translation>Mostrar las carpetas sincronizadas en la barra lateral del gestor de archivos</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Trabaje en la carpeta sincronizada como en cualquier otra carpeta. Sus cambios se transfieren al hub de inmediato.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <extracomment>Label below a picture of a tutorial page.</extracomment>
        <translation>Su equipo</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <extracomment>Heading of a tutorial page, alone (no verb).</extracomment>
        <translation>Todos sus archivos, en todas partes</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Ahorre espacio con la sincronización bajo demanda</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Todos los archivos se muestran en el equipo, pero solo ocupan espacio cuando los abre.</translation>
    </message>
    <message>
        <source>Online only</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file lies on the hub alone.</extracomment>
        <translation>Solo en línea</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <extracomment>Label below a picture of a tutorial page: an icon that says that the file was downloaded.</extracomment>
        <translation>Disponible en este equipo</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann mentioned you in Plan.txt&quot;.</extracomment>
        <translation>le ha mencionado en</translation>
    </message>
    <message>
        <source>requested access to</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann requested access to Plan.txt&quot;.</extracomment>
        <translation>ha solicitado acceso a</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 ha compartido con usted el archivo “%2”.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <extracomment>Fragment in a list of notifications, after a person&apos;s name and before a file&apos;s: &quot;Ann shared with you Plan.txt&quot;.</extracomment>
        <translation>ha compartido con usted</translation>
    </message>
    <message>
        <source>Shared</source>
        <extracomment>Choice of a filter of notifications: those about files that were shared with the user.</extracomment>
        <translation>Compartido</translation>
    </message>
    <message>
        <source>Access request</source>
        <extracomment>Choice of a filter of notifications: someone asks for access (noun).</extracomment>
        <translation>Solicitud de acceso</translation>
    </message>
    <message>
        <source>Comments</source>
        <extracomment>Choice of a filter of notifications (noun, plural).</extracomment>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <extracomment>Heading of a page: files that others share with the user.</extracomment>
        <translation>Compartido conmigo</translation>
    </message>
    <message>
        <source>Mentions</source>
        <extracomment>Choice of a filter of notifications: someone wrote the user&apos;s name in a comment (noun, plural).</extracomment>
        <translation>Menciones</translation>
    </message>
    <message>
        <source>Upload only</source>
        <extracomment>Choice of the sync direction: from this computer to the hub alone, nothing is downloaded.</extracomment>
        <translation>Solo subida</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <extracomment>Check box of a task&apos;s settings and filters.</extracomment>
        <translation>Conservar los archivos en el hub cuando se eliminen de este equipo</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <extracomment>Message: %1 is a file name.</extracomment>
        <translation>Se ha descargado “%1”.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Sus archivos están al día en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <extracomment>Message: %1 is the address in the link; keep the tag as it is.</extracomment>
        <translation>Sus archivos también están disponibles en el &lt;a href=&quot;%1&quot;&gt;portal web&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>¡Enhorabuena!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Ya puede empezar a trabajar con Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <extracomment>Choice of the wizard, second of two: files that others share with the user.</extracomment>
        <translation>Activar más tarde</translation>
    </message>
    <message>
        <source>Enable now</source>
        <extracomment>Choice of the wizard, first of two: files that others share with the user.</extracomment>
        <translation>Activar ahora</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <extracomment>Heading of a wizard page.</extracomment>
        <translation>Archivos compartidos con usted</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Crear una tarea de sincronización</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <extracomment>Choice of the wizard: which files a new task syncs (team: a group of people).</extracomment>
        <translation>Mis archivos y carpetas de grupo</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <extracomment>Choice of the wizard: which files a new task syncs.</extracomment>
        <translation>Archivos compartidos conmigo</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Este no es el hub al que estaba vinculada Tessaly. Vuelva a vincular este equipo.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>El hub y Tessaly no pueden comunicarse. Actualice ambos a la última versión.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>No se pierda ningún cambio</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>El disco está lleno. Libere espacio en este equipo para que Tessaly pueda continuar.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <extracomment>Choice: a type of folder on the hub (team: a group of people).</extracomment>
        <translation>Carpeta de grupo</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <extracomment>Choice of the sync direction: changes are downloaded and never uploaded (&quot;only&quot; goes with &quot;download&quot;).</extracomment>
        <translation>Solo descargar los cambios de Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>No se ha podido actualizar Tessaly. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>El icono de la bandeja del sistema muestra qué se está sincronizando y le avisa cuando otras personas comparten archivos con usted o los comentan.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <extracomment>Heading of a tutorial page, an invitation (verb: within seconds).</extracomment>
        <translation>Comparta en segundos</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Haga clic con el botón derecho en un archivo o carpeta, cree un enlace y decida quién puede abrirlo y durante cuánto tiempo.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) solicita acceso (%3) a la presentación de Pictra “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the folder&apos;s.</extracomment>
        <translation>%1 ha compartido con usted la carpeta “%2”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the folder&apos;s name.</extracomment>
        <translation>%1 (%2) solicita acceso (%3) a la carpeta “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) solicita acceso (%3) al archivo “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 an account&apos;s, %3 a right such as &quot;view&quot; or &quot;edit&quot;, %4 the file&apos;s name.</extracomment>
        <translation>%1 (%2) solicita acceso (%3) al documento de Folia “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 ha compartido con usted el documento de Folia “%2”.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <extracomment>Message: %1 is a person&apos;s name, %2 the file&apos;s.</extracomment>
        <translation>%1 ha compartido con usted la presentación de Pictra “%2”.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <extracomment>Heading of a page: who may see what.</extracomment>
        <translation>Configuración de privacidad</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Proteger con contraseña</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <extracomment>Choice of a list of days on which a backup runs: Monday to Friday.</extracomment>
        <translation>Días laborables</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Se creará una carpeta llamada “%1” para los archivos que otros compartan con usted.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <extracomment>Menu item/Label of the file manager: the files are downloaded and stay; also below a picture of it.</extracomment>
        <translation>Mantener siempre en este equipo</translation>
    </message>
    <message>
        <source>Any</source>
        <extracomment>Choice of a filter: no type is left out (belongs to &quot;type&quot;).</extracomment>
        <translation>Cualquiera</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Column head of the list of files that are being transferred (noun).</extracomment>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Tarea de sincronización</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>La copia de seguridad de los archivos se hace en cuanto cambian.</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Label beside a field: the list below shows what matches (noun).</extracomment>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <extracomment>Message of a choice.</extracomment>
        <translation>La copia de seguridad de los archivos se hace a las horas que usted defina.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <extracomment>Message: %1 is a number that counts down.</extracomment>
        <translation>La copia de seguridad ha finalizado. El equipo se apagará en %1&#xa0;s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <extracomment>Choice of the wizard: what kind of task to create (noun).</extracomment>
        <translation>Tarea de copia de seguridad</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <extracomment>Label above a row of check boxes with the days of the week (not dates).</extracomment>
        <translation>Ejecutar los días siguientes</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Conectar con el hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Proteja los archivos de este equipo con copias de seguridad en el hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Manual: la copia de seguridad solo se ejecuta cuando usted la inicia.</translation>
    </message>
    <message>
        <source>Start time</source>
        <extracomment>Label beside a field for a time of day: when a backup starts (noun).</extracomment>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>Label beside a list: how often a backup runs (noun).</extracomment>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Last end time</source>
        <extracomment>Label beside a date and time: when the backup came to its end last (a moment, not a duration).</extracomment>
        <translation>Última finalización</translation>
    </message>
    <message>
        <source>Last run time</source>
        <extracomment>Label beside a date and time: when the backup ran last (a moment, not a duration).</extracomment>
        <translation>Última ejecución</translation>
    </message>
    <message>
        <source>Commenter</source>
        <extracomment>Choice: a role (noun, a person): may open and comment; beside Viewer, Previewer, Editor, Manager.</extracomment>
        <translation>Comentador</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <extracomment>Tooltip of the button beside a sharing link (URL).</extracomment>
        <translation>Cambiar quién puede abrir este enlace</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Última subida: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <extracomment>Heading of a page.</extracomment>
        <translation>Configuración de la tarea</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Continua: la copia de seguridad de los archivos se hace cada vez que cambian.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <extracomment>Menu item: opens the folder in the system&apos;s program for files.</extracomment>
        <translation>Abrir en el gestor de archivos</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <extracomment>Message below an end time that is earlier in the day than the start time.</extracomment>
        <translation>La hora corresponde al día siguiente.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>No se ha podido obtener la información de uso compartido.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <extracomment>Label beside the path of the folder on the hub that backups are stored in (a place, not a purpose).</extracomment>
        <translation>Destino de la copia de seguridad</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <extracomment>Message of a choice; &quot;Back up now&quot; is the text of a button.</extracomment>
        <translation>La copia de los archivos se hace al hacer clic en Hacer copia de seguridad ahora.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <extracomment>Check box of a sharing link.</extracomment>
        <translation>Permitir descargas</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <extracomment>Message of a choice; what stands before the colon is its name.</extracomment>
        <translation>Programada: la copia de seguridad se ejecuta a las horas que usted defina.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <extracomment>Heading of a page: the days and times of the backup; not the same as &quot;Backup plan&quot;.</extracomment>
        <translation>Programación de la copia de seguridad</translation>
    </message>
    <message>
        <source>Manager</source>
        <extracomment>Choice: a role (noun, a person): may change everything and give rights; beside Viewer, Previewer, Commenter, Editor.</extracomment>
        <translation>Gestor</translation>
    </message>
    <message>
        <source>Previewer</source>
        <extracomment>Choice: a role (noun, a person): may look at a file without downloading it; beside Viewer, Commenter, Editor, Manager.</extracomment>
        <translation>Solo vista previa</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <extracomment>Heading of a wizard page, or a button (verb).</extracomment>
        <translation>Crear una tarea de copia de seguridad</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Se omitirán los archivos cuyos nombres o extensiones figuren aquí.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <extracomment>Check box of a task&apos;s settings (verb: temporary files are synced too).</extracomment>
        <translation>Sincronizar los archivos temporales</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Copie archivos de este equipo en el hub, de inmediato o de forma programada.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Elija cuándo se hace la copia de seguridad de los archivos.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Seleccione al menos una carpeta para la copia de seguridad.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <extracomment>Status of a task; %1 is a number, %2 a size with its unit, %3 the name of a folder or hub, %4 a date.</extracomment>
        <translation>Archivos con copia de seguridad en “%3” (%4): %1 (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Heading of the page with what was transferred (noun).</extracomment>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <extracomment>Button of the first page: sets up a backup task.</extracomment>
        <translation>Empezar a hacer copias de seguridad</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>No se hará copia de seguridad de los archivos y carpetas que cumplan estas reglas.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <extracomment>Status: stands in place of a path.</extracomment>
        <translation>Ninguna carpeta seleccionada</translation>
    </message>
    <message>
        <source>Free up space</source>
        <extracomment>Menu item of the file manager: the files stay on the hub alone, so that they take no space here.</extracomment>
        <translation>Liberar espacio</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <extracomment>Menu item of the file manager: the opposite of &quot;Always keep on this computer&quot;.</extracomment>
        <translation>Dejar de mantener en este equipo</translation>
    </message>
    <message>
        <source>Selected days</source>
        <extracomment>Choice of a list of days on which a backup runs: days of the week that the user chooses.</extracomment>
        <translation>Días seleccionados</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <extracomment>Label before a list: what the computer does then, such as &quot;Shut down the computer&quot;.</extracomment>
        <translation>Cuando termine la copia de seguridad</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the computer&apos;s name.</extracomment>
        <translation>Seleccione una carpeta de “%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Seleccione una carpeta del hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <extracomment>Fragment before a number field and its unit: &quot;Every [4] hours&quot;.</extracomment>
        <translation>Cada</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <extracomment>Check box of a task&apos;s filters (period: the sign &quot;.&quot; before a name).</extracomment>
        <translation>Omitir los archivos y carpetas cuyo nombre empiece por un punto</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <extracomment>Button of the first page: sets up a sync task.</extracomment>
        <translation>Empezar a sincronizar</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>La copia de seguridad se ha detenido porque no se ha podido verificar el certificado SSL del hub.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>No se ha podido registrar la tarea en el hub. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>La copia de seguridad se ha detenido porque el hub de esta dirección ha cambiado.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>La copia de seguridad se ha detenido porque el hub y el cliente no pueden comunicarse. Actualice ambos.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>La copia de seguridad se ha detenido porque esta versión de Tessaly es demasiado antigua para el hub.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <extracomment>Message: %1 is a version number.</extracomment>
        <translation>Actualice Tessaly a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Compruebe el nombre de usuario y la contraseña e inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Compruebe que el hub está encendido y que este equipo está conectado a la red.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>El hub ha bloqueado la dirección IP de este equipo. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>El certificado SSL del hub no es válido. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Pida al administrador que actualice Tessaly Server en el hub.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Sin copia de seguridad todavía</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Mantenga idénticas una carpeta de este equipo y otra del hub.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <extracomment>Link: opens a page of the help; keep the tag as it is.</extracomment>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Elija los días y las horas a los que se ejecuta la copia de seguridad.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <extracomment>Check box of a backup&apos;s schedule.</extracomment>
        <translation>Ejecutar las copias de seguridad pendientes lo antes posible</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <extracomment>Message of the wizard; the sides are this computer and the hub.</extracomment>
        <translation>Elija una carpeta en cada lado.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Introduzca la dirección del hub y su cuenta.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Revise la configuración de la nueva tarea.</translation>
    </message>
    <message>
        <source>Path</source>
        <extracomment>Column head in the wizard&apos;s summary: the place of a folder.</extracomment>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>La copia de seguridad se ha detenido porque no se ha podido iniciar sesión en el hub.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>La versión del paquete del hub no es compatible. Pida al administrador que realice la actualización.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>La copia de seguridad se ha detenido porque el hub ha bloqueado la dirección IP de este equipo.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>La copia de seguridad se ha detenido porque el paquete del hub es demasiado antiguo para este cliente.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <extracomment>Message: to clear is to take the check mark away.</extracomment>
        <translation>Algunas de las carpetas seleccionadas ya no existen. Desmárquelas para continuar.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <extracomment>Heading of the state of a task: it may upload alone or download alone.</extracomment>
        <translation>Sentido de sincronización incorrecto</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ya se puede instalar Kelvane Quay Client. Haga clic en Instalar para comenzar o en Atrás para revisar la configuración.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Elija un tipo de tarea</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Trabaje con los mismos archivos en todos sus equipos.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Guarde una copia segura de sus archivos en el hub.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Inicie sesión en el hub que guardará sus copias de seguridad.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Configure las carpetas sincronizadas</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Libere espacio en el disco de este equipo.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Elija la carpeta del hub que desea sincronizar.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Los archivos se descargan solo cuando los abre, lo que ahorra espacio en este equipo.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>La sincronización bajo demanda no está disponible para la carpeta seleccionada o el sistema operativo de este equipo.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Carpeta compartida no montada</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <extracomment>Choice of the sync direction: changes are uploaded and never downloaded (&quot;only&quot; goes with &quot;upload&quot;); %1 is a product name.</extracomment>
        <translation>Solo subir los cambios a %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <extracomment>Check box of a page of the settings; the user speaks.</extracomment>
        <translation>Sincronizar los archivos que otros comparten conmigo</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <extracomment>Check box of a backup task (verb: temporary files are backed up too).</extracomment>
        <translation>Hacer copia de seguridad de los archivos temporales</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Los archivos que otros compartan con usted aparecerán en su propia carpeta en este equipo.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <extracomment>Label beside the address of the hub&apos;s web pages.</extracomment>
        <translation>Portal web</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Cuota de almacenamiento agotada</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <extracomment>Heading of the state of a task: the hub offers no home folders.</extracomment>
        <translation>Carpeta personal desactivada</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Jue</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Sáb</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>No se encuentra la carpeta local</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>No se ha podido iniciar la tarea. Reinicie la aplicación.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>La carpeta compartida de esta tarea no está montada en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Ya no tiene permiso para acceder a la carpeta compartida de esta tarea.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <extracomment>Heading of the state of a task: a disk drive of this computer.</extracomment>
        <translation>Unidad no conectada</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>¡Casi listo! Sus archivos estarán disponibles en breve en %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Introduzca 0 para no definir ningún límite.</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Day in a narrow row: a day of the week.</extracomment>
        <translation>Vie</translation>
    </message>
    <message>
        <source>Role</source>
        <extracomment>Column head of the list of people that an item is shared with: Viewer, Editor and so on.</extracomment>
        <translation>Rol</translation>
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
        <translation>Mié</translation>
    </message>
    <message>
        <source>Friday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Monday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Thursday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <extracomment>Choice: a day of the week.</extracomment>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <extracomment>Choice of the installer, second of two; the user speaks.</extracomment>
        <translation>No acepto el contrato de licencia</translation>
    </message>
    <message>
        <source>Disk full</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Error de inicialización</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Es posible que la carpeta local se haya movido, renombrado o eliminado.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>Cuota de la carpeta compartida agotada</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>La cuota de la carpeta compartida se ha agotado. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>No se encuentra la carpeta remota</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Es posible que la carpeta remota se haya movido, renombrado o eliminado.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <extracomment>Label beside a list: what people with the link (URL) may do.</extracomment>
        <translation>Permiso del enlace</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Próxima copia de seguridad: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <extracomment>Label of a task: on which days and at which times, as a whole; not the same as &quot;Backup schedule&quot;.</extracomment>
        <translation>Plan de copias de seguridad</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <extracomment>Label above a field with a URL (noun).</extracomment>
        <translation>Enlace para compartir</translation>
    </message>
    <message>
        <source>Share link</source>
        <extracomment>Button: shows the URL to an item (verb and noun: share the link).</extracomment>
        <translation>Compartir enlace</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <extracomment>Message: %1 is a product name, %2 and %3 are version numbers.</extracomment>
        <translation>Las tareas de copia de seguridad requieren %1 %2 o posterior en el hub. La versión instalada es %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Este equipo ya está vinculado a este hub con la misma cuenta.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <extracomment>Status: stands in place of a list that is on its way.</extracomment>
        <translation>Cargando las carpetas compartidas...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>Los cambios en las unidades de red no se detectan de inmediato. Se sincronizarán con cierto retraso.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>¡Le damos la bienvenida a Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Haga clic en el icono de Tessaly en la bandeja del sistema para cambiar la configuración.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Haga clic en el icono de %1 en la bandeja del sistema para cambiar la configuración.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>La sincronización se ha detenido porque un volumen del hub está lleno.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>El paquete del hub es demasiado antiguo para el cliente.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <extracomment>Status, shown while this computer is being linked to the hub.</extracomment>
        <translation>Vinculando al hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos los archivos están al día.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Choice: a right on a shared file, or the command: look at it without downloading it.</extracomment>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Up to date</source>
        <extracomment>Status of a task and of the client in the tray (adjective).</extracomment>
        <translation>Al día</translation>
    </message>
    <message>
        <source>Folder link</source>
        <extracomment>Label above a field with a URL to a folder (noun).</extracomment>
        <translation>Enlace de la carpeta</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <extracomment>Label beside a field of a sharing link: the last day on which it may be opened.</extracomment>
        <translation>Fecha de caducidad</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <extracomment>Message of the tutorial; %1 is a product name.</extracomment>
        <translation>Ya puede empezar a trabajar con %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Status: how long ago a file changed: at this moment.</extracomment>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>Button: sends the file to the hub (verb).</extracomment>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <extracomment>Name of a product; stays as it is.</extracomment>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Actualice %1 a la versión %2 o posterior.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Elija los archivos que la nueva tarea mantiene sincronizados.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <extracomment>Screen reader: names a button; %1 is a product name.</extracomment>
        <translation>Abrir el portal web de %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <extracomment>Name of the product, %1 of many texts; fixed.</extracomment>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La copia de seguridad se ha detenido porque esta versión de %1 es demasiado antigua para el hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Pida al administrador que actualice %1 en el hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Se creará una carpeta llamada “%1” en esta ubicación.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>No se ha podido crear la carpeta “%1” en este equipo.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Vea todos sus archivos sin llenar el disco. Cada archivo se descarga cuando lo abre.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <extracomment>Menu item in the tray menu.</extracomment>
        <translation>Abrir el portal web de Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Ya está instalada una versión más reciente de Tessaly. Quítela antes de instalar Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <extracomment>Screen reader: names a page of the tutorial; %1 is a product name.</extracomment>
        <translation>Página 1 del tutorial: le damos la bienvenida a %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <extracomment>Column head of a list: sync or backup (noun).</extracomment>
        <translation>Tipo de tarea</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button: takes what was chosen in a list (verb).</extracomment>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ya se pueden instalar las funciones de sincronización y copia de seguridad de Kelvane Quay Client. Haga clic en Instalar para comenzar o en Atrás para revisar la configuración.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <extracomment>Check box of a task&apos;s settings.</extracomment>
        <translation>Activar la sincronización bajo demanda</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Falta la carpeta de sincronización bajo demanda “%1”. Vuelva a configurar la tarea.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <extracomment>Heading of a part of the settings: a feature&apos;s name (noun).</extracomment>
        <translation>Sincronización bajo demanda</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <extracomment>Heading of an offer: a feature&apos;s name follows the verb (&quot;try&quot; as an invitation).</extracomment>
        <translation>Pruebe la sincronización bajo demanda</translation>
    </message>
    <message>
        <source>Comment</source>
        <extracomment>Choice: a right on a shared file (verb), beside Preview and Edit.</extracomment>
        <translation>Comentar</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>El volumen del hub está lleno. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Introduzca una fecha válida.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>La hora de finalización debe ser posterior a la de inicio.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <extracomment>Tooltip of a cell of the list of excluded files; &quot;*.tmp&quot; is an example and stays.</extracomment>
        <translation>Escriba un nombre o una extensión de archivo, como “*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <extracomment>Heading of a page that explains Viewer, Editor and so on.</extracomment>
        <translation>Roles y permisos</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>Button: changes an entry (verb); also a right on a shared file.</extracomment>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <extracomment>Event: what happened to the file, in the history too: it stays on the hub alone (the space was freed up).</extracomment>
        <translation>Espacio liberado</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <extracomment>Event: what happened to the file, in the history too: it was downloaded and stays.</extracomment>
        <translation>Ya disponible en este equipo</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>La sincronización bajo demanda requiere una carpeta de una unidad NTFS que no sea de red ni extraíble.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <extracomment>Message: the link is to be kept as it is.</extracomment>
        <translation>Mantenga los archivos en línea hasta que los necesite. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Cómo funciona la sincronización bajo demanda&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <extracomment>Message: %1 is a product name, %2 a number.</extracomment>
        <translation>No hay suficiente espacio en este disco. %1 necesita al menos %2&#xa0;MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Sincronice su carpeta personal y las carpetas de grupo a las que tiene acceso.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Si desactiva esta opción, la carpeta con los archivos que otros comparten con usted se quitará de este equipo. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Sincronice los archivos que otros comparten con usted para poder abrirlos como si fueran suyos.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <extracomment>Check box of the wizard.</extracomment>
        <translation>Activar la sincronización bajo demanda para esta tarea</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>La copia de seguridad se ha detenido porque su cuenta no tiene permiso para usar el paquete en el hub.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Sincronice los archivos y carpetas que otros usuarios comparten con usted.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>El disco se está llenando. Active la sincronización bajo demanda para liberar espacio.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <extracomment>Heading of a wizard page, below its title.</extracomment>
        <translation>Todo lo que otros comparten con usted, en una sola carpeta</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Pida al administrador que le conceda permiso para usar el paquete.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name, %2 a version number.</extracomment>
        <translation>Este cliente requiere %1 %2 o posterior en el hub. Pida al administrador que realice la actualización.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>No tiene permiso para usar el paquete en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>Otra tarea de copia de seguridad ya usa este destino. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 no puede comunicarse con el paquete del hub. Actualice ambos a la última versión.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <extracomment>Choice: who may open a sharing link (a sentence without a full stop).</extracomment>
        <translation>Solo usted puede abrir el enlace</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <extracomment>Button in a warning about the certificate: goes on in spite of it.</extracomment>
        <translation>Continuar de todos modos</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>Tessaly mantiene sus archivos idénticos en todos sus equipos y los protege en el hub.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Comparta un archivo con un enlace. Usted decide quién puede verlo o editarlo.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <extracomment>Button on the first page of the tutorial.</extracomment>
        <translation>Iniciar la visita guiada</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <extracomment>Message: %1 is a product name; keep the link as it is.</extracomment>
        <translation>¿Es la primera vez que usa %1? Lea antes la &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;guía de inicio rápido&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Introduzca su nombre de usuario.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Todos los archivos de esta tarea se descargarán en este equipo. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <extracomment>Heading of the first page of the tutorial.</extracomment>
        <translation>Le damos la bienvenida a Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <extracomment>Heading of a tutorial page, an invitation (verb).</extracomment>
        <translation>Comparta con otras personas</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Abra el historial para saber quién ha modificado un archivo y cuándo.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Mantenga sus archivos idénticos en todos sus equipos sincronizándolos con el hub.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <extracomment>Status of a task; %1 is always 1.</extracomment>
        <translation>Se está procesando %1 archivo</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>%1 y el cliente tienen versiones distintas. Actualice ambos a la misma versión.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <extracomment>Status of a task; %1 is any number.</extracomment>
        <translation>Archivos en proceso: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <extracomment>Status of a task; %1 is a number, more than one.</extracomment>
        <translation>Se están procesando %1 archivos</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>El volumen de esta carpeta no admite cuotas.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Ha agotado su cuota de almacenamiento personal.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <extracomment>Message: %1 to %4 are sizes with their units: used, of, used, of.</extracomment>
        <translation>Su carpeta personal usa %1 de %2 y las carpetas compartidas usan %3 de %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>La cuota de la carpeta compartida “%1” se ha agotado.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Algunas carpetas han agotado su cuota.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>No se puede restaurar la versión porque un filtro excluye el archivo.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Elija las carpetas de las que desea hacer copia de seguridad y dónde guardar las copias.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Elija de qué desea hacer copia de seguridad</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>La copia de seguridad se ha detenido porque su cuenta se ha desactivado en el hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <extracomment>Status of a task.</extracomment>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Pida al administrador que active su cuenta.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Su cuenta se ha desactivado en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <extracomment>Status, short, of a task: the administrator has disabled the user&apos;s account.</extracomment>
        <translation>Cuenta desactivada</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <extracomment>Check box of the general options.</extracomment>
        <translation>Mostrar iconos en los archivos excluidos por un filtro</translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>Tab of the hub&apos;s page: space and quotas.</extracomment>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <extracomment>Screen reader: names a window that asks.</extracomment>
        <translation>Cuadro de diálogo</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Todas las tareas de este hub se quitarán de este equipo. Los archivos se conservarán. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>Error en la copia de seguridad. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>No se ha podido crear la tarea. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <extracomment>Message: %1 is the folder&apos;s name.</extracomment>
        <translation>Ya no tiene permiso para acceder a la carpeta compartida “%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <extracomment>Status of a task; %1 is a file name.</extracomment>
        <translation>Procesando “%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Días</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>No se ha podido cargar la tarea.</translation>
    </message>
    <message>
        <source>Operation</source>
        <extracomment>Column head of a list: what can be done with an entry (noun).</extracomment>
        <translation>Operación</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <extracomment>Message: %1 is a path.</extracomment>
        <translation>La carpeta “%1” no existe.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <extracomment>Choice of a list after &quot;When the backup is done&quot;: what the computer does then (verb).</extracomment>
        <translation>Apagar el equipo</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>No tiene permiso para apagar este equipo automáticamente.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>Se ha cancelado la copia de seguridad.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>La copia de seguridad ha finalizado.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <extracomment>Choice: how often a backup runs; %1 is a number, more than one.</extracomment>
        <translation>Copias de seguridad diarias: %1</translation>
    </message>
    <message>
        <source>times</source>
        <extracomment>Fragment, unit after a number field: &quot;[3] times&quot;, a day.</extracomment>
        <translation>veces</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <extracomment>Heading/Label: continuous, scheduled or manual (the way in which is backed up).</extracomment>
        <translation>Modo de copia de seguridad</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>¿Desea iniciar la copia de seguridad ahora?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Si este equipo está apagado o suspendido a la hora programada, la copia de seguridad se inicia en cuanto vuelve a funcionar.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Seleccione al menos un día de la semana.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <extracomment>Status of a task; %1 is a date and time.</extracomment>
        <translation>Última copia de seguridad: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Todos los días</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <extracomment>Choice of the backup mode (noun): runs when the user starts it.</extracomment>
        <translation>Copia de seguridad manual</translation>
    </message>
    <message>
        <source>Once a day</source>
        <extracomment>Choice: how often a backup runs.</extracomment>
        <translation>Una vez al día</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <extracomment>Choice of the backup mode (noun): runs as soon as a file changes.</extracomment>
        <translation>Copia de seguridad continua</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <extracomment>Choice of the backup mode (noun): runs at set times.</extracomment>
        <translation>Copia de seguridad programada</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <extracomment>Heading of a wizard page (verb).</extracomment>
        <translation>Definir el plan de copias de seguridad</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <extracomment>Status of a backup: the state of the disk is being recorded.</extracomment>
        <translation>Creando una instantánea...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>No se ha podido guardar el plan de copias de seguridad. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Introduzca un tamaño entre 0 y %1&#xa0;MB. Introduzca 0 para no definir ningún límite.</translation>
    </message>
    <message>
        <source>Connection</source>
        <extracomment>Tab/Heading: the connection to the hub.</extracomment>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Mostrar la actividad de esta tarea</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <extracomment>Tooltip of a button.</extracomment>
        <translation>Mostrar los elementos quitados</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>Label beside a size: how much space is taken (participle; belongs to &quot;space&quot;).</extracomment>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Months</source>
        <extracomment>Choice: a unit of time in a list, beside a field for the number (plural).</extracomment>
        <translation>Meses</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <extracomment>Label below a bar; %1 and %2 are sizes with their units: &quot;3 GB of 10 GB used&quot;.</extracomment>
        <translation>%1 de %2 en uso</translation>
    </message>
    <message>
        <source>Background task</source>
        <extracomment>Label beside a task that runs without a window.</extracomment>
        <translation>Tarea en segundo plano</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <extracomment>Screen reader: names a window.</extracomment>
        <translation>Ventana de configuración de filtros</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Introduzca una hora válida.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <extracomment>Event in the history, of a file: a rule of the client, not one of the user.</extracomment>
        <translation>No sincronizado: excluido por una regla del sistema</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <extracomment>Button: opens the settings of the connection to the hub (verb).</extracomment>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Not now</source>
        <extracomment>Button: puts off what was offered.</extracomment>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Created on</source>
        <extracomment>Column head of a list: the day on which a link or a task was made.</extracomment>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Tareas de copia de seguridad</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <extracomment>Tab of the main window (plural).</extracomment>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Filters</source>
        <extracomment>Tab of a task&apos;s settings: which files are left out (plural).</extracomment>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <extracomment>Heading of the list of files that were changed lately (plural).</extracomment>
        <translation>Modificados recientemente</translation>
    </message>
    <message>
        <source>Back up now</source>
        <extracomment>Button: starts the backup at once (verb).</extracomment>
        <translation>Hacer copia de seguridad ahora</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Heading of the part of a page with the files to sync (noun, plural).</extracomment>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Equal to</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Less than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>Greater than</source>
        <extracomment>Choice of a filter: before a size; belongs to &quot;size&quot;.</extracomment>
        <translation>Mayor que</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <extracomment>Heading of the box in which a folder is chosen (verb).</extracomment>
        <translation>Seleccione una carpeta de este equipo</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>Esta carpeta ya forma parte de una tarea de copia de seguridad de %1. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Kelvane Quay Client ya sincroniza esta carpeta, por lo que no se puede incluir en una copia de seguridad. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>IP address</source>
        <extracomment>Label beside the hub&apos;s address in the network.</extracomment>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <extracomment>Fragment in a list of notifications, between a person&apos;s name and a file&apos;s: &quot;Ann replied to your comment on Plan.txt&quot;.</extracomment>
        <translation>ha respondido a su comentario en</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <extracomment>Menu item in the tray menu: opens the page with the state of the tasks.</extracomment>
        <translation>Ver el estado de sincronización</translation>
    </message>
    <message>
        <source>Replies</source>
        <extracomment>Choice of a filter of notifications: replies to the user&apos;s comments (noun, plural).</extracomment>
        <translation>Respuestas</translation>
    </message>
    <message>
        <source>Not synced</source>
        <extracomment>Event in the history: the file was left out.</extracomment>
        <translation>No sincronizado</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <extracomment>Message: %1 is a product name.</extracomment>
        <translation>La versión de Tessaly Server del hub es demasiado antigua para %1. Pida al administrador que realice la actualización.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <extracomment>Status, short, in the tray.</extracomment>
        <translation>Sin conexión con el hub</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes a box.</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <extracomment>Heading of a page: rights, password and validity of a sharing link.</extracomment>
        <translation>Uso compartido avanzado</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>No se ha podido guardar la configuración de uso compartido. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <extracomment>Check box for an item.</extracomment>
        <translation>Activar el uso compartido avanzado</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <extracomment>Check box for an item: password and validity of its link (URL).</extracomment>
        <translation>Activar la protección de enlaces</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <extracomment>Fragment: follows the name of a folder or file in a notification: &quot;Photos is now shared with advanced settings.&quot;</extracomment>
        <translation>se ha compartido con la configuración avanzada.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <extracomment>Heading of a page: a link (URL) with password and validity (participle; belongs to &quot;sharing&quot;).</extracomment>
        <translation>Uso compartido protegido</translation>
    </message>
    <message>
        <source>Link protection</source>
        <extracomment>Heading of a page: password and validity of a link (URL).</extracomment>
        <translation>Protección de enlaces</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>¿Seguro que desea quitar el enlace? No se podrá restaurar.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <extracomment>Heading of a question; the link is a URL.</extracomment>
        <translation>¿Quitar este enlace?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Guarde los registros del cliente en un archivo que podrá enviar al soporte técnico.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <extracomment>Hint in an empty field.</extracomment>
        <translation>Escriba una palabra clave</translation>
    </message>
    <message>
        <source>Remove link</source>
        <extracomment>Button: takes a link (URL) away (verb).</extracomment>
        <translation>Quitar enlace</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <extracomment>Tab of the settings: logs and so on (noun).</extracomment>
        <translation>Solución de problemas</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Guarde más detalles en los registros para ayudar al soporte técnico a encontrar la causa de un problema.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <extracomment>Button: stores the logs in a file (verb).</extracomment>
        <translation>Exportar registros</translation>
    </message>
    <message>
        <source>File deleted</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Archivo eliminado</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <extracomment>Label above a list, ends in a colon.</extracomment>
        <translation>El archivo exportado contiene:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Información sobre el sistema operativo de este equipo</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <extracomment>Heading of a part of the settings: more details are written to the logs.</extracomment>
        <translation>Registro avanzado</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <extracomment>Message: &quot;logs&quot; are the records of what the client did; no relation to locks.</extracomment>
        <translation>Los registros avanzados ocupan más espacio en el disco y pueden ralentizar el cliente.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Declaración de privacidad</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <extracomment>Message: an entry of a list below &quot;The exported file contains:&quot;; no full stop.</extracomment>
        <translation>Los registros y la configuración del cliente, sin contraseñas</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <extracomment>Check box of the settings: more details are written to the logs.</extracomment>
        <translation>Activar el registro avanzado</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <extracomment>Event in the history, of a file: a rule of the user.</extracomment>
        <translation>No sincronizado: excluido por un filtro de la tarea</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <extracomment>Event in the history, of a file.</extracomment>
        <translation>No sincronizado: sin permiso</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <extracomment>Link: opens a page of the maker.</extracomment>
        <translation>Términos del servicio</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <extracomment>Tooltip of a field; %1 is a number.</extracomment>
        <translation>Introduzca un tamaño inferior a %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Esta carpeta ya forma parte de otra tarea de copia de seguridad. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>La tarea se ha detenido por un error inesperado. Reinicie la aplicación.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Este archivo no tiene versiones anteriores.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>No se ha podido activar la sincronización bajo demanda para esta tarea.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>Error al conectar con el hub. Compruebe la dirección y la red.</translation>
    </message>
    <message>
        <source>:</source>
        <extracomment>Fragment: the colon between a label and its value; a blank that the language sets before it belongs to it.</extracomment>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Archivo añadido</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>El nombre no puede empezar ni terminar con un espacio.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>La copia de seguridad se ha detenido porque el certificado SSL del hub ha cambiado.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>El certificado SSL del hub ha caducado. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>El hub ya puede indexar toda su carpeta personal.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Ya puede sincronizar toda su carpeta personal con este equipo.</translation>
    </message>
    <message>
        <source>Locked</source>
        <extracomment>Status of a file: another program has it open (participle; belongs to &quot;file&quot;).</extracomment>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <extracomment>Status, short, of a task: a service of the hub is turned off.</extracomment>
        <translation>Norvik desactivado</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <extracomment>Message: the home folder is the user&apos;s, not the hub&apos;s.</extracomment>
        <translation>El hub está preparando su carpeta personal. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <extracomment>Event in the history (noun and participle).</extracomment>
        <translation>Archivo renombrado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <extracomment>Event in a notification; %1 is a file name.</extracomment>
        <translation>“%1” se ha actualizado</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <extracomment>Message: the signs after the colon are to be kept as they are.</extracomment>
        <translation>El nombre no puede contener ninguno de los siguientes caracteres: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>Norvik está desactivado en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Su cuenta se ha desactivado en el hub, por lo que no se puede comprobar la carpeta.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Button: adds an entry to a list (verb).</extracomment>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>Button: deletes an entry (verb).</extracomment>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Ya existe una tarea con este nombre.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>No se puede usar ninguna de las carpetas seleccionadas. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <extracomment>Heading of the state of a task.</extracomment>
        <translation>No hay carpetas válidas</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <extracomment>Tooltip: the link is to be kept as it is.</extracomment>
        <translation>Los archivos permanecen en el hub hasta que los abra. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Más información sobre la sincronización bajo demanda&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <extracomment>Check box beside a field: the user names the task.</extracomment>
        <translation>Nombre de tarea personalizado</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>El nombre le ayuda a distinguir sus tareas. Solo se muestra en este equipo.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>La sincronización bajo demanda se puede activar o desactivar en la configuración de la tarea.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Este campo es obligatorio.</translation>
    </message>
</context>
</TS>
