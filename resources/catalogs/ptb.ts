<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Connect through Ferrylink</source>
        <translation>Conectar pelo Ferrylink</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Ocorreram conflitos de arquivos. O arquivo foi renomeado para “%1”.</translation>
    </message>
    <message>
        <source>The value is invalid. Please check it and try again.</source>
        <translation>O valor não é válido. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>The network is not available. Please check your connection and try again.</source>
        <translation>A rede não está disponível. Verifique sua conexão e tente novamente.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Pasta local</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Vincular novamente</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Verificando seu nome de usuário e sua senha...</translation>
    </message>
    <message>
        <source>Connected successfully</source>
        <translation>Conexão estabelecida</translation>
    </message>
    <message>
        <source>The files in the two folders will be merged. Do you want to continue?</source>
        <translation>Os arquivos das duas pastas serão mesclados. Deseja continuar?</translation>
    </message>
    <message>
        <source>Starting up...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Please review the following settings before you finish.</source>
        <translation>Revise as configurações a seguir antes de concluir.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>The username or password is incorrect.</source>
        <translation>Nome de usuário ou senha incorretos.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>The folder is not empty</source>
        <translation>A pasta não está vazia</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Ferrylink ID</source>
        <translation>ID do Ferrylink</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Boas-vindas</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Arquivos atualizados recentemente</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Baixado</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Procurando alterações...</translation>
    </message>
    <message>
        <source>The connection to the hub was lost. Reconnecting...</source>
        <translation>A conexão com o hub foi perdida. Reconectando...</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Enviado</translation>
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
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexão direta</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Falha no login</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Detectando o tipo de conexão...</translation>
    </message>
    <message>
        <source>Ferrylink relay</source>
        <translation>Retransmissão do Ferrylink</translation>
    </message>
    <message>
        <source>The Ferrylink service is not responding. Please try again later.</source>
        <translation>O serviço Ferrylink não está respondendo. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Arquivos atualizados: %1</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Changes that you make on this computer will not be uploaded.</source>
        <translation>Você só tem acesso de leitura a esta pasta. As alterações feitas neste computador não serão enviadas.</translation>
    </message>
    <message>
        <source>Your storage quota on the hub is used up. Please free up some space and try again.</source>
        <translation>Sua cota de armazenamento no hub está esgotada. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexão</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Pasta somente leitura</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Change the local folder</source>
        <translation>Alterar a pasta local</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas compartilhadas</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub could not be verified.</source>
        <translation>Não foi possível verificar o certificado SSL do hub.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Não usar um servidor proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecione uma pasta</translation>
    </message>
    <message>
        <source>The connection to the Ferrylink control server failed. Please try again later.</source>
        <translation>Falha na conexão com o servidor de controle do Ferrylink. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to leave this page?</source>
        <translation>Suas alterações não foram salvas. Deseja sair desta página?</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Armazenamento cheio</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configurações de proxy</translation>
    </message>
    <message>
        <source>Synchronization could not be enabled for the shared folder.</source>
        <translation>Não foi possível ativar a sincronização da pasta compartilhada.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Please choose another one.</source>
        <translation>Esta pasta se sobrepõe a uma pasta que já está sincronizada. Escolha outra.</translation>
    </message>
    <message>
        <source>No more than %1 shared folders can be synced.</source>
        <translation>Não é possível sincronizar mais de %1 pastas compartilhadas.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando as configurações...</translation>
    </message>
    <message>
        <source>Please enter a port number from 1 to 65535.</source>
        <translation>Insira um número de porta de 1 a 65535.</translation>
    </message>
    <message>
        <source>Please enter the address and the port of the proxy server.</source>
        <translation>Insira o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Set up the proxy server manually</source>
        <translation>Configurar o servidor proxy manualmente</translation>
    </message>
    <message>
        <source>There are no changes to apply.</source>
        <translation>Não há alterações a aplicar.</translation>
    </message>
    <message>
        <source>Enable synchronization</source>
        <translation>Ativar sincronização</translation>
    </message>
    <message>
        <source>Shared folder name</source>
        <translation>Nome da pasta compartilhada</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configurações de rede</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>O servidor proxy exige login</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Algo deu errado</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Atualizando...</translation>
    </message>
    <message>
        <source>Encrypt data transmission with SSL</source>
        <translation>Criptografar a transmissão de dados com SSL</translation>
    </message>
    <message>
        <source>Hub name, IP address, or Ferrylink ID</source>
        <translation>Nome do hub, endereço IP ou ID do Ferrylink</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar ícones de status de sincronização nos arquivos e nas pastas</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>General options</source>
        <translation>Opções gerais</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the system tray</source>
        <translation>Usar um ícone em preto e branco na bandeja do sistema</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available to you. You can set it to sync with this computer.</source>
        <translation>A pasta compartilhada “%1” está disponível para você. Você pode configurá-la para sincronizar com este computador.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta compartilhada</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Verificando os dados...</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up the connection manually.</source>
        <translation>Falha na configuração automática. Configure a conexão manualmente.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Concluindo a configuração...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be synced.</source>
        <translation>Os arquivos e as pastas que correspondem a estas regras não serão sincronizados.</translation>
    </message>
    <message>
        <source>Installing the update...</source>
        <translation>Instalando a atualização...</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Extensões de arquivo</translation>
    </message>
    <message>
        <source>Folder on a mount point</source>
        <translation>Pasta em um ponto de montagem</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Progress: %1</source>
        <translation>Progresso: %1</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files on this computer and on the hub will be kept.</source>
        <translation>Parar de sincronizar “%1”? Os arquivos neste computador e no hub serão mantidos.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Não foi possível remover a pasta compartilhada da lista.</translation>
    </message>
    <message>
        <source>This setup key has already been used. Please request a new one from your administrator.</source>
        <translation>Esta chave de configuração já foi usada. Solicite uma nova ao seu administrador.</translation>
    </message>
    <message>
        <source>The new language takes effect after you restart the application.</source>
        <translation>O novo idioma entrará em vigor depois que você reiniciar o aplicativo.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Please free up some space and try again.</source>
        <translation>O disco deste computador está cheio. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Carregando a lista de pastas...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from the hub?</source>
        <translation>Tem certeza de que deseja desvincular este computador do hub?</translation>
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
        <translation>Enviando...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Syncing %1 files...</source>
        <translation>Sincronizando arquivos (%1)...</translation>
    </message>
    <message>
        <source>Downloading &quot;%1&quot;...</source>
        <translation>Baixando “%1”...</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Pastas a sincronizar</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configurações avançadas</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo do arquivo</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomes de arquivos ignorados</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Arquivos ignorados</translation>
    </message>
    <message>
        <source>The local database is damaged. Please unlink this computer from the hub and link it again.</source>
        <translation>O banco de dados local está danificado. Desvincule este computador do hub e vincule-o novamente.</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de arquivos</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Lista de itens ignorados</translation>
    </message>
    <message>
        <source>The folders that you cleared will be removed from this computer. They stay on the hub.</source>
        <translation>As pastas que você desmarcou serão removidas deste computador. Elas permanecem no hub.</translation>
    </message>
    <message>
        <source>Conflict handling</source>
        <translation>Tratamento de conflitos</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>The folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>A pasta é um ponto de montagem e não pode ser sincronizada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>The download of &quot;%1&quot; was canceled.</source>
        <translation>O download de “%1” foi cancelado.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>Synchronization has stopped because the disk of this computer is full.</source>
        <translation>A sincronização parou porque o disco deste computador está cheio.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because your storage quota on the hub is used up.</source>
        <translation>A sincronização parou porque sua cota de armazenamento no hub está esgotada.</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Vinculando...</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>Your account information could not be retrieved from the hub.</source>
        <translation>Não foi possível obter do hub as informações da sua conta.</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A conexão está instável</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obter link</translation>
    </message>
    <message>
        <source>Linking this computer to the hub...</source>
        <translation>Vinculando este computador ao hub...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Tentando sincronizar...</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Leitor</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Aviso de certificado</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Exclusion rules</source>
        <translation>Regras de itens ignorados</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>If you stop syncing this shared folder, later changes will not be transferred. The local files will be kept.</source>
        <translation>Se você parar de sincronizar esta pasta compartilhada, as alterações posteriores não serão transferidas. Os arquivos locais serão mantidos.</translation>
    </message>
    <message>
        <source>Enable SSL encryption</source>
        <translation>Ativar criptografia SSL</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to sync with the hub.</source>
        <translation>Selecione a pasta deste computador que você deseja sincronizar com o hub.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>foi compartilhado com você.</translation>
    </message>
    <message>
        <source>New share</source>
        <translation>Novo compartilhamento</translation>
    </message>
    <message>
        <source>Download completed</source>
        <translation>Download concluído</translation>
    </message>
    <message>
        <source>Download failed</source>
        <translation>Falha no download</translation>
    </message>
    <message>
        <source>Hub overview</source>
        <translation>Visão geral do hub</translation>
    </message>
    <message>
        <source>The hub at this address has changed. Please link this computer again.</source>
        <translation>O hub neste endereço mudou. Vincule este computador novamente.</translation>
    </message>
    <message>
        <source>Synchronization is paused.</source>
        <translation>A sincronização está em pausa.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not trusted.</source>
        <translation>O certificado SSL do hub não é confiável.</translation>
    </message>
    <message>
        <source>Synchronization is in progress.</source>
        <translation>A sincronização está em andamento.</translation>
    </message>
    <message>
        <source>The client is too old for the hub. Please update the client.</source>
        <translation>O cliente é antigo demais para o hub. Atualize o cliente.</translation>
    </message>
    <message>
        <source>This folder is already part of a Tessaly backup task. Please choose another folder.</source>
        <translation>Esta pasta já faz parte de uma tarefa de backup do Tessaly. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>This task is inactive because the hub cannot be reached.</source>
        <translation>Esta tarefa está inativa porque não é possível acessar o hub.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>The file cannot be downloaded. Please check your connection and your permissions.</source>
        <translation>Não é possível baixar o arquivo. Verifique sua conexão e suas permissões.</translation>
    </message>
    <message>
        <source>The version history of this file is not available.</source>
        <translation>O histórico de versões deste arquivo não está disponível.</translation>
    </message>
    <message>
        <source>A link cannot be created for this item.</source>
        <translation>Não é possível criar um link para este item.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ao clicar duas vezes no ícone da bandeja</translation>
    </message>
    <message>
        <source>The hub is indexing this folder. Please wait.</source>
        <translation>O hub está indexando esta pasta. Aguarde.</translation>
    </message>
    <message>
        <source>Initialization failed. Please restart the application.</source>
        <translation>Falha na inicialização. Reinicie o aplicativo.</translation>
    </message>
    <message>
        <source>Setup cannot replace files that other applications have open.</source>
        <translation>A Instalação não pode substituir arquivos abertos em outros aplicativos.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Leave the applications open. You will have to restart the computer afterward.</source>
        <translation>Manter os aplicativos abertos. Será necessário reiniciar o computador depois.</translation>
    </message>
    <message>
        <source>Puts back missing or damaged program files, shortcuts, and registry entries.</source>
        <translation>Restaura arquivos de programa, atalhos e entradas do Registro ausentes ou danificados.</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar o [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] will keep your files safe and in sync.</source>
        <translation>O [ProductName] manterá seus arquivos seguros e sincronizados.</translation>
    </message>
    <message>
        <source>Click Finish to close Setup.</source>
        <translation>Clique em Concluir para fechar a Instalação.</translation>
    </message>
    <message>
        <source>The drive that holds the local folder is not connected.</source>
        <translation>A unidade que contém a pasta local não está conectada.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparar o [ProductName]</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Ver versões anteriores</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>O que você deseja fazer?</translation>
    </message>
    <message>
        <source>[ProductName] is being installed on your computer.</source>
        <translation>O [ProductName] está sendo instalado no seu computador.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Somente download</translation>
    </message>
    <message>
        <source>An error occurred, and [ProductName] was not installed. All changes made by Setup were undone. You can run Setup again at any time.</source>
        <translation>Ocorreu um erro, e o [ProductName] não foi instalado. Todas as alterações feitas pela Instalação foram desfeitas. Você pode executar a Instalação novamente a qualquer momento.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Information about this computer and the hub that it is linked to.</source>
        <translation>Informações sobre este computador e o hub ao qual ele está vinculado.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Use this wizard to change, repair, or remove [ProductName]. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Use este assistente para alterar, reparar ou remover o [ProductName]. Clique em Avançar para continuar ou em Cancelar para sair da Instalação.</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Remover o [ProductName]</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licença</translation>
    </message>
    <message>
        <source>These applications have files open that [ProductName] Setup needs to replace:</source>
        <translation>Estes aplicativos têm arquivos abertos que a Instalação do [ProductName] precisa substituir:</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Atividade de sincronização</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Installing [ProductName]</source>
        <translation>Instalando o [ProductName]</translation>
    </message>
    <message>
        <source>The local folder is missing. It may have been moved, renamed, or deleted.</source>
        <translation>A pasta local não foi encontrada. Ela pode ter sido movida, renomeada ou excluída.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Deseja mesmo cancelar a instalação do [ProductName]?</translation>
    </message>
    <message>
        <source>Please read the agreement before you continue.</source>
        <translation>Leia o contrato antes de continuar.</translation>
    </message>
    <message>
        <source>Close the applications now and reopen them when Setup is done.</source>
        <translation>Fechar os aplicativos agora e reabri-los quando a Instalação terminar.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Arquivos em uso</translation>
    </message>
    <message>
        <source>Close the applications and click Retry. If you click Ignore, [ProductName] will be complete only after the next restart of the computer.</source>
        <translation>Feche os aplicativos e clique em Tentar novamente. Se você clicar em Ignorar, o [ProductName] só estará completo depois da próxima reinicialização do computador.</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Choose which features are installed and where.</source>
        <translation>Escolha quais recursos são instalados e onde.</translation>
    </message>
    <message>
        <source>[ProductName] is always installed with all its features.</source>
        <translation>O [ProductName] é sempre instalado com todos os recursos.</translation>
    </message>
    <message>
        <source>Change [ProductName]</source>
        <translation>Alterar o [ProductName]</translation>
    </message>
    <message>
        <source>You can change, repair, or remove the installed program.</source>
        <translation>Você pode alterar, reparar ou remover o programa instalado.</translation>
    </message>
    <message>
        <source>Removes the program and its settings from your computer.</source>
        <translation>Remove o programa e suas configurações do computador.</translation>
    </message>
    <message>
        <source>This may take several minutes.</source>
        <translation>Isso pode levar vários minutos.</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Pronto para instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Tessaly can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>O Tessaly já pode ser instalado. Clique em Instalar para começar ou em Voltar para verificar suas configurações.</translation>
    </message>
    <message>
        <source>Setup is about to remove the program.</source>
        <translation>A Instalação está prestes a remover o programa.</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Pronto para remover o [ProductName]</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer. Your synced files will be kept.</source>
        <translation>Clique em Remover para remover o [ProductName] deste computador. Seus arquivos sincronizados serão mantidos.</translation>
    </message>
    <message>
        <source>Setup is about to repair the program.</source>
        <translation>A Instalação está prestes a reparar o programa.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Pronto para reparar o [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to start, Back to choose another action, or Cancel to leave Setup.</source>
        <translation>Clique em Reparar para começar, em Voltar para escolher outra ação ou em Cancelar para sair da Instalação.</translation>
    </message>
    <message>
        <source>You left Setup before [ProductName] was installed. Nothing on your computer was changed. You can run Setup again at any time.</source>
        <translation>Você saiu da Instalação antes que o [ProductName] fosse instalado. Nada foi alterado no seu computador. Você pode executar a Instalação novamente a qualquer momento.</translation>
    </message>
    <message>
        <source>This wizard will install [ProductName] on your computer. Click Next to continue or Cancel to leave Setup.</source>
        <translation>Este assistente instalará o [ProductName] no seu computador. Clique em Avançar para continuar ou em Cancelar para sair da Instalação.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Welcome to [ProductName] Setup</source>
        <translation>Boas-vindas à Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>[ProductName] is now installed</source>
        <translation>O [ProductName] foi instalado</translation>
    </message>
    <message>
        <source>Setup of [ProductName] was canceled</source>
        <translation>A instalação do [ProductName] foi cancelada</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de downloads</translation>
    </message>
    <message>
        <source>Link to a new hub</source>
        <translation>Vincular a um novo hub</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed</source>
        <translation>Não foi possível instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Synchronization enabled</source>
        <translation>Sincronização ativada</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Adicionar tarefa</translation>
    </message>
    <message>
        <source>I accept the license agreement</source>
        <translation>Aceito o contrato de licença</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>Your files, up to date on every device.</source>
        <translation>Seus arquivos, atualizados em todos os dispositivos.</translation>
    </message>
    <message>
        <source>This is not the hub that %1 was linked to. Please link this computer again.</source>
        <translation>Este não é o hub ao qual o %1 estava vinculado. Vincule este computador novamente.</translation>
    </message>
    <message>
        <source>Sharing is disabled for your account.</source>
        <translation>O compartilhamento está desativado para a sua conta.</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; will stop, and its connection to the hub will be removed. The files on both sides will be kept.</source>
        <translation>A tarefa “%1” será interrompida, e a conexão dela com o hub será removida. Os arquivos dos dois lados serão mantidos.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir local do arquivo</translation>
    </message>
    <message>
        <source>The address of the file could not be retrieved from the hub.</source>
        <translation>Não foi possível obter do hub o endereço do arquivo.</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files are stored.</source>
        <translation>Escolha a pasta deste computador onde seus arquivos ficam armazenados.</translation>
    </message>
    <message>
        <source>The hub has changed</source>
        <translation>O hub mudou</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is not mounted on the hub.</source>
        <translation>A pasta compartilhada “%1” não está montada no hub.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>The volume of the remote folder is not mounted on the hub.</source>
        <translation>O volume da pasta remota não está montado no hub.</translation>
    </message>
    <message>
        <source>Folder location</source>
        <translation>Local da pasta</translation>
    </message>
    <message>
        <source>Sync to this computer</source>
        <translation>Sincronizar com este computador</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so some features may not be installed. Do you want to continue?</source>
        <translation>Você não fez login como administrador; por isso, alguns recursos podem não ser instalados. Deseja continuar?</translation>
    </message>
    <message>
        <source>Sync, share, and protect your files</source>
        <translation>Sincronize, compartilhe e proteja seus arquivos</translation>
    </message>
    <message>
        <source>File sharing through Ferrylink is disabled on the hub. Please contact your administrator.</source>
        <translation>O compartilhamento de arquivos pelo Ferrylink está desativado no hub. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Choose how you want to set up Tessaly.</source>
        <translation>Escolha como você deseja configurar o Tessaly.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Items %1 to %2 of %3</source>
        <translation>Itens %1 a %2 de %3</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendi</translation>
    </message>
    <message>
        <source>The item was deleted, or you no longer have permission to access it.</source>
        <translation>O item foi excluído ou você não tem mais permissão para acessá-lo.</translation>
    </message>
    <message>
        <source>Right-click a file or folder to share it, get a link, or browse its previous versions.</source>
        <translation>Clique com o botão direito em um arquivo ou uma pasta para compartilhar, obter um link ou ver as versões anteriores.</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Parar de sincronizar esta pasta</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Há %1 h</translation>
    </message>
    <message>
        <source>Choose a folder on the hub and a folder on this computer. Their contents will be kept identical.</source>
        <translation>Escolha uma pasta no hub e uma pasta neste computador. O conteúdo delas será mantido idêntico.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>This computer is already linked</source>
        <translation>Este computador já está vinculado</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renomeado</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Há %1 d</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Há %1 min</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Fevereiro</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Outubro</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Sincronizar esta pasta novamente</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Parar de sincronizar estas pastas</translation>
    </message>
    <message>
        <source>No history to show</source>
        <translation>Nenhum histórico para mostrar</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Sincronizar estas pastas novamente</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar para</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janeiro</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembro</translation>
    </message>
    <message>
        <source>Now syncing</source>
        <translation>Sincronizando agora</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Setembro</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julho</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junho</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Março</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezembro</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de arquivo</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuração avançada</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Start syncing in one step with the recommended settings.</source>
        <translation>Comece a sincronizar em uma única etapa com as configurações recomendadas.</translation>
    </message>
    <message>
        <source>Your home folder on the hub and the new folder on this computer are now kept identical.</source>
        <translation>Sua pasta pessoal no hub e a nova pasta neste computador agora são mantidas idênticas.</translation>
    </message>
    <message>
        <source>Setup is complete</source>
        <translation>A configuração está concluída</translation>
    </message>
    <message>
        <source>Put files into the synced folder, and they appear on the hub and on all your other computers.</source>
        <translation>Coloque arquivos na pasta sincronizada e eles aparecerão no hub e em todos os seus outros computadores.</translation>
    </message>
    <message>
        <source>Click the tray icon to see the sync status and the files that were changed last.</source>
        <translation>Clique no ícone da bandeja para ver o status da sincronização e os últimos arquivos alterados.</translation>
    </message>
    <message>
        <source>Setup mode</source>
        <translation>Modo de configuração</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Não, obrigado</translation>
    </message>
    <message>
        <source>Sync your files</source>
        <translation>Sincronize seus arquivos</translation>
    </message>
    <message>
        <source>Keep an eye on changes</source>
        <translation>Acompanhe as alterações</translation>
    </message>
    <message>
        <source>Find hubs on the local network</source>
        <translation>Encontrar hubs na rede local</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informações de status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Usuário: %1</translation>
    </message>
    <message>
        <source>This file does not belong to a sync task.</source>
        <translation>Este arquivo não pertence a nenhuma tarefa de sincronização.</translation>
    </message>
    <message>
        <source>Open main window</source>
        <translation>Abrir janela principal</translation>
    </message>
    <message>
        <source>Link this computer to another hub</source>
        <translation>Vincular este computador a outro hub</translation>
    </message>
    <message>
        <source>Sync another folder with this hub</source>
        <translation>Sincronizar outra pasta com este hub</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nova sincronização</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction, and the filters yourself.</source>
        <translation>Escolha você mesmo as pastas, a direção da sincronização e os filtros.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Os arquivos maiores que %1 MB não serão sincronizados.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Please choose another one.</source>
        <translation>Não é possível sincronizar esta pasta. Escolha outra.</translation>
    </message>
    <message>
        <source>Search the local network for hubs</source>
        <translation>Procurar hubs na rede local</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder. Files will be downloaded but not uploaded.</source>
        <translation>Você só tem acesso de leitura a esta pasta compartilhada. Os arquivos serão baixados, mas não enviados.</translation>
    </message>
    <message>
        <source>Find more guides in the &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutorials&lt;/a&gt;.</source>
        <translation>Encontre mais guias nos &lt;a href=&quot;https://help.kelvane.example/tutorials&quot;&gt;tutoriais&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This folder is inside or above a folder that is already synced. Please choose another folder.</source>
        <translation>Esta pasta contém uma pasta já sincronizada ou está dentro de uma. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>This computer is already linked to the hub &quot;%1&quot;.</source>
        <translation>Este computador já está vinculado ao hub “%1”.</translation>
    </message>
    <message>
        <source>A folder named &quot;Tessaly&quot; will be created at this location.</source>
        <translation>Uma pasta chamada “Tessaly” será criada neste local.</translation>
    </message>
    <message>
        <source>If you continue, the existing link will be replaced.</source>
        <translation>Se você continuar, o vínculo existente será substituído.</translation>
    </message>
    <message>
        <source>The hub is offline.</source>
        <translation>O hub está offline.</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Pasta pessoal</translation>
    </message>
    <message>
        <source>A link cannot be created because Norvik is not available on the hub.</source>
        <translation>Não é possível criar um link porque o Norvik não está disponível no hub.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. Please confirm the new certificate.</source>
        <translation>O certificado SSL do hub mudou. Confirme o novo certificado.</translation>
    </message>
    <message>
        <source>Set the folders to sync</source>
        <translation>Definir as pastas a sincronizar</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions on the remote folder.</source>
        <translation>A direção da sincronização não corresponde às suas permissões na pasta remota.</translation>
    </message>
    <message>
        <source>The IP address of this computer is blocked by the hub. Please contact your administrator.</source>
        <translation>O endereço IP deste computador está bloqueado pelo hub. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Quando um arquivo for alterado nos dois lados:</translation>
    </message>
    <message>
        <source>Welcome to the setup wizard</source>
        <translation>Boas-vindas ao assistente de configuração</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Muitas tentativas malsucedidas. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the connection to the hub failed.</source>
        <translation>Não é possível verificar a pasta porque a conexão com o hub falhou.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the hub.</source>
        <translation>A pasta compartilhada não existe mais no hub.</translation>
    </message>
    <message>
        <source>Sync folders</source>
        <translation>Pastas de sincronização</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Manter a versão modificada por último</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Bidirecional</translation>
    </message>
    <message>
        <source>Choose which folder on the hub to sync with which folder on this computer.</source>
        <translation>Escolha qual pasta do hub sincronizar com qual pasta deste computador.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta compartilhada</translation>
    </message>
    <message>
        <source>requested access to the Bureau template</source>
        <translation>solicitou acesso ao modelo do Bureau</translation>
    </message>
    <message>
        <source>The folder is already used by another sync task on this computer.</source>
        <translation>A pasta já é usada por outra tarefa de sincronização neste computador.</translation>
    </message>
    <message>
        <source>%1 requested access to the Bureau template &quot;%2&quot;.</source>
        <translation>%1 solicitou acesso ao modelo do Bureau “%2”.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub has changed.</source>
        <translation>Não é possível verificar a pasta porque o certificado SSL do hub mudou.</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Insira o código de verificação.</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Please try again.</source>
        <translation>O código de verificação não está correto. Tente novamente.</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Insira o código de verificação de 6 dígitos</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Your storage quota on the volume of this folder is used up.</source>
        <translation>Sua cota de armazenamento no volume desta pasta está esgotada.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because the SSL certificate of the hub is not trusted.</source>
        <translation>Não é possível verificar a pasta porque o certificado SSL do hub não é confiável.</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a system error on the hub.</source>
        <translation>Não é possível verificar a pasta devido a um erro de sistema no hub.</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronização</translation>
    </message>
    <message>
        <source>Always keep the version on the hub</source>
        <translation>Sempre manter a versão do hub</translation>
    </message>
    <message>
        <source>Rename conflicting files and keep both versions</source>
        <translation>Renomear os arquivos em conflito e manter as duas versões</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Bureau template &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acesso (%3) ao modelo do Bureau “%4”.</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged. No file will be deleted.</source>
        <translation>O conteúdo das duas pastas será mesclado. Nenhum arquivo será excluído.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>List of connections</source>
        <translation>Lista de conexões</translation>
    </message>
    <message>
        <source>Connected hub</source>
        <translation>Hub conectado</translation>
    </message>
    <message>
        <source>Copy the sharing link</source>
        <translation>Copiar o link de compartilhamento</translation>
    </message>
    <message>
        <source>Remove this user&apos;s permission</source>
        <translation>Remover a permissão deste usuário</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Grupo: %1</translation>
    </message>
    <message>
        <source>Open the web portal of Tessaly</source>
        <translation>Abrir o portal da Web do Tessaly</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Linked hub</source>
        <translation>Hub vinculado</translation>
    </message>
    <message>
        <source>Sync task for the files that others share with you</source>
        <translation>Tarefa de sincronização dos arquivos que outras pessoas compartilham com você</translation>
    </message>
    <message>
        <source>Recently changed files tab</source>
        <translation>Guia de arquivos alterados recentemente</translation>
    </message>
    <message>
        <source>Tutorial page 2: sync your files</source>
        <translation>Página 2 do tutorial: sincronize seus arquivos</translation>
    </message>
    <message>
        <source>Tutorial page 3: keep an eye on changes</source>
        <translation>Página 3 do tutorial: acompanhe as alterações</translation>
    </message>
    <message>
        <source>Tutorial page 4: share with others</source>
        <translation>Página 4 do tutorial: compartilhe com outras pessoas</translation>
    </message>
    <message>
        <source>Choose a sharing permission</source>
        <translation>Escolha uma permissão de compartilhamento</translation>
    </message>
    <message>
        <source>Tessaly keeps the files on your computers and on the hub identical.</source>
        <translation>O Tessaly mantém idênticos os arquivos dos seus computadores e do hub.</translation>
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
        <translation>Abrir minha pasta</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta compartilhada não encontrada</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>The hub requires 2-factor authentication. Please set it up in the web portal and sign in again.</source>
        <translation>O hub exige autenticação de dois fatores. Configure-a no portal da Web e faça login novamente.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>A cota da pasta compartilhada está esgotada.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please check the highlighted fields.</source>
        <translation>Alguns campos contêm valores inválidos. Verifique os campos destacados.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Something went wrong in one of your tasks. Open the main window for details.</source>
        <translation>Algo deu errado em uma das suas tarefas. Abra a janela principal para ver os detalhes.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in Tessaly Server are listed here.</source>
        <translation>Somente as pastas compartilhadas que foram ativadas no Tessaly Server são listadas aqui.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Você não tem permissão para acessar esta pasta.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expira após</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Nenhuma ação disponível</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Please sign in again.</source>
        <translation>Nome de usuário ou senha incorretos. Faça login novamente.</translation>
    </message>
    <message>
        <source>Enter a full file name, such as &quot;desktop.ini&quot;, and press Enter.</source>
        <translation>Insira um nome de arquivo completo, como “desktop.ini”, e pressione Enter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Please choose another name.</source>
        <translation>Já existe uma pasta com este nome. Escolha outro nome.</translation>
    </message>
    <message>
        <source>Compare all file attributes when looking for changes</source>
        <translation>Comparar todos os atributos dos arquivos ao procurar alterações</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Válido até</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Este campo não pode ficar em branco.</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restringir acesso</translation>
    </message>
    <message>
        <source>Show sync actions in the context menu of files and folders</source>
        <translation>Mostrar ações de sincronização no menu de contexto de arquivos e pastas</translation>
    </message>
    <message>
        <source>The user home service is disabled on the hub. Please contact your administrator.</source>
        <translation>O serviço de pastas pessoais de usuários está desativado no hub. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>The update failed. Please &lt;a href=&quot;%1&quot;&gt;download the latest version&lt;/a&gt; and install it manually.</source>
        <translation>A atualização falhou. &lt;a href=&quot;%1&quot;&gt;Baixe a versão mais recente&lt;/a&gt; e instale-a manualmente.</translation>
    </message>
    <message>
        <source>Apply and copy link</source>
        <translation>Aplicar e copiar link</translation>
    </message>
    <message>
        <source>Limit the number of visits</source>
        <translation>Limitar o número de acessos</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Válido a partir de</translation>
    </message>
    <message>
        <source>The hub requires a newer version of the client. Do you want to update now?</source>
        <translation>O hub exige uma versão mais recente do cliente. Deseja atualizar agora?</translation>
    </message>
    <message>
        <source>The remote folder is on a volume that is not mounted.</source>
        <translation>A pasta remota está em um volume que não está montado.</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>Mostrar informações</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Adicionar um nome de arquivo</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Pasta neste computador</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Escolha um idioma</translation>
    </message>
    <message>
        <source>List of the file versions that are being downloaded</source>
        <translation>Lista das versões do arquivo que estão sendo baixadas</translation>
    </message>
    <message>
        <source>Customize the validity period</source>
        <translation>Personalizar o período de validade</translation>
    </message>
    <message>
        <source>Show the tutorial of %1</source>
        <translation>Mostrar o tutorial do %1</translation>
    </message>
    <message>
        <source>Change the sync folder</source>
        <translation>Alterar a pasta de sincronização</translation>
    </message>
    <message>
        <source>Linked sync folder</source>
        <translation>Pasta de sincronização vinculada</translation>
    </message>
    <message>
        <source>Refresh the history</source>
        <translation>Atualizar o histórico</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>Enter a keyword to search the history</source>
        <translation>Insira uma palavra-chave para pesquisar no histórico</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Adicionar uma pasta</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Próximo mês</translation>
    </message>
    <message>
        <source>Choose a type of event</source>
        <translation>Escolha um tipo de evento</translation>
    </message>
    <message>
        <source>Sync task &quot;%1&quot;</source>
        <translation>Sincronização “%1”</translation>
    </message>
    <message>
        <source>Folder on the hub</source>
        <translation>Pasta no hub</translation>
    </message>
    <message>
        <source>Settings window</source>
        <translation>Janela de configurações</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Fechar o tutorial</translation>
    </message>
    <message>
        <source>Cancel this download</source>
        <translation>Cancelar este download</translation>
    </message>
    <message>
        <source>Remove this download from the list</source>
        <translation>Remover este download da lista</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it in the web portal and sign in again.</source>
        <translation>Sua senha expirou. Altere-a no portal da Web e faça login novamente.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renomeado neste computador</translation>
    </message>
    <message>
        <source>Renamed on the hub</source>
        <translation>Renomeado no hub</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Insira no máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>This is not the account that the task was created with. Please sign in as &quot;%1&quot;.</source>
        <translation>Esta não é a conta com a qual a tarefa foi criada. Faça login como “%1”.</translation>
    </message>
    <message>
        <source>Hub information</source>
        <translation>Informações do hub</translation>
    </message>
    <message>
        <source>The Ferrylink relay service is disabled on the hub.</source>
        <translation>O serviço de retransmissão do Ferrylink está desativado no hub.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded. Please try again later.</source>
        <translation>Não foi possível baixar “%1”. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Signing in to the hub failed. Please check your username and password.</source>
        <translation>Falha no login no hub. Verifique seu nome de usuário e sua senha.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>commented on</source>
        <translation>comentou em</translation>
    </message>
    <message>
        <source>Open in web portal</source>
        <translation>Abrir no portal da Web</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Open synced folder</source>
        <translation>Abrir pasta sincronizada</translation>
    </message>
    <message>
        <source>You only have read access to this folder. %1 will not upload your changes.</source>
        <translation>Você só tem acesso de leitura a esta pasta. O %1 não enviará suas alterações.</translation>
    </message>
    <message>
        <source>%1 is now linked to the hub and will keep your files in sync.</source>
        <translation>O %1 agora está vinculado ao hub e manterá seus arquivos sincronizados.</translation>
    </message>
    <message>
        <source>Setup has collected all the information that it needs.</source>
        <translation>A Instalação reuniu todas as informações de que precisa.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>O %1 está pronto.</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>O %1 já está em execução.</translation>
    </message>
    <message>
        <source>%1 keeps the files on your computers and on the hub identical.</source>
        <translation>O %1 mantém idênticos os arquivos dos seus computadores e do hub.</translation>
    </message>
    <message>
        <source>Preview and comment</source>
        <translation>Pré-visualizar e comentar</translation>
    </message>
    <message>
        <source>%1 could not be updated. Please try again later.</source>
        <translation>Não foi possível atualizar o %1. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>A newer version of Kelvane Quay Client is already installed. Setup will now exit.</source>
        <translation>Uma versão mais recente do Kelvane Quay Client já está instalada. A Instalação será encerrada.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has changed. If you did not expect this, please contact your administrator before you continue.</source>
        <translation>O certificado SSL do hub mudou. Se você não esperava por isso, entre em contato com o administrador antes de continuar.</translation>
    </message>
    <message>
        <source>Choose what to sync with the new task</source>
        <translation>Escolha o que sincronizar com a nova tarefa</translation>
    </message>
    <message>
        <source>The folder belongs to Dropbox. Syncing it with %1 as well may cause file conflicts.</source>
        <translation>A pasta pertence ao Dropbox. Sincronizá-la também com o %1 pode causar conflitos de arquivos.</translation>
    </message>
    <message>
        <source>Your changes will be lost. Do you want to continue?</source>
        <translation>Suas alterações serão perdidas. Deseja continuar?</translation>
    </message>
    <message>
        <source>Tutorial of %1</source>
        <translation>Tutorial do %1</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or %1 is not running on the hub.</source>
        <translation>O ID do Ferrylink não existe ou o %1 não está em execução no hub.</translation>
    </message>
    <message>
        <source>Only shared folders that have been enabled in %1 are listed here.</source>
        <translation>Somente as pastas compartilhadas que foram ativadas no %1 são listadas aqui.</translation>
    </message>
    <message>
        <source>Start %1 when I sign in to this computer</source>
        <translation>Iniciar o %1 quando eu fizer login neste computador</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>O %1 está sendo inicializado...</translation>
    </message>
    <message>
        <source>The hub and %1 cannot communicate. Please update both to the latest version.</source>
        <translation>O hub e o %1 não conseguem se comunicar. Atualize os dois para a versão mais recente.</translation>
    </message>
    <message>
        <source>This version of %1 is too old for the hub. Please update it.</source>
        <translation>Esta versão do %1 é antiga demais para o hub. Atualize-a.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versões incompatíveis</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that %1 can continue.</source>
        <translation>O disco está cheio. Libere espaço neste computador para que o %1 possa continuar.</translation>
    </message>
    <message>
        <source>%1 has encountered a problem. Please restart it.</source>
        <translation>O %1 encontrou um problema. Reinicie-o.</translation>
    </message>
    <message>
        <source>Notifications tab</source>
        <translation>Guia de notificações</translation>
    </message>
    <message>
        <source>The folder is not empty. %1 will merge its files with those on the hub.</source>
        <translation>A pasta não está vazia. O %1 mesclará os arquivos dela com os do hub.</translation>
    </message>
    <message>
        <source>Only download changes from %1</source>
        <translation>Somente baixar alterações do %1</translation>
    </message>
    <message>
        <source>%1 is set up. Open your folder to start working.</source>
        <translation>O %1 está configurado. Abra sua pasta para começar a trabalhar.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to Tessaly</source>
        <translation>Página 1 do tutorial: boas-vindas ao Tessaly</translation>
    </message>
    <message>
        <source>This version of Kelvane Quay Client is already installed. Do you want to install it again?</source>
        <translation>Esta versão do Kelvane Quay Client já está instalada. Deseja instalá-la novamente?</translation>
    </message>
    <message>
        <source>Set up %1 to sync and back up the files on this computer.</source>
        <translation>Configure o %1 para sincronizar e fazer backup dos arquivos deste computador.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in Tessaly Server.</source>
        <translation>Quase pronto! Em breve seus arquivos estarão disponíveis no Tessaly Server.</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available on this computer.</source>
        <translation>Quase pronto! Em breve seus arquivos estarão disponíveis neste computador.</translation>
    </message>
    <message>
        <source>The operation failed. Please try again.</source>
        <translation>A operação falhou. Tente novamente.</translation>
    </message>
    <message>
        <source>A folder named &quot;Kelvane Quay&quot; will be created at this location.</source>
        <translation>Uma pasta chamada “Kelvane Quay” será criada neste local.</translation>
    </message>
    <message>
        <source>This version of Tessaly is already installed. Do you want to install it again?</source>
        <translation>Esta versão do Tessaly já está instalada. Deseja instalá-la novamente?</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Setup will now exit.</source>
        <translation>Uma versão mais recente do Tessaly já está instalada. A Instalação será encerrada.</translation>
    </message>
    <message>
        <source>Tutorial of Tessaly</source>
        <translation>Tutorial do Tessaly</translation>
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
        <translation>A pasta pertence ao Dropbox. Sincronizá-la também com o Tessaly pode causar conflitos de arquivos.</translation>
    </message>
    <message>
        <source>Tessaly is ready.</source>
        <translation>O Tessaly está pronto.</translation>
    </message>
    <message>
        <source>Tessaly is initializing...</source>
        <translation>O Tessaly está sendo inicializado...</translation>
    </message>
    <message>
        <source>The Ferrylink ID does not exist, or Tessaly Server is not running on the hub.</source>
        <translation>O ID do Ferrylink não existe ou o Tessaly Server não está em execução no hub.</translation>
    </message>
    <message>
        <source>This version of Tessaly is too old for the hub. Please update it.</source>
        <translation>Esta versão do Tessaly é antiga demais para o hub. Atualize-a.</translation>
    </message>
    <message>
        <source>Sharing permission</source>
        <translation>Permissão de compartilhamento</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for this client. Please ask your administrator to update it.</source>
        <translation>O Tessaly Server no hub é antigo demais para este cliente. Peça ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>Show the tutorial of Tessaly</source>
        <translation>Mostrar o tutorial do Tessaly</translation>
    </message>
    <message>
        <source>Start Tessaly when I sign in to this computer</source>
        <translation>Iniciar o Tessaly quando eu fizer login neste computador</translation>
    </message>
    <message>
        <source>Tessaly has encountered a problem. Please restart it.</source>
        <translation>O Tessaly encontrou um problema. Reinicie-o.</translation>
    </message>
    <message>
        <source>Setup is complete. Your files are now being synced.</source>
        <translation>A configuração está concluída. Seus arquivos já estão sendo sincronizados.</translation>
    </message>
    <message>
        <source>Click the tray icon at any time to see the status and change the settings.</source>
        <translation>Clique no ícone da bandeja a qualquer momento para ver o status e alterar as configurações.</translation>
    </message>
    <message>
        <source>The folder is not empty. Tessaly will merge its files with those on the hub.</source>
        <translation>A pasta não está vazia. O Tessaly mesclará os arquivos dela com os do hub.</translation>
    </message>
    <message>
        <source>Tessaly is already running.</source>
        <translation>O Tessaly já está em execução.</translation>
    </message>
    <message>
        <source>Tessaly is set up. Open your folder to start working.</source>
        <translation>O Tessaly está configurado. Abra sua pasta para começar a trabalhar.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Tessaly will not upload your changes.</source>
        <translation>Você só tem acesso de leitura a esta pasta. O Tessaly não enviará suas alterações.</translation>
    </message>
    <message>
        <source>Open Tessaly</source>
        <translation>Abrir o Tessaly</translation>
    </message>
    <message>
        <source>Version %1 is available. Click here to update.</source>
        <translation>A versão %1 está disponível. Clique aqui para atualizar.</translation>
    </message>
    <message>
        <source>To use selective sync, please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Para usar a sincronização seletiva, peça ao administrador que atualize o Tessaly Server no hub.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Tessaly needs at least %1 MB.</source>
        <translation>Não há espaço suficiente neste disco. O Tessaly precisa de pelo menos %1 MB.</translation>
    </message>
    <message>
        <source>Tessaly is now linked to the hub and will keep your files in sync.</source>
        <translation>O Tessaly agora está vinculado ao hub e manterá seus arquivos sincronizados.</translation>
    </message>
    <message>
        <source>Tessaly can be linked to the same hub only once with the same account.</source>
        <translation>O Tessaly só pode ser vinculado ao mesmo hub uma vez com a mesma conta.</translation>
    </message>
    <message>
        <source>Set up Tessaly to sync the files on this computer.</source>
        <translation>Configure o Tessaly para sincronizar os arquivos deste computador.</translation>
    </message>
    <message>
        <source>New to Tessaly? Read the &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Primeira vez no Tessaly? Leia primeiro o &lt;a href=&quot;https://help.kelvane.example/tessaly/start&quot;&gt;guia de início rápido&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Can comment</source>
        <translation>Pode comentar</translation>
    </message>
    <message>
        <source>Hub users with the link can view</source>
        <translation>Usuários do hub com o link podem ver</translation>
    </message>
    <message>
        <source>Hub users with the link can edit</source>
        <translation>Usuários do hub com o link podem editar</translation>
    </message>
    <message>
        <source>Only people who have been invited can open the link</source>
        <translation>Somente as pessoas convidadas podem abrir o link</translation>
    </message>
    <message>
        <source>Anyone with the link can comment</source>
        <translation>Qualquer pessoa com o link pode comentar</translation>
    </message>
    <message>
        <source>Anyone with the link can view</source>
        <translation>Qualquer pessoa com o link pode ver</translation>
    </message>
    <message>
        <source>Hub users with the link can comment</source>
        <translation>Usuários do hub com o link podem comentar</translation>
    </message>
    <message>
        <source>Anyone with the link can edit</source>
        <translation>Qualquer pessoa com o link pode editar</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Pode ver</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Pode gerenciar</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Pode editar</translation>
    </message>
    <message>
        <source>The web portal cannot be opened. Please check your connection to the hub.</source>
        <translation>Não é possível abrir o portal da Web. Verifique sua conexão com o hub.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Convidar pessoas</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Sem acesso</translation>
    </message>
    <message>
        <source>There are no shared folders.</source>
        <translation>Não há pastas compartilhadas.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Public sharing is disabled on the hub.</source>
        <translation>O compartilhamento público está desativado no hub.</translation>
    </message>
    <message>
        <source>Sharing is disabled. Please contact your administrator.</source>
        <translation>O compartilhamento está desativado. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Grida spreadsheet &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acesso (%3) à planilha do Grida “%4”.</translation>
    </message>
    <message>
        <source>People who have the link will no longer be able to open the file.</source>
        <translation>As pessoas que têm o link não poderão mais abrir o arquivo.</translation>
    </message>
    <message>
        <source>%1 shared the Grida spreadsheet &quot;%2&quot; with you.</source>
        <translation>%1 compartilhou a planilha do Grida “%2” com você.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Sem dados</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartilhar</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>O arquivo ou a pasta não existe.</translation>
    </message>
    <message>
        <source>You do not have permission to perform this action.</source>
        <translation>Você não tem permissão para executar esta ação.</translation>
    </message>
    <message>
        <source>Weekends</source>
        <translation>Fins de semana</translation>
    </message>
    <message>
        <source>Hub users</source>
        <translation>Usuários do hub</translation>
    </message>
    <message>
        <source>My Quay</source>
        <translation>My Quay</translation>
    </message>
    <message>
        <source>Invited people only</source>
        <translation>Somente pessoas convidadas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Qualquer pessoa com o link</translation>
    </message>
    <message>
        <source>Set an expiration date</source>
        <translation>Definir uma data de expiração</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Usuários e grupos</translation>
    </message>
    <message>
        <source>Kelvane Quay</source>
        <translation>Kelvane Quay</translation>
    </message>
    <message>
        <source>Show the synced folders in the sidebar of the file manager</source>
        <translation>Mostrar as pastas sincronizadas na barra lateral do gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Work in the synced folder as in any other folder. Your changes are transferred to the hub at once.</source>
        <translation>Trabalhe na pasta sincronizada como em qualquer outra pasta. Suas alterações são transferidas para o hub imediatamente.</translation>
    </message>
    <message>
        <source>Your computer</source>
        <translation>Seu computador</translation>
    </message>
    <message>
        <source>All your files, everywhere</source>
        <translation>Todos os seus arquivos, em qualquer lugar</translation>
    </message>
    <message>
        <source>Save space with on-demand sync</source>
        <translation>Economize espaço com a sincronização sob demanda</translation>
    </message>
    <message>
        <source>All files show up on your computer, but they only take up space once you open them.</source>
        <translation>Todos os arquivos aparecem no seu computador, mas só ocupam espaço depois que você os abre.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Somente online</translation>
    </message>
    <message>
        <source>Available on this computer</source>
        <translation>Disponível neste computador</translation>
    </message>
    <message>
        <source>mentioned you in</source>
        <translation>mencionou você em</translation>
    </message>
    <message>
        <source>requested access to</source>
        <translation>solicitou acesso a</translation>
    </message>
    <message>
        <source>%1 shared the file &quot;%2&quot; with you.</source>
        <translation>%1 compartilhou o arquivo “%2” com você.</translation>
    </message>
    <message>
        <source>shared with you</source>
        <translation>compartilhou com você</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Compartilhamentos</translation>
    </message>
    <message>
        <source>Access request</source>
        <translation>Solicitação de acesso</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentários</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Compartilhados comigo</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Menções</translation>
    </message>
    <message>
        <source>Upload only</source>
        <translation>Somente envio</translation>
    </message>
    <message>
        <source>Keep files on the hub when they are deleted from this computer</source>
        <translation>Manter os arquivos no hub quando forem excluídos deste computador</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>O download de “%1” foi concluído.</translation>
    </message>
    <message>
        <source>Your files are up to date on all your devices.</source>
        <translation>Seus arquivos estão atualizados em todos os seus dispositivos.</translation>
    </message>
    <message>
        <source>Your files are also available in the &lt;a href=&quot;%1&quot;&gt;web portal&lt;/a&gt;.</source>
        <translation>Seus arquivos também estão disponíveis no &lt;a href=&quot;%1&quot;&gt;portal da Web&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Parabéns!</translation>
    </message>
    <message>
        <source>You are ready to work with Tessaly.</source>
        <translation>Tudo pronto para você trabalhar com o Tessaly.</translation>
    </message>
    <message>
        <source>Enable later</source>
        <translation>Ativar mais tarde</translation>
    </message>
    <message>
        <source>Enable now</source>
        <translation>Ativar agora</translation>
    </message>
    <message>
        <source>Files shared with you</source>
        <translation>Arquivos compartilhados com você</translation>
    </message>
    <message>
        <source>Create a sync task</source>
        <translation>Criar uma tarefa de sincronização</translation>
    </message>
    <message>
        <source>My files and team folders</source>
        <translation>Meus arquivos e pastas de equipe</translation>
    </message>
    <message>
        <source>Files shared with me</source>
        <translation>Arquivos compartilhados comigo</translation>
    </message>
    <message>
        <source>This is not the hub that Tessaly was linked to. Please link this computer again.</source>
        <translation>Este não é o hub ao qual o Tessaly estava vinculado. Vincule este computador novamente.</translation>
    </message>
    <message>
        <source>The hub and Tessaly cannot communicate. Please update both to the latest version.</source>
        <translation>O hub e o Tessaly não conseguem se comunicar. Atualize os dois para a versão mais recente.</translation>
    </message>
    <message>
        <source>Never miss a change</source>
        <translation>Não perca nenhuma alteração</translation>
    </message>
    <message>
        <source>The disk is full. Free up some space on this computer so that Tessaly can continue.</source>
        <translation>O disco está cheio. Libere espaço neste computador para que o Tessaly possa continuar.</translation>
    </message>
    <message>
        <source>Team folder</source>
        <translation>Pasta de equipe</translation>
    </message>
    <message>
        <source>Only download changes from Tessaly Server</source>
        <translation>Somente baixar alterações do Tessaly Server</translation>
    </message>
    <message>
        <source>Tessaly could not be updated. Please try again later.</source>
        <translation>Não foi possível atualizar o Tessaly. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The tray icon shows what is being synced and tells you when others share files with you or comment on them.</source>
        <translation>O ícone da bandeja mostra o que está sendo sincronizado e avisa quando outras pessoas compartilham arquivos com você ou os comentam.</translation>
    </message>
    <message>
        <source>Share in seconds</source>
        <translation>Compartilhe em segundos</translation>
    </message>
    <message>
        <source>Right-click a file or folder, create a link, and decide who may open it and for how long.</source>
        <translation>Clique com o botão direito em um arquivo ou uma pasta, crie um link e decida quem pode abri-lo e por quanto tempo.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Pictra presentation &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acesso (%3) à apresentação do Pictra “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the folder &quot;%2&quot; with you.</source>
        <translation>%1 compartilhou a pasta “%2” com você.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the folder &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acesso (%3) à pasta “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the file &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acesso (%3) ao arquivo “%4”.</translation>
    </message>
    <message>
        <source>%1 (%2) requests %3 access to the Folia document &quot;%4&quot;.</source>
        <translation>%1 (%2) solicita acesso (%3) ao documento do Folia “%4”.</translation>
    </message>
    <message>
        <source>%1 shared the Folia document &quot;%2&quot; with you.</source>
        <translation>%1 compartilhou o documento do Folia “%2” com você.</translation>
    </message>
    <message>
        <source>%1 shared the Pictra presentation &quot;%2&quot; with you.</source>
        <translation>%1 compartilhou a apresentação do Pictra “%2” com você.</translation>
    </message>
    <message>
        <source>Privacy settings</source>
        <translation>Configurações de privacidade</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Proteger com senha</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Dias úteis</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created for the files that others share with you.</source>
        <translation>Uma pasta chamada “%1” será criada para os arquivos que outras pessoas compartilham com você.</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Sempre manter neste computador</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Qualquer</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Sincronização</translation>
    </message>
    <message>
        <source>Files are backed up as soon as they change.</source>
        <translation>O backup dos arquivos é feito assim que eles são alterados.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Files are backed up at the times that you set.</source>
        <translation>O backup dos arquivos é feito nos horários que você definir.</translation>
    </message>
    <message>
        <source>The backup is complete. The computer will shut down in %1 seconds.</source>
        <translation>O backup está concluído. O computador será desligado em %1 s.</translation>
    </message>
    <message>
        <source>Backup task</source>
        <translation>Tarefa de backup</translation>
    </message>
    <message>
        <source>Run on the following days</source>
        <translation>Fazer backup nos seguintes dias</translation>
    </message>
    <message>
        <source>Connect to the hub</source>
        <translation>Conectar ao hub</translation>
    </message>
    <message>
        <source>Protect the files on this computer by backing them up to the hub.</source>
        <translation>Proteja os arquivos deste computador fazendo backup deles no hub.</translation>
    </message>
    <message>
        <source>Manual: the backup runs only when you start it.</source>
        <translation>Manual: o backup só é executado quando você o inicia.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de início</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Last end time</source>
        <translation>Hora do último término</translation>
    </message>
    <message>
        <source>Last run time</source>
        <translation>Hora da última execução</translation>
    </message>
    <message>
        <source>Commenter</source>
        <translation>Comentador</translation>
    </message>
    <message>
        <source>Change who can open this link</source>
        <translation>Alterar quem pode abrir este link</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Último envio: %1</translation>
    </message>
    <message>
        <source>Task settings</source>
        <translation>Configurações da tarefa</translation>
    </message>
    <message>
        <source>Continuous: files are backed up whenever they change.</source>
        <translation>Contínuo: o backup dos arquivos é feito sempre que eles mudam.</translation>
    </message>
    <message>
        <source>Open in file manager</source>
        <translation>Abrir no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>The time is on the following day.</source>
        <translation>O horário é no dia seguinte.</translation>
    </message>
    <message>
        <source>The sharing information could not be retrieved.</source>
        <translation>Não foi possível obter as informações de compartilhamento.</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino do backup</translation>
    </message>
    <message>
        <source>Files are backed up when you click Back up now.</source>
        <translation>O backup dos arquivos é feito quando você clica em Fazer backup agora.</translation>
    </message>
    <message>
        <source>Allow downloads</source>
        <translation>Permitir downloads</translation>
    </message>
    <message>
        <source>Scheduled: the backup runs at the times that you set.</source>
        <translation>Agendado: o backup é executado nos horários que você definir.</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Agendamento do backup</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Gerente</translation>
    </message>
    <message>
        <source>Previewer</source>
        <translation>Pré-visualizador</translation>
    </message>
    <message>
        <source>Create a backup task</source>
        <translation>Criar uma tarefa de backup</translation>
    </message>
    <message>
        <source>Files whose names or extensions are listed here will be skipped.</source>
        <translation>Os arquivos cujos nomes ou extensões estão listados aqui serão ignorados.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Sincronizar arquivos temporários</translation>
    </message>
    <message>
        <source>Copy files from this computer to the hub, at once or on a schedule.</source>
        <translation>Copie arquivos deste computador para o hub, imediatamente ou em horários agendados.</translation>
    </message>
    <message>
        <source>Choose when the files are backed up.</source>
        <translation>Escolha quando será feito o backup dos arquivos.</translation>
    </message>
    <message>
        <source>Please select at least one folder to back up.</source>
        <translation>Selecione pelo menos uma pasta para fazer backup.</translation>
    </message>
    <message>
        <source>%1 files (%2) backed up to &quot;%3&quot; on %4</source>
        <translation>Arquivos com backup em “%3”: %1 (%2), %4</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Start backing up</source>
        <translation>Iniciar backup</translation>
    </message>
    <message>
        <source>Files and folders that match these rules will not be backed up.</source>
        <translation>Não será feito backup dos arquivos e das pastas que correspondem a estas regras.</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nenhuma pasta selecionada</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Liberar espaço</translation>
    </message>
    <message>
        <source>Stop keeping on this computer</source>
        <translation>Não manter mais neste computador</translation>
    </message>
    <message>
        <source>Selected days</source>
        <translation>Dias selecionados</translation>
    </message>
    <message>
        <source>When the backup is done</source>
        <translation>Quando o backup terminar</translation>
    </message>
    <message>
        <source>Select a folder on &quot;%1&quot;.</source>
        <translation>Selecione uma pasta em “%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the hub.</source>
        <translation>Selecione uma pasta no hub.</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>A cada</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a period</source>
        <translation>Ignorar arquivos e pastas cujos nomes começam com ponto</translation>
    </message>
    <message>
        <source>Start syncing</source>
        <translation>Iniciar sincronização</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub could not be verified.</source>
        <translation>O backup parou porque não foi possível verificar o certificado SSL do hub.</translation>
    </message>
    <message>
        <source>The task could not be registered on the hub. Please try again.</source>
        <translation>Não foi possível registrar a tarefa no hub. Tente novamente.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub at this address has changed.</source>
        <translation>O backup parou porque o hub neste endereço mudou.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub and the client cannot communicate. Please update both.</source>
        <translation>O backup parou porque o hub e o cliente não conseguem se comunicar. Atualize os dois.</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of Tessaly is too old for the hub.</source>
        <translation>O backup parou porque esta versão do Tessaly é antiga demais para o hub.</translation>
    </message>
    <message>
        <source>Please update Tessaly to version %1 or later.</source>
        <translation>Atualize o Tessaly para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Please check your username and password, then sign in again.</source>
        <translation>Verifique seu nome de usuário e sua senha e faça login novamente.</translation>
    </message>
    <message>
        <source>Please check that the hub is turned on and that this computer is connected to the network.</source>
        <translation>Verifique se o hub está ligado e se este computador está conectado à rede.</translation>
    </message>
    <message>
        <source>The hub has blocked the IP address of this computer. Please contact your administrator.</source>
        <translation>O hub bloqueou o endereço IP deste computador. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub is not valid. Please contact your administrator.</source>
        <translation>O certificado SSL do hub não é válido. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update Tessaly Server on the hub.</source>
        <translation>Peça ao administrador que atualize o Tessaly Server no hub.</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Nenhum backup feito ainda</translation>
    </message>
    <message>
        <source>Keep a folder on this computer and a folder on the hub identical.</source>
        <translation>Mantenha idênticas uma pasta deste computador e uma pasta do hub.</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;https://help.kelvane.example/client&quot;&gt;Saiba mais&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Choose the days and times at which the backup runs.</source>
        <translation>Escolha os dias e os horários em que o backup é executado.</translation>
    </message>
    <message>
        <source>Run missed backups as soon as possible</source>
        <translation>Executar assim que possível os backups não realizados</translation>
    </message>
    <message>
        <source>Choose a folder on each side.</source>
        <translation>Escolha uma pasta em cada lado.</translation>
    </message>
    <message>
        <source>Enter the address of the hub and your account.</source>
        <translation>Insira o endereço do hub e sua conta.</translation>
    </message>
    <message>
        <source>Please check the settings of the new task.</source>
        <translation>Verifique as configurações da nova tarefa.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source>The backup has stopped because signing in to the hub failed.</source>
        <translation>O backup parou porque o login no hub falhou.</translation>
    </message>
    <message>
        <source>The version of the package on the hub is not supported. Please ask your administrator to update it.</source>
        <translation>A versão do pacote no hub não é compatível. Peça ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>The backup has stopped because the hub has blocked the IP address of this computer.</source>
        <translation>O backup parou porque o hub bloqueou o endereço IP deste computador.</translation>
    </message>
    <message>
        <source>The backup has stopped because the package on the hub is too old for this client.</source>
        <translation>O backup parou porque o pacote no hub é antigo demais para este cliente.</translation>
    </message>
    <message>
        <source>Some of the selected folders no longer exist. Clear them to continue.</source>
        <translation>Algumas das pastas selecionadas não existem mais. Desmarque-as para continuar.</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Direção da sincronização incompatível</translation>
    </message>
    <message>
        <source>Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>O Kelvane Quay Client já pode ser instalado. Clique em Instalar para começar ou em Voltar para verificar suas configurações.</translation>
    </message>
    <message>
        <source>Choose a type of task</source>
        <translation>Escolha um tipo de tarefa</translation>
    </message>
    <message>
        <source>Work with the same files on all your computers.</source>
        <translation>Trabalhe com os mesmos arquivos em todos os seus computadores.</translation>
    </message>
    <message>
        <source>Keep a safe copy of your files on the hub.</source>
        <translation>Mantenha uma cópia segura dos seus arquivos no hub.</translation>
    </message>
    <message>
        <source>Sign in to the hub that will store your backups.</source>
        <translation>Faça login no hub que armazenará seus backups.</translation>
    </message>
    <message>
        <source>Set up your sync folders</source>
        <translation>Configure suas pastas de sincronização</translation>
    </message>
    <message>
        <source>Please free up some space on the disk of this computer.</source>
        <translation>Libere espaço no disco deste computador.</translation>
    </message>
    <message>
        <source>Choose the folder on the hub that you want to sync.</source>
        <translation>Escolha a pasta do hub que você deseja sincronizar.</translation>
    </message>
    <message>
        <source>Files are downloaded only when you open them, which saves space on this computer.</source>
        <translation>Os arquivos só são baixados quando você os abre, o que economiza espaço neste computador.</translation>
    </message>
    <message>
        <source>On-demand sync is not available for the selected folder or the operating system of this computer.</source>
        <translation>A sincronização sob demanda não está disponível para a pasta selecionada ou o sistema operacional deste computador.</translation>
    </message>
    <message>
        <source>Shared folder not mounted</source>
        <translation>Pasta compartilhada não montada</translation>
    </message>
    <message>
        <source>Only upload changes to %1</source>
        <translation>Somente enviar alterações para o %1</translation>
    </message>
    <message>
        <source>Sync the files that others share with me</source>
        <translation>Sincronizar os arquivos que outras pessoas compartilham comigo</translation>
    </message>
    <message>
        <source>Back up temporary files</source>
        <translation>Fazer backup dos arquivos temporários</translation>
    </message>
    <message>
        <source>Files that others share with you will appear in a folder of their own on this computer.</source>
        <translation>Os arquivos que outras pessoas compartilham com você aparecerão em uma pasta própria neste computador.</translation>
    </message>
    <message>
        <source>Web portal</source>
        <translation>Portal da Web</translation>
    </message>
    <message>
        <source>Storage quota used up</source>
        <translation>Cota de armazenamento esgotada</translation>
    </message>
    <message>
        <source>Home folder disabled</source>
        <translation>Pasta pessoal desativada</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Seg</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sáb</translation>
    </message>
    <message>
        <source>Local folder not found</source>
        <translation>Pasta local não encontrada</translation>
    </message>
    <message>
        <source>The task could not be started. Please restart the application.</source>
        <translation>Não foi possível iniciar a tarefa. Reinicie o aplicativo.</translation>
    </message>
    <message>
        <source>The shared folder of this task is not mounted on the hub. Please contact your administrator.</source>
        <translation>A pasta compartilhada desta tarefa não está montada no hub. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder of this task.</source>
        <translation>Você não tem mais permissão para acessar a pasta compartilhada desta tarefa.</translation>
    </message>
    <message>
        <source>Drive not connected</source>
        <translation>Unidade não conectada</translation>
    </message>
    <message>
        <source>Almost done! Your files will soon be available in %1.</source>
        <translation>Quase pronto! Em breve seus arquivos estarão disponíveis no %1.</translation>
    </message>
    <message>
        <source>Enter 0 to set no limit.</source>
        <translation>Insira 0 para não definir limite.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Sex</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Função</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dom</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Ter</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Qua</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Sexta-feira</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
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
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Quarta-feira</translation>
    </message>
    <message>
        <source>I do not accept the license agreement</source>
        <translation>Não aceito o contrato de licença</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco cheio</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Falha na inicialização</translation>
    </message>
    <message>
        <source>The local folder may have been moved, renamed, or deleted.</source>
        <translation>A pasta local pode ter sido movida, renomeada ou excluída.</translation>
    </message>
    <message>
        <source>Shared folder quota used up</source>
        <translation>Cota da pasta compartilhada esgotada</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up. Please contact your administrator.</source>
        <translation>A cota da pasta compartilhada está esgotada. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Remote folder not found</source>
        <translation>Pasta remota não encontrada</translation>
    </message>
    <message>
        <source>The remote folder may have been moved, renamed, or deleted.</source>
        <translation>A pasta remota pode ter sido movida, renomeada ou excluída.</translation>
    </message>
    <message>
        <source>Link permission</source>
        <translation>Permissão do link</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Próximo backup: %1</translation>
    </message>
    <message>
        <source>Backup plan</source>
        <translation>Plano de backup</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Link de compartilhamento</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Compartilhar link</translation>
    </message>
    <message>
        <source>Backup tasks require %1 %2 or later on the hub. The installed version is %3.</source>
        <translation>As tarefas de backup exigem o %1 %2 ou posterior no hub. A versão instalada é %3.</translation>
    </message>
    <message>
        <source>This computer is already linked to this hub with the same account.</source>
        <translation>Este computador já está vinculado a este hub com a mesma conta.</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Carregando as pastas compartilhadas...</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected at once. They will be synced with a delay.</source>
        <translation>As alterações em unidades de rede não podem ser detectadas imediatamente. Elas serão sincronizadas com atraso.</translation>
    </message>
    <message>
        <source>Welcome to Tessaly!</source>
        <translation>Boas-vindas ao Tessaly!</translation>
    </message>
    <message>
        <source>Click the Tessaly icon in the system tray to change the settings.</source>
        <translation>Clique no ícone do Tessaly na bandeja do sistema para alterar as configurações.</translation>
    </message>
    <message>
        <source>Click the icon of %1 in the system tray to change the settings.</source>
        <translation>Clique no ícone do %1 na bandeja do sistema para alterar as configurações.</translation>
    </message>
    <message>
        <source>Synchronization has stopped because a volume of the hub is full.</source>
        <translation>A sincronização parou porque um volume do hub está cheio.</translation>
    </message>
    <message>
        <source>The package on the hub is too old for the client.</source>
        <translation>O pacote no hub é antigo demais para o cliente.</translation>
    </message>
    <message>
        <source>Linking to the hub...</source>
        <translation>Vinculando ao hub...</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos os arquivos estão atualizados.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualizar</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Folder link</source>
        <translation>Link da pasta</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Data de expiração</translation>
    </message>
    <message>
        <source>You are ready to work with %1.</source>
        <translation>Tudo pronto para você trabalhar com o %1.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Kelvane Quay Server</source>
        <translation>Kelvane Quay Server</translation>
    </message>
    <message>
        <source>Please update %1 to version %2 or later.</source>
        <translation>Atualize o %1 para a versão %2 ou posterior.</translation>
    </message>
    <message>
        <source>Choose the files that the new task keeps in sync.</source>
        <translation>Escolha os arquivos que a nova tarefa mantém sincronizados.</translation>
    </message>
    <message>
        <source>Open the web portal of %1</source>
        <translation>Abrir o portal da Web do %1</translation>
    </message>
    <message>
        <source>Kelvane Quay Client</source>
        <translation>Kelvane Quay Client</translation>
    </message>
    <message>
        <source>The backup has stopped because this version of %1 is too old for the hub.</source>
        <translation>O backup parou porque esta versão do %1 é antiga demais para o hub.</translation>
    </message>
    <message>
        <source>Please ask your administrator to update %1 on the hub.</source>
        <translation>Peça ao administrador que atualize o %1 no hub.</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; will be created at this location.</source>
        <translation>Uma pasta chamada “%1” será criada neste local.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created on this computer.</source>
        <translation>Não foi possível criar a pasta “%1” neste computador.</translation>
    </message>
    <message>
        <source>See all your files without filling up the disk. Each file is downloaded when you open it.</source>
        <translation>Veja todos os seus arquivos sem encher o disco. Cada arquivo é baixado quando você o abre.</translation>
    </message>
    <message>
        <source>Open the Kelvane Quay web portal</source>
        <translation>Abrir o portal da Web do Kelvane Quay</translation>
    </message>
    <message>
        <source>A newer version of Tessaly is already installed. Please remove it before you install Kelvane Quay Client.</source>
        <translation>Uma versão mais recente do Tessaly já está instalada. Remova-a antes de instalar o Kelvane Quay Client.</translation>
    </message>
    <message>
        <source>Tutorial page 1: welcome to %1</source>
        <translation>Página 1 do tutorial: boas-vindas ao %1</translation>
    </message>
    <message>
        <source>Task type</source>
        <translation>Tipo de tarefa</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>The sync and backup features of Kelvane Quay Client can now be installed. Click Install to start or Back to check your settings.</source>
        <translation>Os recursos de sincronização e backup do Kelvane Quay Client já podem ser instalados. Clique em Instalar para começar ou em Voltar para verificar suas configurações.</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Ativar a sincronização sob demanda</translation>
    </message>
    <message>
        <source>The on-demand sync folder &quot;%1&quot; is missing. Please set up the task again.</source>
        <translation>A pasta de sincronização sob demanda “%1” não foi encontrada. Configure a tarefa novamente.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Sincronização sob demanda</translation>
    </message>
    <message>
        <source>Try on-demand sync</source>
        <translation>Teste a sincronização sob demanda</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentar</translation>
    </message>
    <message>
        <source>The volume of the hub is full. Please contact your administrator.</source>
        <translation>O volume do hub está cheio. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Please enter a valid date.</source>
        <translation>Insira uma data válida.</translation>
    </message>
    <message>
        <source>The end time must be later than the start time.</source>
        <translation>A hora de término deve ser posterior à hora de início.</translation>
    </message>
    <message>
        <source>Enter a file name or extension, such as &quot;*.tmp&quot;</source>
        <translation>Insira um nome ou uma extensão de arquivo, como “*.tmp”</translation>
    </message>
    <message>
        <source>Roles and permissions</source>
        <translation>Funções e permissões</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Space freed up</source>
        <translation>Espaço liberado</translation>
    </message>
    <message>
        <source>Made available on this computer</source>
        <translation>Disponibilizado neste computador</translation>
    </message>
    <message>
        <source>On-demand sync requires a folder on an NTFS drive that is not a network or removable drive.</source>
        <translation>A sincronização sob demanda exige uma pasta em uma unidade NTFS que não seja de rede nem removível.</translation>
    </message>
    <message>
        <source>Keep files online until you need them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;How on-demand sync works&lt;/a&gt;</source>
        <translation>Mantenha os arquivos online até precisar deles. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Como funciona a sincronização sob demanda&lt;/a&gt;</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. %1 needs at least %2 MB.</source>
        <translation>Não há espaço suficiente neste disco. O %1 precisa de pelo menos %2 MB.</translation>
    </message>
    <message>
        <source>Sync your home folder and the team folders that you have access to.</source>
        <translation>Sincronize sua pasta pessoal e as pastas de equipe às quais você tem acesso.</translation>
    </message>
    <message>
        <source>If you turn this off, the folder with the files that others share with you will be removed from this computer. Do you want to continue?</source>
        <translation>Se você desativar esta opção, a pasta com os arquivos que outras pessoas compartilham com você será removida deste computador. Deseja continuar?</translation>
    </message>
    <message>
        <source>Sync the files that others share with you, so that you can open them like your own.</source>
        <translation>Sincronize os arquivos que outras pessoas compartilham com você para poder abri-los como se fossem seus.</translation>
    </message>
    <message>
        <source>Enable on-demand sync for this task</source>
        <translation>Ativar a sincronização sob demanda para esta tarefa</translation>
    </message>
    <message>
        <source>The backup has stopped because your account is not allowed to use the package on the hub.</source>
        <translation>O backup parou porque sua conta não tem permissão para usar o pacote no hub.</translation>
    </message>
    <message>
        <source>Sync the files and folders that other users share with you.</source>
        <translation>Sincronize os arquivos e as pastas que outros usuários compartilham com você.</translation>
    </message>
    <message>
        <source>Your disk is filling up. Enable on-demand sync to free up space.</source>
        <translation>Seu disco está ficando cheio. Ative a sincronização sob demanda para liberar espaço.</translation>
    </message>
    <message>
        <source>Everything that others share with you, in one folder</source>
        <translation>Tudo o que outras pessoas compartilham com você, em uma só pasta</translation>
    </message>
    <message>
        <source>Please ask your administrator to give you permission to use the package.</source>
        <translation>Peça ao administrador que lhe dê permissão para usar o pacote.</translation>
    </message>
    <message>
        <source>This client requires %1 %2 or later on the hub. Please ask your administrator to update it.</source>
        <translation>Este cliente exige o %1 %2 ou posterior no hub. Peça ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>You do not have permission to use the package on the hub. Please contact your administrator.</source>
        <translation>Você não tem permissão para usar o pacote no hub. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>The destination is already used by another backup task. Please choose another folder.</source>
        <translation>O destino já é usado por outra tarefa de backup. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>%1 cannot communicate with the package on the hub. Please update both to the latest version.</source>
        <translation>O %1 não consegue se comunicar com o pacote no hub. Atualize os dois para a versão mais recente.</translation>
    </message>
    <message>
        <source>Only you can open the link</source>
        <translation>Somente você pode abrir o link</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>Tessaly keeps your files identical on all your computers and protects them on the hub.</source>
        <translation>O Tessaly mantém seus arquivos idênticos em todos os seus computadores e os protege no hub.</translation>
    </message>
    <message>
        <source>Share a file with a link. You decide who can view or edit it.</source>
        <translation>Compartilhe um arquivo com um link. Você decide quem pode vê-lo ou editá-lo.</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Iniciar o tour</translation>
    </message>
    <message>
        <source>New to %1? Read the &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;quick start guide&lt;/a&gt; first.</source>
        <translation>Primeira vez no %1? Leia primeiro o &lt;a href=&quot;https://help.kelvane.example/quay/start&quot;&gt;guia de início rápido&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Insira seu nome de usuário.</translation>
    </message>
    <message>
        <source>All files of this task will be downloaded to this computer. Do you want to continue?</source>
        <translation>Todos os arquivos desta tarefa serão baixados para este computador. Deseja continuar?</translation>
    </message>
    <message>
        <source>Welcome to Tessaly</source>
        <translation>Boas-vindas ao Tessaly</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Compartilhe com outras pessoas</translation>
    </message>
    <message>
        <source>Open the history to find out who changed a file and when.</source>
        <translation>Abra o histórico para descobrir quem alterou um arquivo e quando.</translation>
    </message>
    <message>
        <source>Keep your files identical on all your computers by syncing them with the hub.</source>
        <translation>Mantenha seus arquivos idênticos em todos os seus computadores sincronizando-os com o hub.</translation>
    </message>
    <message>
        <source>%1 file is being processed</source>
        <translation>%1 arquivo está sendo processado</translation>
    </message>
    <message>
        <source>%1 and the client have different versions. Please update both to the same version.</source>
        <translation>O %1 e o cliente têm versões diferentes. Atualize os dois para a mesma versão.</translation>
    </message>
    <message>
        <source>Files being processed: %1</source>
        <translation>Arquivos em processamento: %1</translation>
    </message>
    <message>
        <source>%1 files are being processed</source>
        <translation>%1 arquivos estão sendo processados</translation>
    </message>
    <message>
        <source>The volume of this folder does not support quotas.</source>
        <translation>O volume desta pasta não é compatível com cotas.</translation>
    </message>
    <message>
        <source>Your personal storage quota is used up.</source>
        <translation>Sua cota de armazenamento pessoal está esgotada.</translation>
    </message>
    <message>
        <source>Your home folder uses %1 of %2, and the shared folders use %3 of %4.</source>
        <translation>Sua pasta pessoal usa %1 de %2, e as pastas compartilhadas usam %3 de %4.</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; is used up.</source>
        <translation>A cota da pasta compartilhada “%1” está esgotada.</translation>
    </message>
    <message>
        <source>Some folders have reached their quotas.</source>
        <translation>Algumas pastas atingiram as respectivas cotas.</translation>
    </message>
    <message>
        <source>The version cannot be restored because the file is excluded by a filter.</source>
        <translation>Não é possível restaurar a versão porque o arquivo é ignorado por um filtro.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and where to store the backups.</source>
        <translation>Escolha as pastas para fazer backup e onde armazenar os backups.</translation>
    </message>
    <message>
        <source>Choose what to back up</source>
        <translation>Escolha o que incluir no backup</translation>
    </message>
    <message>
        <source>The backup has stopped because your account has been disabled on the hub.</source>
        <translation>O backup parou porque sua conta foi desativada no hub.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Please ask your administrator to enable your account.</source>
        <translation>Peça ao administrador que ative sua conta.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub. Please contact your administrator.</source>
        <translation>Sua conta foi desativada no hub. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Account disabled</source>
        <translation>Conta desativada</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded by a filter</source>
        <translation>Mostrar ícones nos arquivos ignorados por um filtro</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>All tasks with this hub will be removed from this computer. The files will be kept. Do you want to continue?</source>
        <translation>Todas as tarefas com este hub serão removidas deste computador. Os arquivos serão mantidos. Deseja continuar?</translation>
    </message>
    <message>
        <source>The backup failed. Please try again.</source>
        <translation>O backup falhou. Tente novamente.</translation>
    </message>
    <message>
        <source>The task could not be created. Please try again.</source>
        <translation>Não foi possível criar a tarefa. Tente novamente.</translation>
    </message>
    <message>
        <source>You no longer have permission to access the shared folder &quot;%1&quot;.</source>
        <translation>Você não tem mais permissão para acessar a pasta compartilhada “%1”.</translation>
    </message>
    <message>
        <source>Processing &quot;%1&quot;...</source>
        <translation>Processando “%1”...</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dias</translation>
    </message>
    <message>
        <source>The task could not be loaded.</source>
        <translation>Não foi possível carregar a tarefa.</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operação</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>A pasta “%1” não existe.</translation>
    </message>
    <message>
        <source>Shut down the computer</source>
        <translation>Desligar o computador</translation>
    </message>
    <message>
        <source>You do not have permission to shut down this computer automatically.</source>
        <translation>Você não tem permissão para desligar este computador automaticamente.</translation>
    </message>
    <message>
        <source>The backup was canceled.</source>
        <translation>O backup foi cancelado.</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>O backup está concluído.</translation>
    </message>
    <message>
        <source>Back up %1 times a day</source>
        <translation>Fazer backup %1 vezes por dia</translation>
    </message>
    <message>
        <source>times</source>
        <translation>vezes</translation>
    </message>
    <message>
        <source>Backup mode</source>
        <translation>Modo de backup</translation>
    </message>
    <message>
        <source>Do you want to start the backup now?</source>
        <translation>Deseja iniciar o backup agora?</translation>
    </message>
    <message>
        <source>If this computer is turned off or asleep at the scheduled time, the backup starts as soon as it is running again.</source>
        <translation>Se este computador estiver desligado ou em suspensão no horário agendado, o backup começará assim que ele voltar a funcionar.</translation>
    </message>
    <message>
        <source>Please select at least one day of the week.</source>
        <translation>Selecione pelo menos um dia da semana.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Último backup: %1</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Todos os dias</translation>
    </message>
    <message>
        <source>Manual backup</source>
        <translation>Backup manual</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Uma vez por dia</translation>
    </message>
    <message>
        <source>Continuous backup</source>
        <translation>Backup contínuo</translation>
    </message>
    <message>
        <source>Scheduled backup</source>
        <translation>Backup agendado</translation>
    </message>
    <message>
        <source>Set the backup plan</source>
        <translation>Definir o plano de backup</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Criando um instantâneo...</translation>
    </message>
    <message>
        <source>The backup plan could not be saved. Please try again.</source>
        <translation>Não foi possível salvar o plano de backup. Tente novamente.</translation>
    </message>
    <message>
        <source>Enter a size from 0 to %1 MB. Enter 0 to set no limit.</source>
        <translation>Insira um tamanho de 0 a %1 MB. Insira 0 para não definir limite.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Show the activity of this task</source>
        <translation>Mostrar a atividade desta tarefa</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Show removed items</source>
        <translation>Mostrar itens removidos</translation>
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
        <translation>%1 de %2 em uso</translation>
    </message>
    <message>
        <source>Background task</source>
        <translation>Tarefa em segundo plano</translation>
    </message>
    <message>
        <source>Filter settings window</source>
        <translation>Janela de configurações de filtros</translation>
    </message>
    <message>
        <source>Please enter a valid time.</source>
        <translation>Insira uma hora válida.</translation>
    </message>
    <message>
        <source>Not synced: excluded by a system rule</source>
        <translation>Não sincronizado: ignorado por uma regra do sistema</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexão</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Tarefas de backup</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sincronizações</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Alterados recentemente</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Fazer backup agora</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
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
        <translation>Maior que</translation>
    </message>
    <message>
        <source>Select a folder on this computer</source>
        <translation>Selecione uma pasta neste computador</translation>
    </message>
    <message>
        <source>This folder is already part of a backup task of %1. Please choose another folder.</source>
        <translation>Esta pasta já faz parte de uma tarefa de backup do %1. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>This folder is already synced by Kelvane Quay Client and cannot be backed up as well. Please choose another folder.</source>
        <translation>Esta pasta já é sincronizada pelo Kelvane Quay Client e não pode também ser incluída em um backup. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>replied to your comment on</source>
        <translation>respondeu ao seu comentário em</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Abrir status da sincronização</translation>
    </message>
    <message>
        <source>Replies</source>
        <translation>Respostas</translation>
    </message>
    <message>
        <source>Not synced</source>
        <translation>Não sincronizado</translation>
    </message>
    <message>
        <source>Tessaly Server on the hub is too old for %1. Please ask your administrator to update it.</source>
        <translation>O Tessaly Server no hub é antigo demais para o %1. Peça ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>No connection to the hub</source>
        <translation>Sem conexão com o hub</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Advanced sharing</source>
        <translation>Compartilhamento avançado</translation>
    </message>
    <message>
        <source>The sharing settings could not be saved. Please try again.</source>
        <translation>Não foi possível salvar as configurações de compartilhamento. Tente novamente.</translation>
    </message>
    <message>
        <source>Enable advanced sharing</source>
        <translation>Ativar compartilhamento avançado</translation>
    </message>
    <message>
        <source>Enable link protection</source>
        <translation>Ativar proteção de link</translation>
    </message>
    <message>
        <source>is now shared with advanced settings.</source>
        <translation>agora é compartilhado com configurações avançadas.</translation>
    </message>
    <message>
        <source>Protected sharing</source>
        <translation>Compartilhamento protegido</translation>
    </message>
    <message>
        <source>Link protection</source>
        <translation>Proteção de link</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the link? It cannot be restored.</source>
        <translation>Tem certeza de que deseja remover o link? Ele não pode ser restaurado.</translation>
    </message>
    <message>
        <source>Remove this link?</source>
        <translation>Remover este link?</translation>
    </message>
    <message>
        <source>Save the logs of the client to a file that you can send to technical support.</source>
        <translation>Salve os logs do cliente em um arquivo que você pode enviar ao suporte técnico.</translation>
    </message>
    <message>
        <source>Enter a keyword</source>
        <translation>Insira uma palavra-chave</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Remover link</translation>
    </message>
    <message>
        <source>Troubleshooting</source>
        <translation>Solução de problemas</translation>
    </message>
    <message>
        <source>Record more details in the logs to help technical support find the cause of a problem.</source>
        <translation>Registre mais detalhes nos logs para ajudar o suporte técnico a encontrar a causa de um problema.</translation>
    </message>
    <message>
        <source>Export logs</source>
        <translation>Exportar logs</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Arquivo excluído</translation>
    </message>
    <message>
        <source>The exported file contains:</source>
        <translation>O arquivo exportado contém:</translation>
    </message>
    <message>
        <source>Information about the operating system of this computer</source>
        <translation>Informações sobre o sistema operacional deste computador</translation>
    </message>
    <message>
        <source>Advanced logging</source>
        <translation>Logs avançados</translation>
    </message>
    <message>
        <source>Advanced logs take up more space on the disk and may slow down the client.</source>
        <translation>Os logs avançados ocupam mais espaço no disco e podem deixar o cliente mais lento.</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Declaração de privacidade</translation>
    </message>
    <message>
        <source>The logs and settings of the client, without passwords</source>
        <translation>Os logs e as configurações do cliente, sem senhas</translation>
    </message>
    <message>
        <source>Turn on advanced logging</source>
        <translation>Ativar logs avançados</translation>
    </message>
    <message>
        <source>Not synced: excluded by a filter of the task</source>
        <translation>Não sincronizado: ignorado por um filtro da tarefa</translation>
    </message>
    <message>
        <source>Not synced: no permission</source>
        <translation>Não sincronizado: sem permissão</translation>
    </message>
    <message>
        <source>Terms of service</source>
        <translation>Termos de serviço</translation>
    </message>
    <message>
        <source>Please enter a size of less than %1 MB.</source>
        <translation>Insira um tamanho inferior a %1 MB.</translation>
    </message>
    <message>
        <source>This folder is already part of another backup task. Please choose another folder.</source>
        <translation>Esta pasta já faz parte de outra tarefa de backup. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>The task has stopped because of an unexpected error. Please restart the application.</source>
        <translation>A tarefa parou devido a um erro inesperado. Reinicie o aplicativo.</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Este arquivo não tem versões anteriores.</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled for this task.</source>
        <translation>Não foi possível ativar a sincronização sob demanda para esta tarefa.</translation>
    </message>
    <message>
        <source>The connection to the hub failed. Please check the address and your network.</source>
        <translation>A conexão com o hub falhou. Verifique o endereço e sua rede.</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>File added</source>
        <translation>Arquivo adicionado</translation>
    </message>
    <message>
        <source>The name cannot start or end with a space.</source>
        <translation>O nome não pode começar nem terminar com um espaço.</translation>
    </message>
    <message>
        <source>The backup has stopped because the SSL certificate of the hub has changed.</source>
        <translation>O backup parou porque o certificado SSL do hub mudou.</translation>
    </message>
    <message>
        <source>The SSL certificate of the hub has expired. Please contact your administrator.</source>
        <translation>O certificado SSL do hub expirou. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>The hub is now able to index your entire home folder.</source>
        <translation>Agora o hub pode indexar toda a sua pasta pessoal.</translation>
    </message>
    <message>
        <source>You can now sync your entire home folder with this computer.</source>
        <translation>Agora você pode sincronizar toda a sua pasta pessoal com este computador.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Norvik disabled</source>
        <translation>Norvik desativado</translation>
    </message>
    <message>
        <source>The hub is preparing your home folder. Please try again later.</source>
        <translation>O hub está preparando sua pasta pessoal. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Arquivo renomeado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” foi atualizado</translation>
    </message>
    <message>
        <source>The name cannot contain any of the following characters: / : * ? &lt; &gt; |</source>
        <translation>O nome não pode conter nenhum dos seguintes caracteres: / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Norvik is disabled on the hub. Please contact your administrator.</source>
        <translation>O Norvik está desativado no hub. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the hub, so the folder cannot be checked.</source>
        <translation>Sua conta foi desativada no hub; por isso, não é possível verificar a pasta.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>A task with this name already exists.</source>
        <translation>Já existe uma tarefa com este nome.</translation>
    </message>
    <message>
        <source>None of the selected folders can be used. Please choose another folder.</source>
        <translation>Nenhuma das pastas selecionadas pode ser usada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>No valid folders</source>
        <translation>Nenhuma pasta válida</translation>
    </message>
    <message>
        <source>Files stay on the hub until you open them. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Learn more about on-demand sync&lt;/a&gt;</source>
        <translation>Os arquivos permanecem no hub até você abri-los. &lt;a href=&quot;https://help.kelvane.example/on-demand-sync&quot;&gt;Saiba mais sobre a sincronização sob demanda&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Custom task name</source>
        <translation>Nome personalizado da tarefa</translation>
    </message>
    <message>
        <source>The name helps you tell your tasks apart. It is shown on this computer only.</source>
        <translation>O nome ajuda você a diferenciar suas tarefas. Ele só é mostrado neste computador.</translation>
    </message>
    <message>
        <source>On-demand sync can be turned on or off in the settings of the task.</source>
        <translation>A sincronização sob demanda pode ser ativada ou desativada nas configurações da tarefa.</translation>
    </message>
    <message>
        <source>This is a required field.</source>
        <translation>Este campo é obrigatório.</translation>
    </message>
</context>
</TS>
