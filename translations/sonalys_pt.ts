<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>Sonalys</name>
    <message>
        <source>About Sonalys</source>
        <translation>Sobre o Sonalys</translation>
    </message>
    <message>
        <source>version 4.2</source>
        <translation>versão 4.2</translation>
    </message>
    <message>
        <source>Trial Version</source>
        <translation>Versão de avaliação</translation>
    </message>
    <message>
        <source>%.1f MB</source>
        <translation>%.1f MB</translation>
    </message>
    <message>
        <source>Physical memory:</source>
        <translation>Memória física:</translation>
    </message>
    <message>
        <source>Operating system:</source>
        <translation>Sistema operacional:</translation>
    </message>
    <message>
        <source>Select a Client</source>
        <translation>Selecionar um paciente</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Name begins with:</source>
        <translation>O nome começa com:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Pesquisar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;New Client</source>
        <translation>&amp;Novo paciente</translation>
    </message>
    <message>
        <source>Other &amp;Files</source>
        <translation>Outros a&amp;rquivos</translation>
    </message>
    <message>
        <source>&amp;Personal Information</source>
        <translation>&amp;Dados pessoais</translation>
    </message>
    <message>
        <source>&amp;Delete Client</source>
        <translation>&amp;Excluir paciente</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Type the Client´s name you want to search!</source>
        <translation>Digite o nome do paciente que deseja pesquisar!</translation>
    </message>
    <message>
        <source>Client not found!</source>
        <translation>Paciente não encontrado!</translation>
    </message>
    <message>
        <source>You need to select a Item!</source>
        <translation>Você precisa selecionar um item!</translation>
    </message>
    <message>
        <source>Error Reading File</source>
        <translation>Erro ao ler o arquivo</translation>
    </message>
    <message>
        <source>Attention, All Information about this Client will be deleted!
Are You sure you want to Continue?</source>
        <translation>Atenção: todas as informações deste paciente serão excluídas!
