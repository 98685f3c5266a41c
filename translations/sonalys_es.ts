<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Sonalys</name>
    <message>
        <source>About Sonalys</source>
        <translation>Acerca de Sonalys</translation>
    </message>
    <message>
        <source>version 4.2</source>
        <translation>versión 4.2</translation>
    </message>
    <message>
        <source>Trial Version</source>
        <translation>Versión de prueba</translation>
    </message>
    <message>
        <source>%.1f MB</source>
        <translation>%.1f MB</translation>
    </message>
    <message>
        <source>Physical memory:</source>
        <translation>Memoria física:</translation>
    </message>
    <message>
        <source>Operating system:</source>
        <translation>Sistema operativo:</translation>
    </message>
    <message>
        <source>Select a Client</source>
        <translation>Seleccionar un paciente</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name begins with:</source>
        <translation>El nombre empieza por:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;New Client</source>
        <translation>&amp;Nuevo paciente</translation>
    </message>
    <message>
        <source>Other &amp;Files</source>
        <translation>Otros a&amp;rchivos</translation>
    </message>
    <message>
        <source>&amp;Personal Information</source>
        <translation>&amp;Datos personales</translation>
    </message>
    <message>
        <source>&amp;Delete Client</source>
        <translation>&amp;Eliminar paciente</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Type the Client´s name you want to search!</source>
        <translation>¡Escriba el nombre del paciente que desea buscar!</translation>
    </message>
    <message>
        <source>Client not found!</source>
        <translation>¡No se encontró el paciente!</translation>
    </message>
    <message>
        <source>You need to select a Item!</source>
        <translation>¡Debe seleccionar un elemento!</translation>
    </message>
    <message>
        <source>Error Reading File</source>
        <translation>Error al leer el archivo</translation>
    </message>
    <message>
        <source>Attention, All Information about this Client will be deleted!
Are You sure you want to Continue?</source>
        <translation>¡Atención: se eliminará toda la información de este paciente!
