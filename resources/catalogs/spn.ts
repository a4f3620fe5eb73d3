<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Conectar mediante Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Se han producido conflictos de archivos. El archivo se llama ahora %1.</translation>
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
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Carpeta local</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Volver a vincular</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Comprobando el nombre de usuario y la contraseña...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Conexión establecida</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Se combinarán los archivos de las dos carpetas. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Revise la siguiente configuración antes de finalizar.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>El nombre de usuario o la contraseña no son correctos.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambiar de carpeta</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>ID de Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Buscando cambios...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>Se ha perdido la conexión con el hub. Volviendo a conectar...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Subido</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Personalizar</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Error al iniciar sesión</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Detectando el tipo de conexión...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Retransmisión de Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>El servicio Ferrylink no responde. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Archivos actualizados: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta. Los cambios que haga en este equipo no se subirán.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Ha agotado su cuota de almacenamiento en el hub. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexión</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Cambiar la carpeta local</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>No se ha podido verificar el certificado SSL del hub.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>No usar un servidor proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Select a folder</source>
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
        <translation>Almacenamiento lleno</translation>
    </message>
    <message>
        <source>Proxy settings</source>
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
        <translation>No se pueden sincronizar más de %1 carpetas compartidas.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
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
        <translation>Configurar el servidor proxy manualmente</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>No hay cambios que aplicar.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Activar la sincronización</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Nombre de la carpeta compartida</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configuración de red</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>El servidor proxy requiere iniciar sesión</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Se ha producido un problema</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Cifrar la transmisión de datos con SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Nombre del hub, dirección IP o ID de Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones en el escritorio</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar iconos de estado de sincronización en archivos y carpetas</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Opciones generales</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Usar un icono en blanco y negro en la bandeja del sistema</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>La carpeta compartida “%1” está a su disposición. Puede configurarla para que se sincronice con este equipo.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Comprobando los datos...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Error en la configuración automática. Configure la conexión manualmente.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Finalizando la configuración...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Los archivos y carpetas que cumplan estas reglas no se sincronizarán.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Instalando la actualización...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Extensiones de archivo</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Carpeta en un punto de montaje</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Progreso: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
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
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>El disco de este equipo está lleno. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Cargando la lista de carpetas...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>¿Seguro que desea desvincular este equipo del hub?</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de la carpeta</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Sincronizando archivos (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Descargando “%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Carpetas que se sincronizan</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nombres de archivo excluidos</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>La base de datos local está dañada. Desvincule este equipo del hub y vuelva a vincularlo.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de archivos</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Lista de exclusiones</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>Las carpetas desmarcadas se quitarán de este equipo. Seguirán en el hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Gestión de conflictos</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>La carpeta es un punto de montaje y no se puede sincronizar. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>Se ha cancelado la descarga de “%1”.</translation>
    </message>
    <message>
        <source>Start now</source>
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
        <translation>Vinculando...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>No se ha podido obtener del hub la información de su cuenta.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La conexión es inestable</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obtener enlace</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Vinculando este equipo al hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Intentando sincronizar...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Lector</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Advertencia de certificado</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Reglas de exclusión</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Si deja de sincronizar esta carpeta compartida, los cambios posteriores no se transferirán. Los archivos locales se conservarán.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Activar el cifrado SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Seleccione la carpeta de este equipo que desea sincronizar con el hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>se ha compartido con usted.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Compartido con usted</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Descarga completada</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Error en la descarga</translation>
    </message>
    <message>
        <source>Hub overview</source>
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
        <translation>En espera</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
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
        <translation>Salir</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Dejar las aplicaciones abiertas. Después tendrá que reiniciar el equipo.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Restaura los archivos de programa, los accesos directos y las entradas del Registro que falten o estén dañados.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>[ProductName] mantendrá sus archivos seguros y sincronizados.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Haga clic en Finalizar para salir de la instalación.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>La unidad que contiene la carpeta local no está conectada.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparar [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
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
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Se ha producido un error y [ProductName] no se ha instalado. Se han deshecho todos los cambios del programa de instalación. Puede volver a ejecutarlo en cualquier momento.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Información sobre este equipo y el hub al que está vinculado.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Use este asistente para cambiar, reparar o quitar [ProductName]. Haga clic en Siguiente para continuar o en Cancelar para salir del programa de instalación.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Quitar [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licencia</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Estas aplicaciones tienen abiertos archivos que el programa de instalación de [ProductName] debe reemplazar:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Actividad</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalando [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>Falta la carpeta local. Es posible que se haya movido, renombrado o eliminado.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Yes</source>
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
        <translation>Cerrar las aplicaciones ahora y volver a abrirlas al terminar la instalación.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Cierre las aplicaciones y haga clic en Reintentar. Si hace clic en Omitir, la instalación de [ProductName] no se completará hasta que reinicie el equipo.</translation>
    </message>
    <message>
        <source>Change</source>
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
        <translation>Todo listo para reparar [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Haga clic en Reparar para comenzar, en Atrás para elegir otra acción o en Cancelar para salir del programa de instalación.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Ha salido del programa de instalación antes de instalar [ProductName]. No se ha modificado nada en el equipo. Puede volver a iniciar la instalación en cualquier momento.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Este asistente instalará [ProductName] en el equipo. Haga clic en Siguiente para continuar o en Cancelar para salir del programa de instalación.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Bienvenido a la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>[ProductName] se ha instalado</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>Se ha cancelado la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Vincular a un hub nuevo</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>No se ha podido instalar [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Sincronización activada</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Añadir tarea</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Acepto el contrato de licencia</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Sus archivos, al día en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Este no es el hub al que estaba vinculada %1. Vuelva a vincular este equipo.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>El uso compartido está desactivado para su cuenta.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>La tarea “%1” se detendrá y se quitará su conexión con el hub. Los archivos de ambos lados se conservarán.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
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
        <translation>El hub ha cambiado</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>La carpeta compartida “%1” no está montada en el hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>El volumen de la carpeta remota no está montado en el hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Ubicación de la carpeta</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Sincronizar con este equipo</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>No ha iniciado sesión como administrador, por lo que es posible que algunas características no se instalen. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Sincronice, comparta y proteja sus archivos</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>El uso compartido de archivos mediante Ferrylink está desactivado en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Elija cómo desea configurar Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Elementos del %1 al %2 de %3</translation>
    </message>
    <message>
        <source>Got it</source>
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
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Dejar de sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Hace %1 h</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Elija una carpeta del hub y otra de este equipo. Su contenido se mantendrá idéntico.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayo</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Este equipo ya está vinculado</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Hace %1 d</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Ahora mismo</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Hace %1 min</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febrero</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Volver a sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Dejar de sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>No hay historial que mostrar</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Volver a sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar a</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Enero</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Sincronizando ahora</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julio</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junio</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
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
        <translation>Modo de configuración</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Sincronice sus archivos</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Esté al tanto de los cambios</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Buscar hubs en la red local</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Información de estado</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Usuario: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Este archivo no pertenece a ninguna tarea de sincronización.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Abrir la ventana principal</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Vincular este equipo a otro hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Sincronizar otra carpeta con este hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nueva sincronización</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Elija por su cuenta las carpetas, el sentido de la sincronización y los filtros.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Los archivos de más de %1 MB no se sincronizarán.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Esta carpeta no se puede sincronizar. Elija otra.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Buscar hubs en la red local</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta compartida. Los archivos se descargarán, pero no se subirán.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Encontrará más guías en los &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutoriales&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Esta carpeta contiene una carpeta que ya se sincroniza o está dentro de ella. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Este equipo ya está vinculado al hub “%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>Se creará una carpeta llamada “Tessaly” en esta ubicación.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Si continúa, se reemplazará la vinculación actual.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>El hub está sin conexión.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>No se puede crear un enlace porque Norvik no está disponible en el hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>El certificado SSL del hub ha cambiado. Confirme el nuevo certificado.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Definir las carpetas que se sincronizan</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>El sentido de la sincronización no se corresponde con sus permisos en la carpeta remota.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>El hub ha bloqueado la dirección IP de este equipo. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Cuando un archivo se ha modificado en ambos lados:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Le damos la bienvenida al asistente de configuración</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Unlinking...</source>
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
        <translation>Carpetas sincronizadas</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Conservar la última versión modificada</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Bidireccional</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Elija qué carpeta del hub se sincroniza con qué carpeta de este equipo.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>ha solicitado acceso a la plantilla de Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>Otra tarea de sincronización de este equipo ya usa esta carpeta.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
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
        <translation>Introduzca el código de verificación de 6 dígitos</translation>
    </message>
    <message>
        <source>Hours</source>
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
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Conservar siempre la versión del hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Renombrar los archivos en conflicto y conservar ambas versiones</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acceso (%3) a la plantilla de Bureau “%4”.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>Se combinará el contenido de ambas carpetas. No se eliminará ningún archivo.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Lista de conexiones</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Hub conectado</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Copiar el enlace para compartir</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Quitar el permiso de este usuario</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Grupo: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Abrir el portal web de Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Hub vinculado</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Tarea de sincronización de los archivos que otros comparten con usted</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Pestaña de archivos modificados recientemente</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Página 2 del tutorial: sincronice sus archivos</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Página 3 del tutorial: esté al tanto de los cambios</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Página 4 del tutorial: comparta con otras personas</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Elija un permiso de uso compartido</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>Tessaly mantiene idénticos los archivos de sus equipos y del hub.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>horas</translation>
    </message>
    <message>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>Open my folder</source>
        <translation>Abrir mi carpeta</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>No se encuentra la carpeta compartida</translation>
    </message>
    <message>
        <source>Version %1</source>
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
        <translation>Algunos campos contienen valores no válidos. Compruebe los campos resaltados.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sentido de la sincronización</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
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
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Caduca tras</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>No hay acciones disponibles</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Escriba un nombre de archivo completo, como “desktop.ini”, y pulse Intro.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Ya existe una carpeta con este nombre. Elija otro nombre.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Comparar todos los atributos de los archivos al buscar cambios</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Válido hasta</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Este campo no puede quedar en blanco.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restringir el acceso</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Mostrar acciones de sincronización en el menú contextual de archivos y carpetas</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>El servicio de carpetas personales está desactivado en el hub. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>Error en la actualización. &lt;a href=&quot;%1&quot;&gt;Descargue la última versión&lt;/a&gt; e instálela manualmente.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Aplicar y copiar el enlace</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Limitar el número de visitas</translation>
    </message>
    <message>
        <source>Valid from</source>
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
        <translation>Mostrar información</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Añadir un nombre de archivo</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Carpeta de este equipo</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Elija un idioma</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Lista de las versiones de archivo que se están descargando</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Personalizar el periodo de validez</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Mostrar el tutorial de %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Cambiar la carpeta sincronizada</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Carpeta sincronizada vinculada</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Actualizar el historial</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Escriba una palabra clave para buscar en el historial</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Añadir una carpeta</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Elija un tipo de evento</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Sincronización “%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Carpeta del hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Ventana de configuración</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Cerrar el tutorial</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Cancelar esta descarga</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Quitar esta descarga de la lista</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Su contraseña ha caducado. Cámbiela en el portal web e inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renombrado en este equipo</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Renombrado en el hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Introduzca %1 caracteres como máximo.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Esta no es la cuenta con la que se creó la tarea. Inicie sesión como “%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Información del hub</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>El servicio de retransmisión de Ferrylink está desactivado en el hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>No se ha podido descargar “%1”. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Error al iniciar sesión en el hub. Compruebe el nombre de usuario y la contraseña.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>ha comentado en</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Abrir en el portal web</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Abrir la carpeta sincronizada</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta. %1 no subirá sus cambios.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>%1 ya está vinculada al hub y mantendrá sus archivos sincronizados.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>El programa de instalación ha reunido toda la información que necesita.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 está lista.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 ya se está ejecutando.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>%1 mantiene idénticos los archivos de sus equipos y del hub.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Ver vista previa y comentar</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
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
        <translation>Elija qué desea sincronizar con la nueva tarea</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>La carpeta pertenece a Dropbox. Si también se sincroniza con %1, pueden producirse conflictos de archivos.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Sus cambios se perderán. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Tutorial de %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>El ID de Ferrylink no existe o %1 no se está ejecutando en el hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Aquí solo se muestran las carpetas compartidas que se han activado en %1.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Abrir %1 al iniciar sesión en este equipo</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 se está inicializando...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>El hub y %1 no pueden comunicarse. Actualice ambos a la última versión.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Esta versión de %1 es demasiado antigua para el hub. Actualícela.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versiones no compatibles</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>El disco está lleno. Libere espacio en este equipo para que %1 pueda continuar.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>Se ha producido un problema en %1. Reinicie la aplicación.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Pestaña de notificaciones</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>La carpeta no está vacía. %1 combinará sus archivos con los del hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Solo descargar los cambios de %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>%1 está configurada. Abra su carpeta para empezar a trabajar.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Página 1 del tutorial: le damos la bienvenida a Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Esta versión de Kelvane Quay Client ya está instalada. ¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
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
        <translation>Tutorial de Tessaly</translation>
    </message>
    <message>
        <source>Tessaly</source>
        <translation>Tessaly</translation>
    </message>
    <message>
        <source>Weeks</source>
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
        <translation>Permiso de uso compartido</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>La versión de Tessaly Server del hub es demasiado antigua para este cliente. Pida al administrador que la actualice.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Mostrar el tutorial de Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
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
        <translation>Abrir Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>La versión %1 está disponible. Haga clic aquí para actualizar.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Para usar la sincronización selectiva, pida al administrador que actualice Tessaly Server en el hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>No hay suficiente espacio en este disco. Tessaly necesita al menos %1 MB.</translation>
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
        <translation>¿Es la primera vez que usa Tessaly? Lea antes la &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;guía de inicio rápido&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Puede comentar</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Los usuarios del hub que tengan el enlace pueden ver</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Los usuarios del hub que tengan el enlace pueden editar</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Solo las personas invitadas pueden abrir el enlace</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Cualquier persona con el enlace puede comentar</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Cualquier persona con el enlace puede ver</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Los usuarios del hub que tengan el enlace pueden comentar</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Cualquier persona con el enlace puede editar</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Puede ver</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Puede administrar</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Puede editar</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>No se puede abrir el portal web. Compruebe la conexión con el hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Invitar a personas</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Sin acceso</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>No hay carpetas compartidas.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acceso (%3) a la hoja de cálculo de Grida “%4”.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>Las personas que tienen el enlace ya no podrán abrir el archivo.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 ha compartido con usted la hoja de cálculo de Grida “%2”.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>No hay datos</translation>
    </message>
    <message>
        <source>Share</source>
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
        <translation>Fines de semana</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Usuarios del hub</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Solo personas invitadas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Cualquier persona con el enlace</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Definir una fecha de caducidad</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Usuarios y grupos</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Mostrar las carpetas sincronizadas en la barra lateral del gestor de archivos</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Trabaje en la carpeta sincronizada como en cualquier otra carpeta. Sus cambios se transfieren al hub de inmediato.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Su equipo</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Todos sus archivos, en todas partes</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Ahorre espacio con la sincronización bajo demanda</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Todos los archivos se muestran en el equipo, pero solo ocupan espacio cuando los abre.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Solo en línea</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Disponible en este equipo</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>le ha mencionado en</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>ha solicitado acceso a</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 ha compartido con usted el archivo “%2”.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>ha compartido con usted</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Compartido</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Solicitud de acceso</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Compartido conmigo</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Menciones</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Solo subida</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Conservar los archivos en el hub cuando se eliminen de este equipo</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Se ha descargado “%1”.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Sus archivos están al día en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
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
        <translation>Activar más tarde</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Activar ahora</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Archivos compartidos con usted</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Crear una tarea de sincronización</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Mis archivos y carpetas de equipo</translation>
    </message>
    <message>
        <source>Files shared with me</source>
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
        <translation>No se pierda ningún cambio</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>El disco está lleno. Libere espacio en este equipo para que Tessaly pueda continuar.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Carpeta de equipo</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
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
        <translation>Comparta en segundos</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Haga clic con el botón derecho en un archivo o carpeta, cree un enlace y decida quién puede abrirlo y durante cuánto tiempo.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acceso (%3) a la presentación de Pictra “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 ha compartido con usted la carpeta “%2”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acceso (%3) a la carpeta “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acceso (%3) al archivo “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acceso (%3) al documento de Folia “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 ha compartido con usted el documento de Folia “%2”.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 ha compartido con usted la presentación de Pictra “%2”.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Configuración de privacidad</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Proteger con contraseña</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Días laborables</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Se creará una carpeta llamada “%1” para los archivos que otros compartan con usted.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Mantener siempre en este equipo</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Cualquiera</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>La copia de seguridad de los archivos se hace en cuanto cambian.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>La copia de seguridad de los archivos se hace a las horas que usted defina.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>La copia de seguridad ha finalizado. El equipo se apagará en %1 s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Ejecutar los días siguientes</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Conectar con el hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Proteja los archivos de este equipo con copias de seguridad en el hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manual: la copia de seguridad solo se ejecuta cuando usted la inicia.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Última finalización</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Última ejecución</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Comentador</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Cambiar quién puede abrir este enlace</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Última subida: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Configuración de la tarea</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Continua: la copia de seguridad de los archivos se hace cada vez que cambian.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Abrir en el gestor de archivos</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>La hora corresponde al día siguiente.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>No se ha podido obtener la información de uso compartido.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino de la copia de seguridad</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>La copia de seguridad se hace cuando usted hace clic en Hacer copia ahora.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Permitir descargas</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Programada: la copia de seguridad se ejecuta a las horas que usted defina.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Programación de la copia</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Gestor</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Solo vista previa</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Crear una tarea de copia de seguridad</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Se omitirán los archivos cuyos nombres o extensiones figuren aquí.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
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
        <translation>Archivos copiados en “%3” (%4): %1 (%2)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Empezar a hacer copias</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>No se hará copia de seguridad de los archivos y carpetas que cumplan estas reglas.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ninguna carpeta seleccionada</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Liberar espacio</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Dejar de mantener en este equipo</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Días seleccionados</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Cuando termine la copia de seguridad</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Seleccione una carpeta de “%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Seleccione una carpeta del hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Cada</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Omitir los archivos y carpetas cuyo nombre empiece por un punto</translation>
    </message>
    <message>
        <source>Start syncing</source>
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
        <translation>Sin copia de seguridad todavía</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Mantenga idénticas una carpeta de este equipo y otra del hub.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Elija los días y las horas a los que se ejecuta la copia de seguridad.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Ejecutar las copias de seguridad pendientes lo antes posible</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
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
        <translation>Ruta</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>La copia de seguridad se ha detenido porque no se ha podido iniciar sesión en el hub.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>La versión del paquete del hub no es compatible. Pida al administrador que lo actualice.</translation>
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
        <translation>Algunas de las carpetas seleccionadas ya no existen. Desmárquelas para continuar.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Sentido de sincronización incorrecto</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ya se puede instalar Kelvane Quay Client. Haga clic en Instalar para comenzar o en Atrás para revisar la configuración.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
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
        <translation>Carpeta compartida no montada</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Solo subir los cambios a %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Sincronizar los archivos que otros comparten conmigo</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Hacer copia de los archivos temporales</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Los archivos que otros compartan con usted aparecerán en su propia carpeta en este equipo.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Portal web</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Cuota de almacenamiento agotada</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Carpeta personal desactivada</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jue</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sáb</translation>
    </message>
    <message>
        <source>Local folder not found</source>
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
        <translation>Unidad no conectada</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>¡Casi listo! Sus archivos estarán disponibles en breve en %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Introduzca 0 para no definir ningún límite.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Vie</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rol</translation>
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
        <translation>Mié</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>No acepto el contrato de licencia</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Error de inicialización</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>Es posible que la carpeta local se haya movido, renombrado o eliminado.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Cuota de la carpeta compartida agotada</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>La cuota de la carpeta compartida se ha agotado. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>No se encuentra la carpeta remota</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>Es posible que la carpeta remota se haya movido, renombrado o eliminado.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Permiso del enlace</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Próxima copia: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plan de copias</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Enlace para compartir</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Compartir enlace</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>Las tareas de copia de seguridad requieren %1 %2 o posterior en el hub. La versión instalada es %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Este equipo ya está vinculado a este hub con la misma cuenta.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
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
        <translation>Vinculando al hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos los archivos están al día.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Al día</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Enlace de la carpeta</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Fecha de caducidad</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Ya puede empezar a trabajar con %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Actualice %1 a la versión %2 o posterior.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Elija los archivos que la nueva tarea mantiene sincronizados.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Abrir el portal web de %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>La copia de seguridad se ha detenido porque esta versión de %1 es demasiado antigua para el hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Pida al administrador que actualice %1 en el hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>Se creará una carpeta llamada “%1” en esta ubicación.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>No se ha podido crear la carpeta “%1” en este equipo.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Vea todos sus archivos sin llenar el disco. Cada archivo se descarga cuando lo abre.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Abrir el portal web de Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Ya está instalada una versión más reciente de Tessaly. Quítela antes de instalar Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Página 1 del tutorial: le damos la bienvenida a %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Tipo de tarea</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Ya se pueden instalar las funciones de sincronización y copia de seguridad de Kelvane Quay Client. Haga clic en Instalar para comenzar o en Atrás para revisar la configuración.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Activar la sincronización bajo demanda</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>Falta la carpeta de sincronización bajo demanda “%1”. Vuelva a configurar la tarea.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Sincronización bajo demanda</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Pruebe a sincronizar bajo demanda</translation>
    </message>
    <message>
        <source>Comment</source>
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
        <translation>Escriba un nombre o una extensión de archivo, como “*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Roles y permisos</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Espacio liberado</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Ya disponible en este equipo</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>La sincronización bajo demanda requiere una carpeta de una unidad NTFS que no sea de red ni extraíble.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Mantenga los archivos en línea hasta que los necesite. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Cómo funciona la sincronización bajo demanda&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>No hay suficiente espacio en este disco. %1 necesita al menos %2 MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Sincronice su carpeta personal y las carpetas de equipo a las que tiene acceso.</translation>
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
        <translation>Todo lo que otros comparten con usted, en una sola carpeta</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Pida al administrador que le conceda permiso para usar el paquete.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Este cliente requiere %1 %2 o posterior en el hub. Pida al administrador que actualice el paquete.</translation>
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
        <translation>%1 no puede comunicarse con el paquete del hub. Actualice ambos a la última versión.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Solo usted puede abrir el enlace</translation>
    </message>
    <message>
        <source>Continue anyway</source>
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
        <translation>Iniciar la visita guiada</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
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
        <translation>Le damos la bienvenida a Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
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
        <translation>Se está procesando %1 archivo</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>%1 y el cliente tienen versiones distintas. Actualice ambos a la misma versión.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Archivos en proceso: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
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
        <translation>Su carpeta personal usa %1 de %2 y las carpetas compartidas usan %3 de %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
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
        <translation>Elija qué desea copiar</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>La copia de seguridad se ha detenido porque su cuenta se ha desactivado en el hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
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
        <translation>Cuenta desactivada</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Mostrar iconos en los archivos excluidos por un filtro</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>Dialog box</source>
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
        <translation>Ya no tiene permiso para acceder a la carpeta compartida “%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Procesando “%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>No se ha podido cargar la tarea.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>La carpeta “%1” no existe.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
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
        <translation>Copias de seguridad diarias: %1</translation>
    </message>
    <message>
        <source>times</source>
        <translation>veces</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Modo de copia</translation>
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
        <translation>Última copia: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Todos los días</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Copia de seguridad manual</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Una vez al día</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Copia de seguridad continua</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Copia de seguridad programada</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Definir el plan de copias</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Creando una instantánea...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>No se ha podido guardar el plan de copias. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Introduzca un tamaño entre 0 y %1 MB. Introduzca 0 para no definir ningún límite.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Mostrar la actividad de esta tarea</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Mostrar los elementos quitados</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Meses</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 de %2 en uso</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Tarea en segundo plano</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Ventana de configuración de filtros</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Introduzca una hora válida.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>No sincronizado: excluido por una regla del sistema</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sincronizaciones</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Modificados recientemente</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Hacer copia ahora</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Mayor que</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Seleccione una carpeta de este equipo</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Esta carpeta ya forma parte de una tarea de copia de seguridad de %1. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Kelvane Quay Client ya sincroniza esta carpeta, por lo que no se puede incluir en una copia de seguridad. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>ha respondido a su comentario en</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Ver el estado de sincronización</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Respuestas</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>No sincronizado</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>La versión de Tessaly Server del hub es demasiado antigua para %1. Pida al administrador que la actualice.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Sin conexión con el hub</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Uso compartido avanzado</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>No se ha podido guardar la configuración de uso compartido. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Activar el uso compartido avanzado</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Activar la protección de enlaces</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>se ha compartido con la configuración avanzada.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Uso compartido protegido</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Protección de enlaces</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>¿Seguro que desea quitar el enlace? No se podrá restaurar.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>¿Quitar este enlace?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Guarde los registros del cliente en un archivo que podrá enviar al soporte técnico.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Escriba una palabra clave</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Quitar enlace</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Solución de problemas</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Registre más detalles para ayudar al soporte técnico a encontrar la causa de un problema.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Exportar registros</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Archivo eliminado</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>El archivo exportado contiene:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Información sobre el sistema operativo de este equipo</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Registro avanzado</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Los registros avanzados ocupan más espacio en el disco y pueden ralentizar el cliente.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Declaración de privacidad</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Los registros y la configuración del cliente, sin contraseñas</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Activar el registro avanzado</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>No sincronizado: excluido por un filtro de la tarea</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>No sincronizado: sin permiso</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Términos del servicio</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Introduzca un tamaño inferior a %1 MB.</translation>
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
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
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
        <translation>El hub ya puede indexar toda su carpeta personal.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Ya puede sincronizar toda su carpeta personal con este equipo.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik desactivado</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>El hub está preparando su carpeta personal. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Archivo renombrado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” se ha actualizado</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
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
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete</source>
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
        <translation>No hay carpetas válidas</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Los archivos permanecen en el hub hasta que los abre. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Más información sobre la sincronización bajo demanda&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
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
