<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
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
        <translation>갱신 주기</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>상한</translation>
    </message>
    <message>
        <source>rate</source>
        <translation>샘플링</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Start or stop recording</source>
        <translation>녹음 시작 또는 정지</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>녹음 일시 정지 또는 계속</translation>
    </message>
    <message>
        <source>Choose the sample rate of new recordings</source>
        <translation>새 녹음의 샘플링 주파수 선택</translation>
    </message>
    <message>
        <source>Play or stop the recording</source>
        <translation>녹음 재생 또는 정지</translation>
    </message>
    <message>
        <source>Pause or resume playing</source>
        <translation>재생 일시 정지 또는 계속</translation>
    </message>
    <message>
        <source>How often the picture follows the sound while recording or playing</source>
        <translation>녹음 또는 재생 중 화면이 소리를 따라 갱신되는 간격</translation>
    </message>
    <message>
        <source>Highest frequency shown</source>
        <translation>표시되는 최고 주파수</translation>
    </message>
    <message>
        <source>F₀</source>
        <translation>F₀</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>대역폭</translation>
    </message>
    <message>
        <source>Formants</source>
        <translation>포먼트</translation>
    </message>
    <message>
        <source>Colours of the spectrogram</source>
        <translation>스펙트로그램 색상</translation>
    </message>
    <message>
        <source>Analysis bandwidth of the spectrogram</source>
        <translation>스펙트로그램 분석 대역폭</translation>
    </message>
    <message>
        <source>Show the F0 curve and its read-out</source>
        <translation>기본주파수(F0) 곡선과 수치 표시</translation>
    </message>
    <message>
        <source>Show the formants</source>
        <translation>포먼트 표시</translation>
    </message>
    <message>
        <source>Show or hide the spectrogram</source>
        <translation>스펙트로그램 표시 또는 숨기기</translation>
    </message>
    <message>
        <source>Dynamic range: drag the pointer, or use the arrow keys</source>
        <translation>동적 범위: 포인터를 끌거나 화살표 키를 사용하십시오</translation>
    </message>
    <message>
        <source>FFT Size</source>
        <translation>FFT 크기</translation>
    </message>
    <message>
        <source>Visualisation</source>
        <translation>표시 방식</translation>
    </message>
    <message>
        <source>LTAS</source>
        <translation>LTAS</translation>
    </message>
    <message>
        <source>Solid  </source>
        <translation>채움  </translation>
    </message>
    <message>
        <source>Line</source>
        <translation>선</translation>
    </message>
    <message>
        <source>Colour of the spectrum's curve</source>
        <translation>스펙트럼 곡선 색상</translation>
    </message>
    <message>
        <source>Points of each spectrum: more points, finer frequency detail</source>
        <translation>각 스펙트럼의 점 수: 점이 많을수록 주파수가 더 세밀합니다</translation>
    </message>
    <message>
        <source>Draw the spectrum as a filled area or as a line</source>
        <translation>스펙트럼을 채운 영역 또는 선으로 표시</translation>
    </message>
    <message>
        <source>Show the long-term average spectrum</source>
        <translation>장시간 평균 스펙트럼(LTAS) 표시</translation>
    </message>
    <message>
        <source>Min. Value: 50 Hz</source>
        <translation>최솟값: 50 Hz</translation>
    </message>
    <message>
        <source>Max. Value: 1200 Hz</source>
        <translation>최댓값: 1200 Hz</translation>
    </message>
    <message>
        <source>Min. Value &gt;= Max. Value</source>
        <translation>최솟값 &gt;= 최댓값</translation>
    </message>
    <message>
        <source>Calculating F0...</source>
        <translation>F0 계산 중...</translation>
    </message>
    <message>
        <source>Calculating Formants...</source>
        <translation>포먼트 계산 중...</translation>
    </message>
    <message>
        <source>F0 Setting...</source>
        <translation>F0 설정...</translation>
    </message>
    <message>
        <source>Min.:</source>
        <translation>최소:</translation>
    </message>
    <message>
        <source>Max:</source>
        <translation>최대:</translation>
    </message>
    <message>
        <source>Set the lowest and highest frequency of the F0 curve</source>
        <translation>F0 곡선의 최저 및 최고 주파수 설정</translation>
    </message>
</context>
</TS>