¿Está seguro de que desea continuar?</translation>
    </message>
    <message>
        <source>Client´s folder can´t be deleted!</source>
        <translation>¡No se puede eliminar la carpeta del paciente!</translation>
    </message>
    <message>
        <source>%s - Files</source>
        <translation>%s - Archivos</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Attention!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>Sonalys needs a different video resolution !</source>
        <translation>¡Sonalys necesita otra resolución de pantalla!</translation>
    </message>
    <message>
        <source>Resolution : 800 x 600, 1024 x 768 ou 1280 x 800 pixels</source>
        <translation>Resolución: 800 x 600, 1024 x 768 o 1280 x 800 píxeles</translation>
    </message>
    <message>
        <source>Colors: High Color (16 bits) or better</source>
        <translation>Colores: color de alta densidad (16 bits) o superior</translation>
    </message>
    <message>
        <source>Do you want to change the configuration now ?</source>
        <translation>¿Desea cambiar la configuración ahora?</translation>
    </message>
    <message>
        <source>&amp;Client</source>
        <translation>&amp;Paciente</translation>
    </message>
    <message>
        <source>&amp;Files</source>
        <translation>&amp;Archivos</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Configuración</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nuevo...</translation>
    </message>
    <message>
        <source>P&amp;ersonal Information...</source>
        <translation>&amp;Datos personales...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Volume...</source>
        <translation>Volumen...</translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation>&amp;Inglés</translation>
    </message>
    <message>
        <source>&amp;Korean</source>
        <translation>&amp;Coreano</translation>
    </message>
    <message>
        <source>Contents...</source>
        <translation>Contenido...</translation>
    </message>
    <message>
        <source>&amp;About Sonalys...</source>
        <translation>&amp;Acerca de Sonalys...</translation>
    </message>
    <message>
        <source>Choose a client to work with</source>
        <translation>Elegir el paciente con el que se va a trabajar</translation>
    </message>
    <message>
        <source>Insert a new client</source>
        <translation>Registrar un paciente nuevo</translation>
    </message>
    <message>
        <source>See or change the personal information of the client</source>
        <translation>Ver o modificar los datos personales del paciente</translation>
    </message>
    <message>
        <source>Delete the client and all the client´s recordings</source>
        <translation>Eliminar el paciente y todas sus grabaciones</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>Open a recording of the client</source>
        <translation>Abrir una grabación del paciente</translation>
    </message>
    <message>
        <source>Set the recording and playing volume</source>
        <translation>Ajustar el volumen de grabación y de reproducción</translation>
    </message>
    <message>
        <source>Show the program in English</source>
        <translation>Mostrar el programa en inglés</translation>
    </message>
    <message>
        <source>Show the program in Korean</source>
        <translation>Mostrar el programa en coreano</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation>Abrir la guía del usuario</translation>
    </message>
    <message>
        <source>Show the version of the program and of the computer</source>
        <translation>Mostrar la versión del programa y los datos del equipo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Sonalys was not ended properly in the last utilisation. Please, reduce the screen update rate before starting recording a new sound file.</source>
        <translation>Sonalys no se cerró correctamente la última vez que se usó. Reduzca la velocidad de actualización de la pantalla antes de empezar a grabar un nuevo archivo de sonido.</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Volume Control can´t be  can´t be Inicialized!</source>
        <translation>¡No se puede iniciar el control de volumen!</translation>
    </message>
    <message>
        <source>Error Acessing Client´s folder !</source>
        <translation>¡Error al acceder a la carpeta del paciente!</translation>
    </message>
    <message>
        <source>default</source>
        <translation>predeterminado</translation>
    </message>
    <message>
        <source>Sound File (*.wav)</source>
        <translation>Archivo de sonido (*.wav)</translation>
    </message>
    <message>
        <source>The sounds of &quot;Other Files&quot; belong to no client: there is no personal information to show.</source>
        <translation>Los sonidos de &quot;Otros archivos&quot; no pertenecen a ningún paciente: no hay datos personales que mostrar.</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Paciente</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modificar</translation>
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
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Man</source>
        <translation>Hombre</translation>
    </message>
    <message>
        <source>Woman</source>
        <translation>Mujer</translation>
    </message>
    <message>
        <source>Child</source>
        <translation>Niño</translation>
    </message>
    <message>
        <source>Singer</source>
        <translation>Cantante</translation>
    </message>
    <message>
        <source>Date of birth:</source>
        <translation>Fecha de nacimiento:</translation>
    </message>
    <message>
        <source>(month / day / year)</source>
        <translation>(mes / día / año)</translation>
    </message>
    <message>
        <source>(day / month / year)</source>
        <translation>(día / mes / año)</translation>
    </message>
    <message>
        <source>(year / month / day)</source>
        <translation>(año / mes / día)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ciudad:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado/Provincia:</translation>
    </message>
    <message>
        <source>Postal code:</source>
        <translation>Código postal:</translation>
    </message>
    <message>
        <source>Home phone:</source>
        <translation>Teléfono particular:</translation>
    </message>
    <message>
        <source>Work phone:</source>
        <translation>Teléfono del trabajo:</translation>
    </message>
    <message>
        <source>Observations:</source>
        <translation>Observaciones:</translation>
    </message>
    <message>
        <source>Invalid Day !</source>
        <translation>¡Día no válido!</translation>
    </message>
    <message>
        <source>Invalid Month !</source>
        <translation>¡Mes no válido!</translation>
    </message>
    <message>
        <source>Invalid Year 
Range: 1890 to 2050</source>
        <translation>Año no válido 
Intervalo: de 1890 a 2050</translation>
    </message>
    <message>
        <source>Invalid Year (it must have 4 digits)
Sample.: 1974</source>
        <translation>Año no válido (debe tener 4 dígitos)
Ejemplo: 1974</translation>
    </message>
    <message>
        <source>You need to type the client´s name!</source>
        <translation>¡Debe escribir el nombre del paciente!</translation>
    </message>
    <message>
        <source>The Client is Man/Woman, Singer or Child?</source>
        <translation>¿El paciente es hombre/mujer, cantante o niño?</translation>
    </message>
    <message>
        <source>The Client´s Folder already exist</source>
        <translation>La carpeta del paciente ya existe</translation>
    </message>
    <message>
        <source>The client´s folder %s can´t be created!
