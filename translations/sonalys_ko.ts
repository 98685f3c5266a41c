<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>Sonalys</name>
    <message>
        <source>About Sonalys</source>
        <translation>Sonalys 정보</translation>
    </message>
    <message>
        <source>version 4.2</source>
        <translation>버전 4.2</translation>
    </message>
    <message>
        <source>Trial Version</source>
        <translation>평가판</translation>
    </message>
    <message>
        <source>%.1f MB</source>
        <translation>%.1f MB</translation>
    </message>
    <message>
        <source>Physical memory:</source>
        <translation>실제 메모리:</translation>
    </message>
    <message>
        <source>Operating system:</source>
        <translation>운영 체제:</translation>
    </message>
    <message>
        <source>Select a Client</source>
        <translation>환자 선택</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Name begins with:</source>
        <translation>이름 시작 글자:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>검색(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;New Client</source>
        <translation>새 환자(&amp;N)</translation>
    </message>
    <message>
        <source>Other &amp;Files</source>
        <translation>기타 파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Personal Information</source>
        <translation>인적 사항(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete Client</source>
        <translation>환자 삭제(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Type the Client´s name you want to search!</source>
        <translation>검색할 환자의 이름을 입력하십시오!</translation>
    </message>
    <message>
        <source>Client not found!</source>
        <translation>환자를 찾을 수 없습니다!</translation>
    </message>
    <message>
        <source>You need to select a Item!</source>
        <translation>항목을 선택해야 합니다!</translation>
    </message>
    <message>
        <source>Error Reading File</source>
        <translation>파일 읽기 오류</translation>
    </message>
    <message>
        <source>Attention, All Information about this Client will be deleted!
Are You sure you want to Continue?</source>
        <translation>주의: 이 환자의 모든 정보가 삭제됩니다!
계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Client´s folder can´t be deleted!</source>
        <translation>환자 폴더를 삭제할 수 없습니다!</translation>
    </message>
    <message>
        <source>%s - Files</source>
        <translation>%s - 파일</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Attention!</source>
        <translation>주의!</translation>
    </message>
    <message>
        <source>Sonalys needs a different video resolution !</source>
        <translation>Sonalys를 사용하려면 다른 화면 해상도가 필요합니다!</translation>
    </message>
    <message>
        <source>Resolution : 800 x 600, 1024 x 768 ou 1280 x 800 pixels</source>
        <translation>해상도: 800 x 600, 1024 x 768 또는 1280 x 800 픽셀</translation>
    </message>
    <message>
        <source>Colors: High Color (16 bits) or better</source>
        <translation>색: 하이 컬러(16비트) 이상</translation>
    </message>
    <message>
        <source>Do you want to change the configuration now ?</source>
        <translation>지금 설정을 변경하시겠습니까?</translation>
    </message>
    <message>
        <source>&amp;Client</source>
        <translation>환자(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>설정(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>열기(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>새로 만들기(&amp;N)...</translation>
    </message>
    <message>
        <source>P&amp;ersonal Information...</source>
        <translation>인적 사항(&amp;E)...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>끝내기(&amp;X)</translation>
    </message>
    <message>
        <source>Volume...</source>
        <translation>볼륨...</translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation>영어(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Korean</source>
        <translation>한국어(&amp;K)</translation>
    </message>
    <message>
        <source>Contents...</source>
        <translation>목차...</translation>
    </message>
    <message>
        <source>&amp;About Sonalys...</source>
        <translation>Sonalys 정보(&amp;A)...</translation>
    </message>
    <message>
        <source>Choose a client to work with</source>
        <translation>작업할 환자를 선택합니다</translation>
    </message>
    <message>
        <source>Insert a new client</source>
        <translation>새 환자를 등록합니다</translation>
    </message>
    <message>
        <source>See or change the personal information of the client</source>
        <translation>환자의 인적 사항을 보거나 변경합니다</translation>
    </message>
    <message>
        <source>Delete the client and all the client´s recordings</source>
        <translation>환자와 그 환자의 모든 녹음을 삭제합니다</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>프로그램을 끝냅니다</translation>
    </message>
    <message>
        <source>Open a recording of the client</source>
        <translation>환자의 녹음을 엽니다</translation>
    </message>
    <message>
        <source>Set the recording and playing volume</source>
        <translation>녹음 및 재생 볼륨을 조절합니다</translation>
    </message>
    <message>
        <source>Show the program in English</source>
        <translation>프로그램을 영어로 표시합니다</translation>
    </message>
    <message>
        <source>Show the program in Korean</source>
        <translation>프로그램을 한국어로 표시합니다</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation>사용 설명서를 엽니다</translation>
    </message>
    <message>
        <source>Show the version of the program and of the computer</source>
        <translation>프로그램 버전과 컴퓨터 정보를 표시합니다</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비</translation>
    </message>
    <message>
        <source>Sonalys was not ended properly in the last utilisation. Please, reduce the screen update rate before starting recording a new sound file.</source>
        <translation>지난번 사용할 때 Sonalys가 정상적으로 종료되지 않았습니다. 새 음성 파일을 녹음하기 전에 화면 갱신 속도를 낮추십시오.</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>프로그램을 끝내시겠습니까?</translation>
    </message>
    <message>
        <source>Volume Control can´t be  can´t be Inicialized!</source>
        <translation>볼륨 조절을 초기화할 수 없습니다!</translation>
    </message>
    <message>
        <source>Error Acessing Client´s folder !</source>
        <translation>환자 폴더에 접근하는 중 오류가 발생했습니다!</translation>
    </message>
    <message>
        <source>default</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Sound File (*.wav)</source>
        <translation>음성 파일 (*.wav)</translation>
    </message>
    <message>
        <source>The sounds of &quot;Other Files&quot; belong to no client: there is no personal information to show.</source>
        <translation>&quot;기타 파일&quot;의 음성은 어느 환자에게도 속하지 않으므로 표시할 인적 사항이 없습니다.</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>환자</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>등록</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>번호:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>유형:</translation>
    </message>
    <message>
        <source>Man</source>
        <translation>남성</translation>
    </message>
    <message>
        <source>Woman</source>
        <translation>여성</translation>
    </message>
    <message>
        <source>Child</source>
        <translation>아동</translation>
    </message>
    <message>
        <source>Singer</source>
        <translation>가수</translation>
    </message>
    <message>
        <source>Date of birth:</source>
        <translation>생년월일:</translation>
    </message>
    <message>
        <source>(month / day / year)</source>
        <translation>(월 / 일 / 년)</translation>
    </message>
    <message>
        <source>(day / month / year)</source>
        <translation>(일 / 월 / 년)</translation>
    </message>
    <message>
        <source>(year / month / day)</source>
        <translation>(년 / 월 / 일)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>주소:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>도시:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>시/도:</translation>
    </message>
    <message>
        <source>Postal code:</source>
        <translation>우편번호:</translation>
    </message>
    <message>
        <source>Home phone:</source>
        <translation>집 전화:</translation>
    </message>
    <message>
        <source>Work phone:</source>
        <translation>직장 전화:</translation>
    </message>
    <message>
        <source>Observations:</source>
        <translation>비고:</translation>
    </message>
    <message>
        <source>Invalid Day !</source>
        <translation>일이 올바르지 않습니다!</translation>
    </message>
    <message>
        <source>Invalid Month !</source>
        <translation>월이 올바르지 않습니다!</translation>
    </message>
    <message>
        <source>Invalid Year 
Range: 1890 to 2050</source>
        <translation>연도가 올바르지 않습니다 
범위: 1890~2050</translation>
    </message>
    <message>
        <source>Invalid Year (it must have 4 digits)
Sample.: 1974</source>
        <translation>연도가 올바르지 않습니다(네 자리여야 합니다)
예: 1974</translation>
    </message>
    <message>
        <source>You need to type the client´s name!</source>
        <translation>환자 이름을 입력해야 합니다!</translation>
    </message>
    <message>
        <source>The Client is Man/Woman, Singer or Child?</source>
        <translation>환자는 남성/여성, 가수, 아동 중 어디에 해당합니까?</translation>
    </message>
    <message>
        <source>The Client´s Folder already exist</source>
        <translation>환자 폴더가 이미 있습니다</translation>
    </message>
    <message>
        <source>The client´s folder %s can´t be created!
The client´s recordings can´t be kept.</source>
        <translation>환자 폴더 %s을(를) 만들 수 없습니다!
환자의 녹음을 보관할 수 없습니다.</translation>
    </message>
    <message>
        <source>This client is no longer in the client table (another user may have deleted it).
Nothing was changed.</source>
        <translation>이 환자는 더 이상 환자 테이블에 없습니다(다른 사용자가 삭제했을 수 있습니다).
아무것도 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>Wait, Please...</source>
        <translation>잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>Undefined Type!</source>
        <translation>정의되지 않은 유형입니다!</translation>
    </message>
    <message>
        <source>No display settings program was found on this computer.
Please change the screen resolution in the settings of your desktop.</source>
        <translation>이 컴퓨터에서 디스플레이 설정 프로그램을 찾을 수 없습니다.
바탕 화면 설정에서 화면 해상도를 변경하십시오.</translation>
    </message>
    <message>
        <source>Sonalys Help</source>
        <translation>Sonalys 도움말</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>앞으로(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>목차(&amp;C)</translation>
    </message>
    <message>
        <source>The screen resolution is higher than the options available!
Please select the option 800 x 600, 1024 x 768 ou 1280 x 800 in the next screen!</source>
        <translation>화면 해상도가 사용할 수 있는 옵션보다 높습니다!
다음 화면에서 800 x 600, 1024 x 768 또는 1280 x 800을 선택하십시오!</translation>
    </message>
    <message>
        <source>Error Loading Video Setting Program!</source>
        <translation>디스플레이 설정 프로그램을 불러오는 중 오류가 발생했습니다!</translation>
    </message>
    <message>
        <source>It´s not possible to set the resolution!</source>
        <translation>해상도를 설정할 수 없습니다!</translation>
    </message>
    <message>
        <source>Voice and speech analysis for speech therapy</source>
        <translation>언어치료를 위한 음성 및 말 분석</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>모드(&amp;M)</translation>
    </message>
    <message>
        <source>File needs to have at least 0.5 seconds!</source>
        <translation>파일 길이는 0.5초 이상이어야 합니다!</translation>
    </message>
    <message>
        <source>Error WaveOutPrepareHeader</source>
        <translation>WaveOutPrepareHeader 오류</translation>
    </message>
    <message>
        <source>Error - Loading Buffer</source>
        <translation>오류 - 버퍼 불러오기</translation>
    </message>
    <message>
        <source>The sound device reported no error.</source>
        <translation>사운드 장치가 오류를 보고하지 않았습니다.</translation>
    </message>
    <message>
        <source>The sound device reported an error.</source>
        <translation>사운드 장치가 오류를 보고했습니다.</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>사용할 수 있는 사운드 장치가 없습니다.</translation>
    </message>
    <message>
        <source>The sound device is already in use.</source>
        <translation>사운드 장치를 이미 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>The sound device is not open.</source>
        <translation>사운드 장치가 열려 있지 않습니다.</translation>
    </message>
    <message>
        <source>The sound system cannot be reached.</source>
        <translation>사운드 시스템에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough memory for the sound device.</source>
        <translation>사운드 장치에 필요한 메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>A sound buffer was handed over without data.</source>
        <translation>데이터가 없는 사운드 버퍼가 전달되었습니다.</translation>
    </message>
    <message>
        <source>The sound device is busy.</source>
        <translation>사운드 장치가 다른 작업으로 바쁩니다.</translation>
    </message>
    <message>
        <source>The sound device does not accept this sound format.</source>
        <translation>사운드 장치가 이 사운드 형식을 지원하지 않습니다.</translation>
    </message>
    <message>
        <source>The sound device still holds sound buffers.</source>
        <translation>사운드 장치에 아직 사운드 버퍼가 남아 있습니다.</translation>
    </message>
    <message>
        <source>A sound buffer was not prepared.</source>
        <translation>사운드 버퍼가 준비되지 않았습니다.</translation>
    </message>
    <message>
        <source>The sound device stopped working.</source>
        <translation>사운드 장치가 작동을 멈췄습니다.</translation>
    </message>
    <message>
        <source>The sound device reported error %d.</source>
        <translation>사운드 장치가 오류 %d번을 보고했습니다.</translation>
    </message>
    <message>
        <source>Error Freeing Header!</source>
        <translation>헤더 해제 오류!</translation>
    </message>
    <message>
        <source>It was not possible to open the Playback channel!</source>
        <translation>재생 채널을 열 수 없습니다!</translation>
    </message>
    <message>
        <source>Error Playing Sound File!</source>
        <translation>음성 파일 재생 오류!</translation>
    </message>
    <message>
        <source>There is no free memory available!</source>
        <translation>사용할 수 있는 메모리가 없습니다!</translation>
    </message>
    <message>
        <source>Error Loading Header</source>
        <translation>헤더 불러오기 오류</translation>
    </message>
    <message>
        <source>It was not possible to start recording</source>
        <translation>녹음을 시작할 수 없습니다</translation>
    </message>
    <message>
        <source>Error writing to file
Verify if there is free space!</source>
        <translation>파일 쓰기 오류
여유 공간이 있는지 확인하십시오!</translation>
    </message>
    <message>
        <source>Error freeing memory!</source>
        <translation>메모리 해제 오류!</translation>
    </message>
    <message>
        <source>Error stop recording - code: 001</source>
        <translation>녹음 중지 오류 - 코드: 001</translation>
    </message>
    <message>
        <source>Error stop recording - code: 002</source>
        <translation>녹음 중지 오류 - 코드: 002</translation>
    </message>
    <message>
        <source>File not found!</source>
        <translation>파일을 찾을 수 없습니다!</translation>
    </message>
    <message>
        <source>Invalid File!</source>
        <translation>잘못된 파일입니다!</translation>
    </message>
    <message>
        <source>Error - There is no free memory available!</source>
        <translation>오류 - 사용할 수 있는 메모리가 없습니다!</translation>
    </message>
    <message>
        <source>The client table %s can´t be written!
The previous table was kept unchanged.</source>
        <translation>환자 테이블 %s에 쓸 수 없습니다!
이전 테이블은 바뀌지 않고 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>The client table %s can´t be created!</source>
        <translation>환자 테이블 %s을(를) 만들 수 없습니다!</translation>
    </message>
    <message>
        <source>The client table is being changed by another user!
Try again in a moment.</source>
        <translation>다른 사용자가 환자 테이블을 변경하고 있습니다!
잠시 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The client search &quot;%s&quot; can´t be understood!
Only CODIGO = number is accepted.</source>
        <translation>환자 검색 조건 &quot;%s&quot;을(를) 이해할 수 없습니다!
CODIGO = 번호 형식만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>This client is not in the client table!</source>
        <translation>이 환자는 환자 테이블에 없습니다!</translation>
    </message>
    <message>
        <source>The client code %d can´t be stored in the client table!
The client was not inserted.</source>
        <translation>환자 번호 %d은(는) 환자 테이블에 저장할 수 없습니다!
환자를 등록하지 않았습니다.</translation>
    </message>
    <message>
        <source>The client code %d was just given to another client!
The client was not inserted.</source>
        <translation>환자 번호 %d은(는) 방금 다른 환자에게 부여되었습니다!
환자를 등록하지 않았습니다.</translation>
    </message>
    <message>
        <source>Error Saving File!</source>
        <translation>파일 저장 오류!</translation>
    </message>
    <message>
        <source>Error Opening .ddt file!</source>
        <translation>.ddt 파일 열기 오류!</translation>
    </message>
    <message>
        <source>Error saving File!</source>
        <translation>파일 저장 오류!</translation>
    </message>
    <message>
        <source>Error Saving Notes File!</source>
        <translation>메모 파일 저장 오류!</translation>
    </message>
    <message>
        <source>File rate must be 44100 Hz, 22050 Hz or 11025 Hz!</source>
        <translation>파일의 표본화 주파수는 44100 Hz, 22050 Hz 또는 11025 Hz여야 합니다!</translation>
    </message>
    <message>
        <source>The file must be 16 Bits</source>
        <translation>파일은 16비트여야 합니다</translation>
    </message>
    <message>
        <source>The file can´t be opened!</source>
        <translation>파일을 열 수 없습니다!</translation>
    </message>
    <message>
        <source>File - %s</source>
        <translation>파일 - %s</translation>
    </message>
    <message>
        <source>Attention, All Information about this File will be deleted!
Are you Sure you Want to Continue?</source>
        <translation>주의: 이 파일의 모든 정보가 삭제됩니다!
계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Error deleting File!</source>
        <translation>파일 삭제 오류!</translation>
    </message>
    <message>
        <source>This file was send to Backup!
It´s necessary to attach backup files to access this file!</source>
        <translation>이 파일은 백업으로 보내졌습니다!
이 파일을 열려면 백업 파일을 첨부해야 합니다!</translation>
    </message>
    <message>
        <source>Select a file!</source>
        <translation>파일을 선택하십시오!</translation>
    </message>
    <message>
        <source>Number of files exceeds to 150!
Insert a new client to continue...</source>
        <translation>파일 수가 150개를 넘었습니다!
계속하려면 새 환자를 등록하십시오...</translation>
    </message>
    <message>
        <source>%s  File - %d</source>
        <translation>%s  파일 - %d</translation>
    </message>
    <message>
        <source>%02d/%02d/%04d File %d</source>
        <translation>%02d/%02d/%04d 파일 %d</translation>
    </message>
    <message>
        <source>%04d/%02d/%02d File %d</source>
        <translation>%04d/%02d/%02d 파일 %d</translation>
    </message>
    <message>
        <source>The %s file can´t be recorded!
Verify if the file is opened!</source>
        <translation>%s 파일을 저장할 수 없습니다!
파일이 열려 있는지 확인하십시오!</translation>
    </message>
    <message>
        <source>Attention!
It was not possible to read additional information about the sound file!</source>
        <translation>주의!
음성 파일의 추가 정보를 읽을 수 없습니다!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Attention: This file was recorded in stereo mode. How do you want to open it?</source>
        <translation>주의: 이 파일은 스테레오로 녹음되었습니다. 어떻게 여시겠습니까?</translation>
    </message>
    <message>
        <source>Stereo to Mono</source>
        <translation>스테레오를 모노로</translation>
    </message>
    <message>
        <source>Only the Left Channel</source>
        <translation>왼쪽 채널만</translation>
    </message>
    <message>
        <source>Only the Right Channel</source>
        <translation>오른쪽 채널만</translation>
    </message>
    <message>
        <source>Mix Channels</source>
        <translation>두 채널 혼합</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Invalid Function!</source>
        <translation>잘못된 기능입니다!</translation>
    </message>
    <message>
        <source>Spectrogram</source>
        <translation>스펙트로그램</translation>
    </message>
    <message>
        <source>Power Spectrum</source>
        <translation>파워 스펙트럼</translation>
    </message>
    <message>
        <source>Time: </source>
        <translation>시간: </translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> 모노</translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> 스테레오</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>파일:</translation>
    </message>
    <message>
        <source>File %d</source>
        <translation>파일 %d</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Vol</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Mic</source>
        <translation>마이크</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>라인</translation>
    </message>
    <message>
        <source>You need to select an area!</source>
        <translation>영역을 선택해야 합니다!</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>녹음(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Changes...</source>
        <translation>변경 내용 저장(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>속성(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>인쇄 미리 보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>인쇄(&amp;P)...</translation>
    </message>
    <message>
        <source>Export graph as a bmp file...</source>
        <translation>그래프를 BMP 파일로 내보내기...</translation>
    </message>
    <message>
        <source>Record...</source>
        <translation>녹음 설정...</translation>
    </message>
    <message>
        <source>&amp;Edit Notes...</source>
        <translation>메모 편집(&amp;E)...</translation>
    </message>
    <message>
        <source>Clean Texts</source>
        <translation>텍스트 지우기</translation>
    </message>
    <message>
        <source>F0 Setting...</source>
        <translation>F0 설정...</translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation>백업(&amp;B)...</translation>
    </message>
    <message>
        <source>P&amp;rint Setup...</source>
        <translation>인쇄 설정(&amp;R)...</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>가져오기...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Compare with File...</source>
        <translation>파일과 비교...</translation>
    </message>
    <message>
        <source>Open Model...</source>
        <translation>모델 열기...</translation>
    </message>
    <message>
        <source>Save as a Model...</source>
        <translation>모델로 저장...</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>실행 취소(&amp;U)	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>모두 선택(&amp;S)	Ctrl+A</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>재생(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>정지(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Zoom +</source>
        <translation>확대(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom -</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Cut	Ctrl+X</source>
        <translation>잘라내기	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>복사(&amp;C)	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>붙여넣기(&amp;P)	Ctrl+V</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>무음 처리</translation>
    </message>
    <message>
        <source>&amp;Spectrogram</source>
        <translation>스펙트로그램(&amp;S)</translation>
    </message>
    <message>
        <source>Filter design too difficult! </source>
        <translation>필터 설계가 너무 어렵습니다! </translation>
    </message>
    <message>
        <source>Filter will suffer from limit cycles...
</source>
        <translation>필터에 리밋 사이클이 생깁니다...
</translation>
    </message>
    <message>
        <source>Calculating Formants...</source>
        <translation>포먼트 계산 중...</translation>
    </message>
    <message>
        <source>Not enough memory to calculate the formants.</source>
        <translation>포먼트를 계산할 메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>filter: unknown filter type</source>
        <translation>필터: 알 수 없는 필터 종류</translation>
    </message>
    <message>
        <source>filter: order of filter too large</source>
        <translation>필터: 필터 차수가 너무 큽니다</translation>
    </message>
    <message>
        <source>filter: filter order must be even</source>
        <translation>필터: 필터 차수는 짝수여야 합니다</translation>
    </message>
    <message>
        <source>filter: out of memory</source>
        <translation>필터: 메모리 부족</translation>
    </message>
    <message>
        <source>No simple factors for ratio</source>
        <translation>비율을 나타낼 간단한 인수가 없습니다</translation>
    </message>
    <message>
        <source>cannot allocate space for interpolated data</source>
        <translation>보간 데이터를 위한 공간을 할당할 수 없습니다</translation>
    </message>
    <message>
        <source>Error Allocating Buffer</source>
        <translation>버퍼 할당 오류</translation>
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
        <source>Colour of the spectrum&apos;s curve</source>
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
        <translation>다른 프로그램이 오디오 채널을 사용 중인지, 오디오 장치가 올바르게 설치되어 있는지 확인하십시오!
계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Mic. Input can´t be found!
Do You want to Continue?</source>
        <translation>마이크 입력을 찾을 수 없습니다!
계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Warning! It´s not Possible to Define the Selected Input!</source>
        <translation>경고! 선택한 입력을 지정할 수 없습니다!</translation>
    </message>
    <message>
        <source>Playback and Record Volume</source>
        <translation>재생 및 녹음 볼륨</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>볼륨 조절</translation>
    </message>
    <message>
        <source>Wave Sound</source>
        <translation>웨이브 사운드</translation>
    </message>
    <message>
        <source>Record Setting...</source>
        <translation>녹음 설정...</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>녹음</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>입력:</translation>
    </message>
    <message>
        <source>Microfone</source>
        <translation>마이크</translation>
    </message>
    <message>
        <source>Line In</source>
        <translation>라인 입력</translation>
    </message>
    <message>
        <source>Attention! Select the Audio Input in the Windows Record Control!</source>
        <translation>주의! Windows 녹음 컨트롤에서 오디오 입력을 선택하십시오!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Choose the input the recordings are taken from</source>
        <translation>녹음에 사용할 입력을 선택합니다</translation>
    </message>
    <message>
        <source>The client table %s does not match its own header!
It is opened read-only and no change is written to it.</source>
        <translation>환자 데이터베이스 파일 %s이(가) 자체 헤더와 일치하지 않습니다!
읽기 전용으로 열리며 어떤 변경 사항도 저장되지 않습니다.</translation>
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
    <message>
        <source>&amp;Spanish</source>
        <translation>스페인어(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Portuguese</source>
        <translation>포르투갈어(&amp;P)</translation>
    </message>
    <message>
        <source>Show the program in Spanish</source>
        <translation>프로그램을 스페인어로 표시합니다</translation>
    </message>
    <message>
        <source>Show the program in Portuguese</source>
        <translation>프로그램을 포르투갈어로 표시합니다</translation>
    </message>
    <message>
        <source>Do you Want to save the actual File?</source>
        <translation>현재 파일을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Error saving File.</source>
        <translation>파일을 저장하는 중 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Please, Wait ....</source>
        <translation>잠시 기다려 주십시오 ....</translation>
    </message>
    <message>
        <source>No sound reaches the input: check the microphone, its level, and the default input of the system.</source>
        <translation>입력에 소리가 들어오지 않습니다. 마이크와 입력 레벨, 시스템의 기본 입력 장치를 확인하십시오.</translation>
    </message>
    <message>
        <source>Attention: the sound reached full scale (clipping) in this take.</source>
        <translation>주의: 이번 녹음에서 소리가 최대 레벨에 도달했습니다(클리핑).</translation>
    </message>
    <message>
        <source>Input level (peak and RMS, dBFS)</source>
        <translation>입력 레벨 (피크 및 RMS, dBFS)</translation>
    </message>
    <message>
        <source>Wait, starting audio devices...</source>
        <translation>잠시 기다려 주십시오. 오디오 장치를 시작하는 중입니다...</translation>
    </message>
    <message>
        <source>%d Hz, %d Bits</source>
        <translation>%d Hz, %d비트</translation>
    </message>
</context>
</TS>
