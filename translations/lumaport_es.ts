<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>Suelta aquí fotos HEIC o HEIF</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>%1 ha llegado</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Lista: %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>No se pudo convertir %1</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>Esperando el próximo envío del teléfono</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Elegir fotos HEIC</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>Convertir fotos</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>Historial borrado</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>No se pudo vigilar %1</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>Elige la carpeta donde llegan las fotos del teléfono</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>Vigilar esta carpeta</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>Vigilando %1</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>No hay fotos HEIC en %1</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>Carpeta no disponible</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>Comprueba la carpeta vigilada y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>Conversión automática: activada</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>Vigilando %1 en busca de fotos HEIC nuevas.</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>Conversión automática: en pausa</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>Las fotos nuevas no se convertirán hasta que reanudes.</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>Apariencia: %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>Llegadas recientes</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>%n listas</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>Solo borra el historial. Tus fotos se conservan.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Borrar historial</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>Tu próxima foto aparecerá aquí.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>Envía una foto del teléfono a %1 o elige una foto HEIC arriba.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>No se pudo convertir. Prueba a elegir la foto de nuevo.</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>Mostrar %1 en el gestor de archivos</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Salir de Lumaport</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Convertir</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Mostrar panel rápido</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Repetir la bienvenida animada</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Convertir fotos HEIC de la carpeta vigilada</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Ventana</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>Usar el tamaño de ventana recomendado</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Iniciar al entrar en la sesión</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>Este archivo no es una imagen HEIC ni HEIF.</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>No se pudo abrir la imagen. Puede que aún se esté transfiriendo.</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>Lumaport no pudo crear el archivo convertido.</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>No se pudo guardar la imagen convertida.</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>La imagen se convirtió, pero no se pudo archivar el original.</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>Este sistema no permite abrir fotos de forma segura, así que no se convirtió nada.</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>Esperando para convertir</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>Convirtiendo en tu equipo</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>Lista para usar</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>Firma iridiscente «vo» con barra</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>Un poco menos de trabajo. Un poco más de fluidez.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Empezar</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>Abrir la carpeta vigilada: %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>Convirtiendo fotos</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>Convertir a</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>Convertir a %1</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>Elige fotos o suéltalas en la carpeta</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Elegir fotos HEIC</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>Elegir fotos manualmente</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>O suelta aquí fotos HEIC. Los originales siguen siendo tuyos.</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>Privado por diseño. Convertido en tu equipo.</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>Suéltala. La tenemos.</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>Tu foto acaba de llegar.</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>Un poco de magia de formatos.</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>Nuevo formato. El mismo momento.</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>Esta foto necesita atención.</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>Reconectemos tu carpeta.</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>Envíala. Y está lista.</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>Todo listo cuando quieras.</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>Abre las opciones de conversión y elige una carpeta disponible.</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>Reanuda la conversión automática o elige fotos manualmente.</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>Las fotos HEIC nuevas de tu carpeta vigilada pasan a %1, automáticamente.</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>Lumaport</source>
        <translation>Lumaport</translation>
    </message>
    <message>
        <source>Your photo companion</source>
        <translation>Tu compañero de fotos</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>Convirtiendo fotos en este equipo</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>Envía desde el teléfono como siempre. Tu copia PNG o JPEG aparece automáticamente.</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Convertir a</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Abrir Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Salir de Lumaport</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>Necesita atención</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport: %1. Convirtiendo fotos.</translation>
    </message>
    <message>
        <source>Lumaport: %1</source>
        <translation>Lumaport: %1</translation>
    </message>
    <message>
        <source>Lumaport, %1</source>
        <translation>Lumaport, %1</translation>
    </message>
</context>
<context>
    <name>MonitoringControlController</name>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>Foto recibida y lista</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>Convertida localmente. Haz clic para mostrarla en el gestor de archivos.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>Lumaport sigue vigilando</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>Las fotos nuevas se siguen convirtiendo. Inicia Lumaport de nuevo para abrir su ventana.</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>Fotos HEIC y HEIF</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>Junto a los originales</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Carpeta Lumaport</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>Conservar originales</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>Mover a Originals</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>Calidad: %1 %</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>A tu manera</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>Cerrar opciones</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>Carpeta vigilada</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Cambiar…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>Convertir fotos HEIC existentes</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Calidad JPEG</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>Guardar fotos convertidas</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>Fotos originales</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>Avisar al terminar</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>Un sonido de llegada propio. Haz clic en la notificación para mostrar la foto en el gestor de archivos.</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>Tus fotos se quedan en tu equipo.</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>Convertir a</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>Convertir a PNG</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>Convertir a JPEG</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Mostrar panel rápido</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Abrir Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Salir de Lumaport</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>Pausar vigilancia</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>Reanudar vigilancia</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Convertir fotos HEIC de la carpeta vigilada</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Repetir la bienvenida animada</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Iniciar al entrar en la sesión</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Contraído</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>Opciones de conversión</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>Te damos la bienvenida a Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>Espacios de trabajo</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Recepción</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>Fotos recientes</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n lista</numerusform>
            <numerusform>%n listas</numerusform>
        </translation>
    </message>
</context>
</TS>