The client´s recordings can´t be kept.</source>
        <translation>¡No se puede crear la carpeta del paciente %s!
No se podrán guardar las grabaciones del paciente.</translation>
    </message>
    <message>
        <source>This client is no longer in the client table (another user may have deleted it).
Nothing was changed.</source>
        <translation>Este paciente ya no está en la tabla de pacientes (es posible que otro usuario lo haya eliminado).
No se modificó nada.</translation>
    </message>
    <message>
        <source>Wait, Please...</source>
        <translation>Espere, por favor...</translation>
    </message>
    <message>
        <source>Undefined Type!</source>
        <translation>¡Tipo no definido!</translation>
    </message>
    <message>
        <source>No display settings program was found on this computer.
Please change the screen resolution in the settings of your desktop.</source>
        <translation>No se encontró ningún programa de configuración de pantalla en este equipo.
Cambie la resolución de pantalla en la configuración de su escritorio.</translation>
    </message>
    <message>
        <source>Sonalys Help</source>
        <translation>Ayuda de Sonalys</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>The screen resolution is higher than the options available!
Please select the option 800 x 600, 1024 x 768 ou 1280 x 800 in the next screen!</source>
        <translation>¡La resolución de pantalla es mayor que las opciones disponibles!
¡Seleccione la opción 800 x 600, 1024 x 768 o 1280 x 800 en la siguiente pantalla!</translation>
    </message>
    <message>
        <source>Error Loading Video Setting Program!</source>
        <translation>¡Error al cargar el programa de configuración de pantalla!</translation>
    </message>
    <message>
        <source>It´s not possible to set the resolution!</source>
        <translation>¡No es posible ajustar la resolución!</translation>
    </message>
    <message>
        <source>Voice and speech analysis for speech therapy</source>
        <translation>Análisis de la voz y del habla para fonoaudiología y logopedia</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modo</translation>
    </message>
    <message>
        <source>File needs to have at least 0.5 seconds!</source>
        <translation>¡El archivo debe durar al menos 0,5 segundos!</translation>
    </message>
    <message>
        <source>Error WaveOutPrepareHeader</source>
        <translation>Error en WaveOutPrepareHeader</translation>
    </message>
    <message>
        <source>Error - Loading Buffer</source>
        <translation>Error - Carga del búfer</translation>
    </message>
    <message>
        <source>The sound device reported no error.</source>
        <translation>El dispositivo de sonido no informó ningún error.</translation>
    </message>
    <message>
        <source>The sound device reported an error.</source>
        <translation>El dispositivo de sonido informó un error.</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>No hay ningún dispositivo de sonido disponible.</translation>
    </message>
    <message>
        <source>The sound device is already in use.</source>
        <translation>El dispositivo de sonido ya está en uso.</translation>
    </message>
    <message>
        <source>The sound device is not open.</source>
        <translation>El dispositivo de sonido no está abierto.</translation>
    </message>
    <message>
        <source>The sound system cannot be reached.</source>
        <translation>No se puede acceder al sistema de sonido.</translation>
    </message>
    <message>
        <source>There is not enough memory for the sound device.</source>
        <translation>No hay memoria suficiente para el dispositivo de sonido.</translation>
    </message>
    <message>
        <source>A sound buffer was handed over without data.</source>
        <translation>Se entregó un búfer de sonido sin datos.</translation>
    </message>
    <message>
        <source>The sound device is busy.</source>
        <translation>El dispositivo de sonido está ocupado.</translation>
    </message>
    <message>
        <source>The sound device does not accept this sound format.</source>
        <translation>El dispositivo de sonido no admite este formato de sonido.</translation>
    </message>
    <message>
        <source>The sound device still holds sound buffers.</source>
        <translation>El dispositivo de sonido aún retiene búferes de sonido.</translation>
    </message>
    <message>
        <source>A sound buffer was not prepared.</source>
        <translation>Un búfer de sonido no estaba preparado.</translation>
    </message>
    <message>
        <source>The sound device stopped working.</source>
        <translation>El dispositivo de sonido dejó de funcionar.</translation>
    </message>
    <message>
        <source>The sound device reported error %d.</source>
        <translation>El dispositivo de sonido informó el error %d.</translation>
    </message>
    <message>
        <source>Error Freeing Header!</source>
        <translation>¡Error al liberar el encabezado!</translation>
    </message>
    <message>
        <source>It was not possible to open the Playback channel!</source>
        <translation>¡No fue posible abrir el canal de reproducción!</translation>
    </message>
    <message>
        <source>Error Playing Sound File!</source>
        <translation>¡Error al reproducir el archivo de sonido!</translation>
    </message>
    <message>
        <source>There is no free memory available!</source>
        <translation>¡No hay memoria libre disponible!</translation>
    </message>
    <message>
        <source>Error Loading Header</source>
        <translation>Error al cargar el encabezado</translation>
    </message>
    <message>
        <source>It was not possible to start recording</source>
        <translation>No fue posible iniciar la grabación</translation>
    </message>
    <message>
        <source>Error writing to file