Tem certeza de que deseja continuar?</translation>
    </message>
    <message>
        <source>Client´s folder can´t be deleted!</source>
        <translation>Não é possível excluir a pasta do paciente!</translation>
    </message>
    <message>
        <source>%s - Files</source>
        <translation>%s - Arquivos</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Attention!</source>
        <translation>Atenção!</translation>
    </message>
    <message>
        <source>Sonalys needs a different video resolution !</source>
        <translation>O Sonalys precisa de outra resolução de vídeo!</translation>
    </message>
    <message>
        <source>Resolution : 800 x 600, 1024 x 768 ou 1280 x 800 pixels</source>
        <translation>Resolução: 800 x 600, 1024 x 768 ou 1280 x 800 pixels</translation>
    </message>
    <message>
        <source>Colors: High Color (16 bits) or better</source>
        <translation>Cores: High Color (16 bits) ou superior</translation>
    </message>
    <message>
        <source>Do you want to change the configuration now ?</source>
        <translation>Deseja alterar a configuração agora?</translation>
    </message>
    <message>
        <source>&amp;Client</source>
        <translation>&amp;Paciente</translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation>&amp;Arquivos</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Configurações</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Novo...</translation>
    </message>
    <message>
        <source>P&amp;ersonal Information...</source>
        <translation>&amp;Dados pessoais...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>Volume...</source>
        <translation>Volume...</translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation>&amp;Inglês</translation>
    </message>
    <message>
        <source>&amp;Korean</source>
        <translation>&amp;Coreano</translation>
    </message>
    <message>
        <source>Contents...</source>
        <translation>Conteúdo...</translation>
    </message>
    <message>
        <source>&amp;About Sonalys...</source>
        <translation>&amp;Sobre o Sonalys...</translation>
    </message>
    <message>
        <source>Choose a client to work with</source>
        <translation>Escolher o paciente com quem trabalhar</translation>
    </message>
    <message>
        <source>Insert a new client</source>
        <translation>Cadastrar um novo paciente</translation>
    </message>
    <message>
        <source>See or change the personal information of the client</source>
        <translation>Ver ou alterar os dados pessoais do paciente</translation>
    </message>
    <message>
        <source>Delete the client and all the client´s recordings</source>
        <translation>Excluir o paciente e todas as suas gravações</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>Open a recording of the client</source>
        <translation>Abrir uma gravação do paciente</translation>
    </message>
    <message>
        <source>Set the recording and playing volume</source>
        <translation>Ajustar o volume de gravação e de reprodução</translation>
    </message>
    <message>
        <source>Show the program in English</source>
        <translation>Mostrar o programa em inglês</translation>
    </message>
    <message>
        <source>Show the program in Korean</source>
        <translation>Mostrar o programa em coreano</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation>Abrir o guia do usuário</translation>
    </message>
    <message>
        <source>Show the version of the program and of the computer</source>
        <translation>Mostrar a versão do programa e os dados do computador</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Sonalys was not ended properly in the last utilisation. Please, reduce the screen update rate before starting recording a new sound file.</source>
        <translation>O Sonalys não foi encerrado corretamente na última utilização. Reduza a taxa de atualização da tela antes de começar a gravar um novo arquivo de som.</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Tem certeza de que deseja sair?</translation>
    </message>
    <message>
        <source>Volume Control can´t be  can´t be Inicialized!</source>
        <translation>Não é possível iniciar o controle de volume!</translation>
    </message>
    <message>
        <source>Error Acessing Client´s folder !</source>
        <translation>Erro ao acessar a pasta do paciente!</translation>
    </message>
    <message>
        <source>default</source>
        <translation>padrão</translation>
    </message>
    <message>
        <source>Sound File (*.wav)</source>
        <translation>Arquivo de som (*.wav)</translation>
    </message>
    <message>
        <source>The sounds of &quot;Other Files&quot; belong to no client: there is no personal information to show.</source>
        <translation>Os sons de &quot;Outros arquivos&quot; não pertencem a nenhum paciente: não há dados pessoais para mostrar.</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Paciente</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserir</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Man</source>
        <translation>Homem</translation>
    </message>
    <message>
        <source>Woman</source>
        <translation>Mulher</translation>
    </message>
    <message>
        <source>Child</source>
        <translation>Criança</translation>
    </message>
    <message>
        <source>Singer</source>
        <translation>Cantor</translation>
    </message>
    <message>
        <source>Date of birth:</source>
        <translation>Data de nascimento:</translation>
    </message>
    <message>
        <source>(month / day / year)</source>
        <translation>(mês / dia / ano)</translation>
    </message>
    <message>
        <source>(day / month / year)</source>
        <translation>(dia / mês / ano)</translation>
    </message>
    <message>
        <source>(year / month / day)</source>
        <translation>(ano / mês / dia)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Cidade:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Postal code:</source>
        <translation>CEP:</translation>
    </message>
    <message>
        <source>Home phone:</source>
        <translation>Telefone residencial:</translation>
    </message>
    <message>
        <source>Work phone:</source>
        <translation>Telefone comercial:</translation>
    </message>
    <message>
        <source>Observations:</source>
        <translation>Observações:</translation>
    </message>
    <message>
        <source>Invalid Day !</source>
        <translation>Dia inválido!</translation>
    </message>
    <message>
        <source>Invalid Month !</source>
        <translation>Mês inválido!</translation>
    </message>
    <message>
        <source>Invalid Year 
Range: 1890 to 2050</source>
        <translation>Ano inválido 
Intervalo: de 1890 a 2050</translation>
    </message>
    <message>
        <source>Invalid Year (it must have 4 digits)
Sample.: 1974</source>
        <translation>Ano inválido (deve ter 4 dígitos)
Exemplo: 1974</translation>
    </message>
    <message>
        <source>You need to type the client´s name!</source>
        <translation>Você precisa digitar o nome do paciente!</translation>
    </message>
    <message>
        <source>The Client is Man/Woman, Singer or Child?</source>
        <translation>O paciente é homem/mulher, cantor ou criança?</translation>
    </message>
    <message>
        <source>The Client´s Folder already exist</source>
        <translation>A pasta do paciente já existe</translation>
    </message>
    <message>
        <source>The client´s folder %s can´t be created!
The client´s recordings can´t be kept.</source>
        <translation>Não é possível criar a pasta do paciente %s!
As gravações do paciente não poderão ser guardadas.</translation>
    </message>
    <message>
        <source>This client is no longer in the client table (another user may have deleted it).
Nothing was changed.</source>
        <translation>Este paciente não está mais na tabela de pacientes (outro usuário pode tê-lo excluído).
