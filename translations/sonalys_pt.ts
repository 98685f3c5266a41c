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
        <source>The client table %s does not match its own header!
It is opened read-only and no change is written to it.</source>
        <translation>A tabela de pacientes %s não corresponde ao seu próprio cabeçalho!
Ela é aberta somente para leitura e nenhuma alteração é gravada nela.</translation>
    </message>
</context>
</TS>