Verify if there is free space!</source>
        <translation>Error al escribir en el archivo
¡Compruebe si hay espacio libre!</translation>
    </message>
    <message>
        <source>Error freeing memory!</source>
        <translation>¡Error al liberar la memoria!</translation>
    </message>
    <message>
        <source>Error stop recording - code: 001</source>
        <translation>Error al detener la grabación - código: 001</translation>
    </message>
    <message>
        <source>Error stop recording - code: 002</source>
        <translation>Error al detener la grabación - código: 002</translation>
    </message>
    <message>
        <source>File not found!</source>
        <translation>¡No se encontró el archivo!</translation>
    </message>
    <message>
        <source>Invalid File!</source>
        <translation>¡Archivo no válido!</translation>
    </message>
    <message>
        <source>Error - There is no free memory available!</source>
        <translation>Error - ¡No hay memoria libre disponible!</translation>
    </message>
    <message>
        <source>The client table %s can´t be written!
The previous table was kept unchanged.</source>
        <translation>¡No se puede escribir la tabla de pacientes %s!
Se conservó la tabla anterior sin cambios.</translation>
    </message>
    <message>
        <source>The client table %s can´t be created!</source>
        <translation>¡No se puede crear la tabla de pacientes %s!</translation>
    </message>
    <message>
        <source>The client table is being changed by another user!
Try again in a moment.</source>
        <translation>¡Otro usuario está modificando la tabla de pacientes!
Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>The client search &quot;%s&quot; can´t be understood!
Only CODIGO = number is accepted.</source>
        <translation>¡No se entiende la búsqueda de pacientes &quot;%s&quot;!
Solo se acepta CODIGO = número.</translation>
    </message>
    <message>
        <source>This client is not in the client table!</source>
        <translation>¡Este paciente no está en la tabla de pacientes!</translation>
    </message>
    <message>
        <source>The client code %d can´t be stored in the client table!
The client was not inserted.</source>
        <translation>¡El código de paciente %d no se puede guardar en la tabla de pacientes!
No se insertó el paciente.</translation>
    </message>
    <message>
        <source>The client code %d was just given to another client!
The client was not inserted.</source>
        <translation>¡El código de paciente %d acaba de asignarse a otro paciente!
No se insertó el paciente.</translation>
    </message>
    <message>
        <source>Error Saving File!</source>
        <translation>¡Error al guardar el archivo!</translation>
    </message>
    <message>
        <source>Error Opening .ddt file!</source>
        <translation>¡Error al abrir el archivo .ddt!</translation>
    </message>
    <message>
        <source>Error saving File!</source>
        <translation>¡Error al guardar el archivo!</translation>
    </message>
    <message>
        <source>Error Saving Notes File!</source>
        <translation>¡Error al guardar el archivo de notas!</translation>
    </message>
    <message>
        <source>File rate must be 44100 Hz, 22050 Hz or 11025 Hz!</source>
        <translation>¡La frecuencia de muestreo del archivo debe ser 44100 Hz, 22050 Hz o 11025 Hz!</translation>
    </message>
    <message>
        <source>The file must be 16 Bits</source>
        <translation>El archivo debe ser de 16 bits</translation>
    </message>
    <message>
        <source>The file can´t be opened!</source>
        <translation>¡No se puede abrir el archivo!</translation>
    </message>
    <message>
        <source>File - %s</source>
        <translation>Archivo - %s</translation>
    </message>
    <message>
        <source>Attention, All Information about this File will be deleted!