Nada foi alterado.</translation>
    </message>
    <message>
        <source>Wait, Please...</source>
        <translation>Aguarde, por favor...</translation>
    </message>
    <message>
        <source>Undefined Type!</source>
        <translation>Tipo não definido!</translation>
    </message>
    <message>
        <source>No display settings program was found on this computer.
Please change the screen resolution in the settings of your desktop.</source>
        <translation>Nenhum programa de configuração de vídeo foi encontrado neste computador.
Altere a resolução da tela nas configurações da sua área de trabalho.</translation>
    </message>
    <message>
        <source>Sonalys Help</source>
        <translation>Ajuda do Sonalys</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Avançar</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Conteúdo</translation>
    </message>
    <message>
        <source>The screen resolution is higher than the options available!
Please select the option 800 x 600, 1024 x 768 ou 1280 x 800 in the next screen!</source>
        <translation>A resolução da tela é maior que as opções disponíveis!
Selecione a opção 800 x 600, 1024 x 768 ou 1280 x 800 na próxima tela!</translation>
    </message>
    <message>
        <source>Error Loading Video Setting Program!</source>
        <translation>Erro ao carregar o programa de configuração de vídeo!</translation>
    </message>
    <message>
        <source>It´s not possible to set the resolution!</source>
        <translation>Não é possível definir a resolução!</translation>
    </message>
    <message>
        <source>Voice and speech analysis for speech therapy</source>
        <translation>Análise de voz e fala para fonoaudiologia</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modo</translation>
    </message>
    <message>
        <source>File needs to have at least 0.5 seconds!</source>
        <translation>O arquivo precisa ter pelo menos 0,5 segundo!</translation>
    </message>
    <message>
        <source>Error WaveOutPrepareHeader</source>
        <translation>Erro em WaveOutPrepareHeader</translation>
    </message>
    <message>
        <source>Error - Loading Buffer</source>
        <translation>Erro - Carregamento do buffer</translation>
    </message>
    <message>
        <source>The sound device reported no error.</source>
        <translation>O dispositivo de som não relatou nenhum erro.</translation>
    </message>
    <message>
        <source>The sound device reported an error.</source>
        <translation>O dispositivo de som relatou um erro.</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Nenhum dispositivo de som está disponível.</translation>
    </message>
    <message>
        <source>The sound device is already in use.</source>
        <translation>O dispositivo de som já está em uso.</translation>
    </message>
    <message>
        <source>The sound device is not open.</source>
        <translation>O dispositivo de som não está aberto.</translation>
    </message>
    <message>
        <source>The sound system cannot be reached.</source>
        <translation>Não é possível acessar o sistema de som.</translation>
    </message>
    <message>
        <source>There is not enough memory for the sound device.</source>
        <translation>Não há memória suficiente para o dispositivo de som.</translation>
    </message>
    <message>
        <source>A sound buffer was handed over without data.</source>
        <translation>Um buffer de som foi entregue sem dados.</translation>
    </message>
    <message>
        <source>The sound device is busy.</source>
        <translation>O dispositivo de som está ocupado.</translation>
    </message>
    <message>
        <source>The sound device does not accept this sound format.</source>
        <translation>O dispositivo de som não aceita este formato de som.</translation>
    </message>
    <message>
        <source>The sound device still holds sound buffers.</source>
        <translation>O dispositivo de som ainda retém buffers de som.</translation>
    </message>
    <message>
        <source>A sound buffer was not prepared.</source>
        <translation>Um buffer de som não foi preparado.</translation>
    </message>
    <message>
        <source>The sound device stopped working.</source>
        <translation>O dispositivo de som parou de funcionar.</translation>
    </message>
    <message>
        <source>The sound device reported error %d.</source>
        <translation>O dispositivo de som relatou o erro %d.</translation>
    </message>
    <message>
        <source>Error Freeing Header!</source>
        <translation>Erro ao liberar o cabeçalho!</translation>
    </message>
    <message>
        <source>It was not possible to open the Playback channel!</source>
        <translation>Não foi possível abrir o canal de reprodução!</translation>
    </message>
    <message>
        <source>Error Playing Sound File!</source>
        <translation>Erro ao reproduzir o arquivo de som!</translation>
    </message>
    <message>
        <source>There is no free memory available!</source>
        <translation>Não há memória livre disponível!</translation>
    </message>
    <message>
        <source>Error Loading Header</source>
        <translation>Erro ao carregar o cabeçalho</translation>
    </message>
    <message>
        <source>It was not possible to start recording</source>
        <translation>Não foi possível iniciar a gravação</translation>
    </message>
    <message>
        <source>Error writing to file
