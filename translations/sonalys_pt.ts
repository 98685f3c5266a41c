<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>Sonalys</name>
    <message>
        <source>About Sonalys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>version 4.2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trial Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%.1f MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Physical memory:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating system:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name begins with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other &amp;Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Personal Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the Client´s name you want to search!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client not found!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You need to select a Item!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Reading File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention, All Information about this Client will be deleted!
Are You sure you want to Continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client´s folder can´t be deleted!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s - Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonalys needs a different video resolution !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution : 800 x 600, 1024 x 768 ou 1280 x 800 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors: High Color (16 bits) or better</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to change the configuration now ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ersonal Information...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Korean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Sonalys...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a client to work with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert a new client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See or change the personal information of the client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the client and all the client´s recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a recording of the client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the recording and playing volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the program in English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the program in Korean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version of the program and of the computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonalys was not ended properly in the last utilisation. Please, reduce the screen update rate before starting recording a new sound file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume Control can´t be  can´t be Inicialized!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Acessing Client´s folder !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound File (*.wav)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sounds of &quot;Other Files&quot; belong to no client: there is no personal information to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Man</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Woman</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Child</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Singer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of birth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(month / day / year)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(day / month / year)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(year / month / day)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postal code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Observations:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Day !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Month !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Year 
Range: 1890 to 2050</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Year (it must have 4 digits)
Sample.: 1974</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You need to type the client´s name!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Client is Man/Woman, Singer or Child?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Client´s Folder already exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The client´s folder %s can´t be created!
The client´s recordings can´t be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This client is no longer in the client table (another user may have deleted it).
Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait, Please...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undefined Type!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No display settings program was found on this computer.
Please change the screen resolution in the settings of your desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonalys Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen resolution is higher than the options available!
Please select the option 800 x 600, 1024 x 768 ou 1280 x 800 in the next screen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Loading Video Setting Program!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It´s not possible to set the resolution!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice and speech analysis for speech therapy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Rate</source>
        <translation>Taxa de atualização</translation>
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
        <translation>Tamanho da FFT</translation>
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
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Colour of the spectrum's curve</source>
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
        <source>Calculating Formants...</source>
        <translation>Calculando formantes...</translation>
    </message>
    <message>
        <source>F0 Setting...</source>
        <translation>Configuração de F0...</translation>
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
</context>
</TS>