Are you Sure you Want to Continue?</source>
        <translation>¡Atención: se eliminará toda la información de este archivo!
¿Está seguro de que desea continuar?</translation>
    </message>
    <message>
        <source>Error deleting File!</source>
        <translation>¡Error al eliminar el archivo!</translation>
    </message>
    <message>
        <source>This file was send to Backup!
It´s necessary to attach backup files to access this file!</source>
        <translation>¡Este archivo se envió a la copia de seguridad!
¡Para acceder a este archivo hay que adjuntar los archivos de la copia de seguridad!</translation>
    </message>
    <message>
        <source>Select a file!</source>
        <translation>¡Seleccione un archivo!</translation>
    </message>
    <message>
        <source>Number of files exceeds to 150!
Insert a new client to continue...</source>
        <translation>¡El número de archivos supera 150!
Inserte un paciente nuevo para continuar...</translation>
    </message>
    <message>
        <source>%s  File - %d</source>
        <translation>%s  Archivo - %d</translation>
    </message>
    <message>
        <source>%02d/%02d/%04d File %d</source>
        <translation>%02d/%02d/%04d Archivo %d</translation>
    </message>
    <message>
        <source>%04d/%02d/%02d File %d</source>
        <translation>%04d/%02d/%02d Archivo %d</translation>
    </message>
    <message>
        <source>The %s file can´t be recorded!
Verify if the file is opened!</source>
        <translation>¡No se puede grabar el archivo %s!
¡Compruebe si el archivo está abierto!</translation>
    </message>
    <message>
        <source>Attention!
It was not possible to read additional information about the sound file!</source>
        <translation>¡Atención!
¡No fue posible leer la información adicional del archivo de sonido!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Attention: This file was recorded in stereo mode. How do you want to open it?</source>
        <translation>Atención: este archivo se grabó en modo estéreo. ¿Cómo desea abrirlo?</translation>
    </message>
    <message>
        <source>Stereo to Mono</source>
        <translation>Estéreo a mono</translation>
    </message>
    <message>
        <source>Only the Left Channel</source>
        <translation>Solo el canal izquierdo</translation>
    </message>
    <message>
        <source>Only the Right Channel</source>
        <translation>Solo el canal derecho</translation>
    </message>
    <message>
        <source>Mix Channels</source>
        <translation>Mezclar los canales</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Invalid Function!</source>
        <translation>¡Función no válida!</translation>
    </message>
    <message>
        <source>Spectrogram</source>
        <translation>Espectrograma</translation>
    </message>
    <message>
        <source>Power Spectrum</source>
        <translation>Espectro de potencia</translation>
    </message>
    <message>
        <source>Time: </source>
        <translation>Tiempo: </translation>
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
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>File %d</source>
        <translation>Archivo %d</translation>
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
        <translation>Línea</translation>
    </message>
    <message>
        <source>You need to select an area!</source>
        <translation>¡Debe seleccionar un área!</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Grabar</translation>
    </message>
    <message>
        <source>&amp;Save Changes...</source>
        <translation>&amp;Guardar cambios...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>P&amp;ropiedades...</translation>
    </message>
    <message>
        <source>&amp;Print Preview</source>
        <translation>&amp;Vista preliminar</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Export graph as a bmp file...</source>
        <translation>Exportar el gráfico como archivo BMP...</translation>
    </message>
    <message>
        <source>Record...</source>
        <translation>Grabación...</translation>
    </message>
    <message>
        <source>&amp;Edit Notes...</source>
        <translation>&amp;Editar notas...</translation>
    </message>
    <message>
        <source>Clean Texts</source>
        <translation>Borrar textos</translation>
    </message>
    <message>
        <source>F0 Setting...</source>
        <translation>Ajustes de F0...</translation>
    </message>
    <message>
        <source>&amp;Backup...</source>
        <translation>Copia de &amp;seguridad...</translation>
    </message>
    <message>
        <source>P&amp;rint Setup...</source>
        <translation>Con&amp;figurar impresión...</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Compare with File...</source>
        <translation>Comparar con un archivo...</translation>
    </message>
    <message>
        <source>Open Model...</source>
        <translation>Abrir modelo...</translation>
    </message>
    <message>
        <source>Save as a Model...</source>
        <translation>Guardar como modelo...</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>&amp;Deshacer	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>Seleccionar &amp;todo	Ctrl+A</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
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
        <translation>Cortar	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copiar	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Pegar	Ctrl+V</translation>
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
        <translation>¡Diseño de filtro demasiado difícil! </translation>
    </message>
    <message>
        <source>Filter will suffer from limit cycles...