Verify if there is free space!</source>
        <translation>Erro ao gravar no arquivo
Verifique se há espaço livre!</translation>
    </message>
    <message>
        <source>Error freeing memory!</source>
        <translation>Erro ao liberar a memória!</translation>
    </message>
    <message>
        <source>Error stop recording - code: 001</source>
        <translation>Erro ao parar a gravação - código: 001</translation>
    </message>
    <message>
        <source>Error stop recording - code: 002</source>
        <translation>Erro ao parar a gravação - código: 002</translation>
    </message>
    <message>
        <source>File not found!</source>
        <translation>Arquivo não encontrado!</translation>
    </message>
    <message>
        <source>Invalid File!</source>
        <translation>Arquivo inválido!</translation>
    </message>
    <message>
        <source>Error - There is no free memory available!</source>
        <translation>Erro - Não há memória livre disponível!</translation>
    </message>
    <message>
        <source>The client table %s can´t be written!
The previous table was kept unchanged.</source>
        <translation>Não é possível gravar a tabela de pacientes %s!
A tabela anterior foi mantida sem alterações.</translation>
    </message>
    <message>
        <source>The client table %s can´t be created!</source>
        <translation>Não é possível criar a tabela de pacientes %s!</translation>
    </message>
    <message>
        <source>The client table is being changed by another user!
Try again in a moment.</source>
        <translation>A tabela de pacientes está sendo alterada por outro usuário!
Tente novamente em instantes.</translation>
    </message>
    <message>
        <source>The client search &quot;%s&quot; can´t be understood!
Only CODIGO = number is accepted.</source>
        <translation>A pesquisa de pacientes &quot;%s&quot; não pode ser entendida!
Só é aceito CODIGO = número.</translation>
    </message>
    <message>
        <source>This client is not in the client table!</source>
        <translation>Este paciente não está na tabela de pacientes!</translation>
    </message>
    <message>
        <source>The client code %d can´t be stored in the client table!
The client was not inserted.</source>
        <translation>O código de paciente %d não pode ser armazenado na tabela de pacientes!
O paciente não foi inserido.</translation>
    </message>
    <message>
        <source>The client code %d was just given to another client!
The client was not inserted.</source>
        <translation>O código de paciente %d acabou de ser atribuído a outro paciente!
O paciente não foi inserido.</translation>
    </message>
    <message>
        <source>Error Saving File!</source>
        <translation>Erro ao salvar o arquivo!</translation>
    </message>
    <message>
        <source>Error Opening .ddt file!</source>
        <translation>Erro ao abrir o arquivo .ddt!</translation>
    </message>
    <message>
        <source>Error saving File!</source>
        <translation>Erro ao salvar o arquivo!</translation>
    </message>
    <message>
        <source>Error Saving Notes File!</source>
        <translation>Erro ao salvar o arquivo de anotações!</translation>
    </message>
    <message>
        <source>File rate must be 44100 Hz, 22050 Hz or 11025 Hz!</source>
        <translation>A taxa de amostragem do arquivo deve ser 44100 Hz, 22050 Hz ou 11025 Hz!</translation>
    </message>
    <message>
        <source>The file must be 16 Bits</source>
        <translation>O arquivo deve ser de 16 bits</translation>
    </message>
    <message>
        <source>The file can´t be opened!</source>
        <translation>Não é possível abrir o arquivo!</translation>
    </message>
    <message>
        <source>File - %s</source>
        <translation>Arquivo - %s</translation>
    </message>
    <message>
        <source>Attention, All Information about this File will be deleted!
Are you Sure you Want to Continue?</source>
        <translation>Atenção: todas as informações deste arquivo serão excluídas!
Tem certeza de que deseja continuar?</translation>
    </message>
    <message>
        <source>Error deleting File!</source>
        <translation>Erro ao excluir o arquivo!</translation>
    </message>
    <message>
        <source>This file was send to Backup!
It´s necessary to attach backup files to access this file!</source>
        <translation>Este arquivo foi enviado para o backup!
É necessário anexar os arquivos de backup para acessar este arquivo!</translation>
    </message>
    <message>
        <source>Select a file!</source>
        <translation>Selecione um arquivo!</translation>
    </message>
    <message>
        <source>Number of files exceeds to 150!
Insert a new client to continue...</source>
        <translation>O número de arquivos excede 150!
Insira um novo paciente para continuar...</translation>
    </message>
    <message>
        <source>%s  File - %d</source>
        <translation>%s  Arquivo - %d</translation>
    </message>
    <message>
        <source>%02d/%02d/%04d File %d</source>
        <translation>%02d/%02d/%04d Arquivo %d</translation>
    </message>
    <message>
        <source>%04d/%02d/%02d File %d</source>
        <translation>%04d/%02d/%02d Arquivo %d</translation>
    </message>
    <message>
        <source>The %s file can´t be recorded!
Verify if the file is opened!</source>
        <translation>Não é possível gravar o arquivo %s!
Verifique se o arquivo está aberto!</translation>
    </message>
    <message>
        <source>Attention!
It was not possible to read additional information about the sound file!</source>
        <translation>Atenção!
Não foi possível ler as informações adicionais do arquivo de som!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Attention: This file was recorded in stereo mode. How do you want to open it?</source>
        <translation>Atenção: este arquivo foi gravado em modo estéreo. Como deseja abri-lo?</translation>
    </message>
    <message>
        <source>Stereo to Mono</source>
        <translation>Estéreo para mono</translation>
    </message>
    <message>
        <source>Only the Left Channel</source>
        <translation>Somente o canal esquerdo</translation>
    </message>
    <message>
        <source>Only the Right Channel</source>
        <translation>Somente o canal direito</translation>
    </message>
    <message>
        <source>Mix Channels</source>
        <translation>Mixar os canais</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Invalid Function!</source>
        <translation>Função inválida!</translation>
    </message>
    <message>
        <source>Spectrogram</source>
        <translation>Espectrograma</translation>
    </message>
    <message>
        <source>Power Spectrum</source>
        <translation>Espectro de potência</translation>
    </message>
    <message>
        <source>Time: </source>
        <translation>Tempo: </translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> Mono</translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Estéreo</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Arquivo:</translation>
    </message>
    <message>
        <source>File %d</source>
        <translation>Arquivo %d</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Vol</source>
        <translation>Vol</translation>
    </message>
    <message>
        <source>Mic</source>
        <translation>Mic</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>You need to select an area!</source>
        <translation>Você precisa selecionar uma área!</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Gravar</translation>
    </message>
    <message>
        <source>&amp;Save Changes...</source>
        <translation>&amp;Salvar alterações...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>P&amp;ropriedades...</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>&amp;Visualizar impressão</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Export graph as a bmp file...</source>
        <translation>Exportar o gráfico como arquivo BMP...</translation>
    </message>
    <message>
        <source>Record...</source>
        <translation>Gravação...</translation>
    </message>
    <message>
        <source>&amp;Edit Notes...</source>
        <translation>&amp;Editar anotações...</translation>
    </message>
    <message>
        <source>Clean Texts</source>
        <translation>Limpar textos</translation>
    </message>
    <message>
        <source>F0 Setting...</source>
        <translation>Configuração de F0...</translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation>&amp;Backup...</translation>
    </message>
    <message>
        <source>P&amp;rint Setup...</source>
        <translation>Con&amp;figurar impressão...</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Compare with File...</source>
        <translation>Comparar com um arquivo...</translation>
    </message>
    <message>
        <source>Open Model...</source>
        <translation>Abrir modelo...</translation>
    </message>
    <message>
        <source>Save as a Model...</source>
        <translation>Salvar como modelo...</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>&amp;Desfazer	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>Selecionar &amp;tudo	Ctrl+A</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproduzir</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>&amp;Zoom +</source>
        <translation>&amp;Zoom +</translation>
    </message>
    <message>
        <source>Zoom -</source>
        <translation>Zoom -</translation>
    </message>
    <message>
        <source>Cut	Ctrl+X</source>
        <translation>Recortar	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copiar	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>Co&amp;lar	Ctrl+V</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>&amp;Spectrogram</source>
        <translation>&amp;Espectrograma</translation>
    </message>
    <message>
        <source>Filter design too difficult! </source>
        <translation>Projeto de filtro difícil demais! </translation>
    </message>
    <message>
        <source>Filter will suffer from limit cycles...
</source>
        <translation>O filtro sofrerá ciclos-limite...