</source>
        <translation>El filtro sufrirá ciclos límite...
</translation>
    </message>
    <message>
        <source>Calculating Formants...</source>
        <translation>Calculando los formantes...</translation>
    </message>
    <message>
        <source>Not enough memory to calculate the formants.</source>
        <translation>No hay memoria suficiente para calcular los formantes.</translation>
    </message>
    <message>
        <source>filter: unknown filter type</source>
        <translation>filtro: tipo de filtro desconocido</translation>
    </message>
    <message>
        <source>filter: order of filter too large</source>
        <translation>filtro: orden del filtro demasiado alto</translation>
    </message>
    <message>
        <source>filter: filter order must be even</source>
        <translation>filtro: el orden del filtro debe ser par</translation>
    </message>
    <message>
        <source>filter: out of memory</source>
        <translation>filtro: memoria insuficiente</translation>
    </message>
    <message>
        <source>No simple factors for ratio</source>
        <translation>No hay factores simples para la razón</translation>
    </message>
    <message>
        <source>cannot allocate space for interpolated data</source>
        <translation>no se puede reservar espacio para los datos interpolados</translation>
    </message>
    <message>
        <source>Error Allocating Buffer</source>
        <translation>Error al reservar el búfer</translation>
    </message>
    <message>
        <source>Update Rate</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
    </message>
    <message>
        <source>rate</source>
        <translation>tasa</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Start or stop recording</source>
        <translation>Iniciar o detener la grabación</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>Pausar o reanudar la grabación</translation>
    </message>
    <message>
        <source>Choose the sample rate of new recordings</source>
        <translation>Elegir la frecuencia de muestreo de las nuevas grabaciones</translation>
    </message>
    <message>
        <source>Play or stop the recording</source>
        <translation>Reproducir o detener la grabación</translation>
    </message>
    <message>
        <source>Pause or resume playing</source>
        <translation>Pausar o reanudar la reproducción</translation>
    </message>
    <message>
        <source>How often the picture follows the sound while recording or playing</source>
        <translation>Con qué frecuencia la imagen sigue al sonido durante la grabación o la reproducción</translation>
    </message>
    <message>
        <source>Highest frequency shown</source>
        <translation>Frecuencia máxima mostrada</translation>
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
        <translation>Colores del espectrograma</translation>
    </message>
    <message>
        <source>Analysis bandwidth of the spectrogram</source>
        <translation>Ancho de banda de análisis del espectrograma</translation>
    </message>
    <message>
        <source>Show the F0 curve and its read-out</source>
        <translation>Mostrar la curva de F0 y su lectura</translation>
    </message>
    <message>
        <source>Show the formants</source>
        <translation>Mostrar los formantes</translation>
    </message>
    <message>
        <source>Show or hide the spectrogram</source>
        <translation>Mostrar u ocultar el espectrograma</translation>
    </message>
    <message>
        <source>Dynamic range: drag the pointer, or use the arrow keys</source>
        <translation>Rango dinámico: arrastre el indicador o use las flechas del teclado</translation>
    </message>
    <message>
        <source>FFT Size</source>
        <translation>Tamaño FFT</translation>
    </message>
    <message>
        <source>Visualisation</source>
        <translation>Visualización</translation>
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
        <translation>Color de la curva del espectro</translation>
    </message>
    <message>
        <source>Points of each spectrum: more points, finer frequency detail</source>
        <translation>Puntos de cada espectro: más puntos, más detalle en frecuencia</translation>
    </message>
    <message>
        <source>Draw the spectrum as a filled area or as a line</source>
        <translation>Dibujar el espectro como área rellena o como línea</translation>
    </message>
    <message>
        <source>Show the long-term average spectrum</source>
        <translation>Mostrar el espectro promedio a largo plazo (LTAS)</translation>
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
        <translation>¡Verifique si otro programa está usando el canal de audio o si sus dispositivos de audio están instalados correctamente!
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Mic. Input can´t be found!
Do You want to Continue?</source>
        <translation>¡No se encuentra la entrada de micrófono!
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Warning! It´s not Possible to Define the Selected Input!</source>
        <translation>¡Advertencia! ¡No es posible definir la entrada seleccionada!</translation>
    </message>
    <message>
        <source>Playback and Record Volume</source>
        <translation>Volumen de reproducción y grabación</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>Control de volumen</translation>
    </message>
    <message>
        <source>Wave Sound</source>
        <translation>Sonido Wave</translation>
    </message>
    <message>
        <source>Record Setting...</source>
        <translation>Configuración de grabación...</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Entrada:</translation>
    </message>
    <message>
        <source>Microfone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>Line In</source>
        <translation>Entrada de línea</translation>
    </message>
    <message>
        <source>Attention! Select the Audio Input in the Windows Record Control!</source>
        <translation>¡Atención! ¡Seleccione la entrada de audio en el control de grabación de Windows!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Choose the input the recordings are taken from</source>
        <translation>Elegir la entrada de la que se toman las grabaciones</translation>
    </message>
    <message>
        <source>The client table %s does not match its own header!
It is opened read-only and no change is written to it.</source>
        <translation>¡La tabla de pacientes %s no coincide con su propio encabezado!
Se abre en modo de solo lectura y no se guarda en ella ningún cambio.</translation>
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
        <translation>Fijar la frecuencia mínima y máxima de la curva de F0</translation>
    </message>
    <message>
        <source>&amp;Spanish</source>
        <translation>&amp;Español</translation>
    </message>
    <message>
        <source>&amp;Portuguese</source>
        <translation>&amp;Portugués</translation>
    </message>
    <message>
        <source>Show the program in Spanish</source>
        <translation>Mostrar el programa en español</translation>
    </message>
    <message>
        <source>Show the program in Portuguese</source>
        <translation>Mostrar el programa en portugués</translation>
    </message>
    <message>
        <source>Do you Want to save the actual File?</source>
        <translation>¿Desea guardar el archivo actual?</translation>
    </message>
    <message>
        <source>Error saving File.</source>
        <translation>Error al guardar el archivo.</translation>
    </message>
    <message>
        <source>Please, Wait ....</source>
        <translation>Por favor, espere ....</translation>
    </message>
    <message>
        <source>No sound reaches the input: check the microphone, its level, and the default input of the system.</source>
        <translation>No llega sonido a la entrada: compruebe el micrófono, su nivel y la entrada predeterminada del sistema.</translation>
    </message>
    <message>
        <source>Attention: the sound reached full scale (clipping) in this take.</source>
        <translation>Atención: el sonido alcanzó el nivel máximo (saturación) en esta grabación.</translation>
    </message>
    <message>
        <source>Input level (peak and RMS, dBFS)</source>
        <translation>Nivel de entrada (pico y RMS, dBFS)</translation>
    </message>
    <message>
        <source>Wait, starting audio devices...</source>
        <translation>Espere, iniciando los dispositivos de audio...</translation>
    </message>
    <message>
        <source>%d Hz, %d Bits</source>
        <translation>%d Hz, %d bits</translation>
    </message>
</context>
</TS>