</translation>
    </message>
    <message>
        <source>Calculating Formants...</source>
        <translation>Calculando os formantes...</translation>
    </message>
    <message>
        <source>Not enough memory to calculate the formants.</source>
        <translation>Não há memória suficiente para calcular os formantes.</translation>
    </message>
    <message>
        <source>filter: unknown filter type</source>
        <translation>filtro: tipo de filtro desconhecido</translation>
    </message>
    <message>
        <source>filter: order of filter too large</source>
        <translation>filtro: ordem do filtro grande demais</translation>
    </message>
    <message>
        <source>filter: filter order must be even</source>
        <translation>filtro: a ordem do filtro deve ser par</translation>
    </message>
    <message>
        <source>filter: out of memory</source>
        <translation>filtro: memória insuficiente</translation>
    </message>
    <message>
        <source>No simple factors for ratio</source>
        <translation>Não há fatores simples para a razão</translation>
    </message>
    <message>
        <source>cannot allocate space for interpolated data</source>
        <translation>não é possível alocar espaço para os dados interpolados</translation>
    </message>
    <message>
        <source>Error Allocating Buffer</source>
        <translation>Erro ao alocar o buffer</translation>
    </message>
    <message>
        <source>Update Rate</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>rate</source>
        <translation>taxa</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Start or stop recording</source>
        <translation>Iniciar ou parar a gravação</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>Pausar ou retomar a gravação</translation>
    </message>
    <message>
        <source>Choose the sample rate of new recordings</source>
        <translation>Escolher a taxa de amostragem das novas gravações</translation>
    </message>
    <message>
        <source>Play or stop the recording</source>
        <translation>Reproduzir ou parar a gravação</translation>
    </message>
    <message>
        <source>Pause or resume playing</source>
        <translation>Pausar ou retomar a reprodução</translation>
    </message>
    <message>
        <source>How often the picture follows the sound while recording or playing</source>
        <translation>Com que frequência a imagem acompanha o som durante a gravação ou a reprodução</translation>
    </message>
    <message>
        <source>Highest frequency shown</source>
        <translation>Frequência máxima exibida</translation>
    </message>
    <message>
        <source>F₀</source>
        <translation>F₀</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Banda</translation>
    </message>
    <message>
        <source>Formants</source>
        <translation>Formantes</translation>
    </message>
    <message>
        <source>Colours of the spectrogram</source>
        <translation>Cores do espectrograma</translation>
    </message>
    <message>
        <source>Analysis bandwidth of the spectrogram</source>
        <translation>Largura de banda de análise do espectrograma</translation>
    </message>
    <message>
        <source>Show the F0 curve and its read-out</source>
        <translation>Mostrar a curva de F0 e a sua leitura</translation>
    </message>
    <message>
        <source>Show the formants</source>
        <translation>Mostrar os formantes</translation>
    </message>
    <message>
        <source>Show or hide the spectrogram</source>
        <translation>Mostrar ou ocultar o espectrograma</translation>
    </message>
    <message>
        <source>Dynamic range: drag the pointer, or use the arrow keys</source>
        <translation>Faixa dinâmica: arraste o indicador ou use as setas do teclado</translation>
    </message>
    <message>
        <source>FFT Size</source>
        <translation>Tamanho FFT</translation>
    </message>
    <message>
        <source>Visualisation</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>LTAS</source>
        <translation>LTAS</translation>
    </message>
    <message>
        <source>Solid  </source>
        <translation>Sólido  </translation>
    </message>
    <message>
        <source>Colour of the spectrum&apos;s curve</source>
        <translation>Cor da curva do espectro</translation>
    </message>
    <message>
        <source>Points of each spectrum: more points, finer frequency detail</source>
        <translation>Pontos de cada espectro: mais pontos, mais detalhe em frequência</translation>
    </message>
    <message>
        <source>Draw the spectrum as a filled area or as a line</source>
        <translation>Desenhar o espectro como área preenchida ou como linha</translation>
    </message>
    <message>
        <source>Show the long-term average spectrum</source>
        <translation>Mostrar o espectro médio de longo termo (LTAS)</translation>
    </message>
    <message>
        <source>11025 Hz</source>
        <translation>11025 Hz</translation>
    </message>
    <message>
        <source>22050 Hz</source>
        <translation>22050 Hz</translation>
    </message>
    <message>
        <source>44100 Hz</source>
        <translation>44100 Hz</translation>
    </message>
    <message>
        <source>Verify if other Program is using the audio channel or if your audio devices are installed properly!
Do you want to Continue?</source>
        <translation>Verifique se outro programa está usando o canal de áudio ou se os seus dispositivos de áudio estão instalados corretamente!
Deseja continuar?</translation>
    </message>
    <message>
        <source>Mic. Input can´t be found!
Do You want to Continue?</source>
        <translation>A entrada de microfone não foi encontrada!
Deseja continuar?</translation>
    </message>
    <message>
        <source>Warning! It´s not Possible to Define the Selected Input!</source>
        <translation>Aviso! Não é possível definir a entrada selecionada!</translation>
    </message>
    <message>
        <source>Playback and Record Volume</source>
        <translation>Volume de reprodução e gravação</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>Controle de volume</translation>
    </message>
    <message>
        <source>Wave Sound</source>
        <translation>Som Wave</translation>
    </message>
    <message>
        <source>Record Setting...</source>
        <translation>Configuração de gravação...</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Entrada:</translation>
    </message>
    <message>
        <source>Microfone</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>Line In</source>
        <translation>Entrada de linha</translation>
    </message>
    <message>
        <source>Attention! Select the Audio Input in the Windows Record Control!</source>
        <translation>Atenção! Selecione a entrada de áudio no controle de gravação do Windows!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose the input the recordings are taken from</source>
        <translation>Escolher a entrada da qual as gravações são feitas</translation>
    </message>
    <message>
        <source>The client table %s does not match its own header!
It is opened read-only and no change is written to it.</source>
        <translation>A tabela de pacientes %s não corresponde ao seu próprio cabeçalho!
Ela é aberta somente para leitura e nenhuma alteração é gravada nela.</translation>
    </message>
    <message>
        <source>Min. Value: 50 Hz</source>
        <translation>Valor mín.: 50 Hz</translation>
    </message>
    <message>
        <source>Max. Value: 1200 Hz</source>
        <translation>Valor máx.: 1200 Hz</translation>
    </message>
    <message>
        <source>Min. Value &gt;= Max. Value</source>
        <translation>Valor mín. &gt;= Valor máx.</translation>
    </message>
    <message>
        <source>Calculating F0...</source>
        <translation>Calculando F0...</translation>
    </message>
    <message>
        <source>Min.:</source>
        <translation>Mín.:</translation>
    </message>
    <message>
        <source>Max:</source>
        <translation>Máx.:</translation>
    </message>
    <message>
        <source>Set the lowest and highest frequency of the F0 curve</source>
        <translation>Definir a frequência mínima e máxima da curva de F0</translation>
    </message>
    <message>
        <source>&amp;Spanish</source>
        <translation>&amp;Espanhol</translation>
    </message>
    <message>
        <source>&amp;Portuguese</source>
        <translation>&amp;Português</translation>
    </message>
    <message>
        <source>Show the program in Spanish</source>
        <translation>Mostrar o programa em espanhol</translation>
    </message>
    <message>
        <source>Show the program in Portuguese</source>
        <translation>Mostrar o programa em português</translation>
    </message>
    <message>
        <source>Do you Want to save the actual File?</source>
        <translation>Deseja salvar o arquivo atual?</translation>
    </message>
    <message>
        <source>Error saving File.</source>
        <translation>Erro ao salvar o arquivo.</translation>
    </message>
    <message>
        <source>Please, Wait ....</source>
        <translation>Por favor, aguarde ....</translation>
    </message>
    <message>
        <source>No sound reaches the input: check the microphone, its level, and the default input of the system.</source>
        <translation>Nenhum som chega à entrada: verifique o microfone, o nível dele e a entrada padrão do sistema.</translation>
    </message>
    <message>
        <source>Attention: the sound reached full scale (clipping) in this take.</source>
        <translation>Atenção: o som atingiu o nível máximo (saturação) nesta gravação.</translation>
    </message>
    <message>
        <source>Input level (peak and RMS, dBFS)</source>
        <translation>Nível de entrada (pico e RMS, dBFS)</translation>
    </message>
    <message>
        <source>Wait, starting audio devices...</source>
        <translation>Aguarde, iniciando os dispositivos de áudio...</translation>
    </message>
    <message>
        <source>%d Hz, %d Bits</source>
        <translation>%d Hz, %d Bits</translation>
    </message>
</context>
</TS>
