<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>Trascina qui le foto HEIC o HEIF</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>%1 è arrivata</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Pronta: %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>Impossibile convertire %1</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>In attesa del prossimo invio dal telefono</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Scegli foto HEIC</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>Converti foto</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>Cronologia cancellata</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>Impossibile monitorare %1</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>Scegli la cartella in cui arrivano le foto dal telefono</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>Monitora questa cartella</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>Monitoraggio di %1</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>Nessuna foto HEIC trovata in %1</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>Cartella non disponibile</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>Controlla la cartella monitorata, poi riprova.</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>Conversione automatica: attiva</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>Monitoraggio di %1 per nuove foto HEIC.</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>Conversione automatica: in pausa</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>I nuovi arrivi non verranno convertiti finché non riprendi.</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>Aspetto: %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostra nel gestore file</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>Arrivi recenti</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n pronta</numerusform>
            <numerusform>%n pronte</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>Cancella solo la cronologia. Le tue foto restano.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Cancella cronologia</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>La tua prossima foto va qui.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>Invia una foto dal telefono in %1 o scegli una foto HEIC qui sopra.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>Conversione non riuscita. Prova a scegliere di nuovo la foto.</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>Mostra %1 nel gestore file</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Chiudi finestra</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Esci da Lumaport</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Converti</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Mostra pannello rapido</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Rivedi il benvenuto animato</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Converti le foto HEIC nella cartella monitorata</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fi&amp;nestra</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>Usa le dimensioni finestra consigliate</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Avvia all’accesso</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>Questo file non è un’immagine HEIC o HEIF.</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>Impossibile aprire l’immagine. Forse il trasferimento è ancora in corso.</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>Lumaport non ha potuto creare il file convertito.</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>Impossibile salvare l’immagine convertita.</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>L’immagine è convertita, ma non è stato possibile archiviare l’originale.</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>Su questo sistema non è possibile aprire le foto in sicurezza, quindi nulla è stato convertito.</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>In attesa di conversione</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>Conversione sul tuo computer</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>Pronta all’uso</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>Firma iridescente «vo» con barra</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>Un po’ meno lavoro. Un po’ più fluidità.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Inizia</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>Apri la cartella monitorata: %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>Conversione delle foto</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>Converti in</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>Converti in %1</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>Scegli le foto o trascinale nella cartella</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Scegli foto HEIC</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>Scegli le foto manualmente</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>Oppure trascina qui le foto HEIC. Gli originali restano tuoi.</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostra nel gestore file</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>Privato per natura. Convertito sul tuo computer.</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>Lasciala. Ci pensiamo noi.</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>La tua foto è appena arrivata.</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>Un pizzico di magia.</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>Nuovo formato. Stesso momento.</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>Questa foto richiede attenzione.</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>Ricolleghiamo la tua cartella.</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>Inviala. È pronta.</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>Pronto quando vuoi.</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>Apri le opzioni di conversione per scegliere una cartella disponibile.</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>Riprendi la conversione automatica o scegli le foto manualmente.</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>Le nuove foto HEIC nella cartella monitorata diventano %1, automaticamente.</translation>
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
        <translation>Il tuo compagno per le foto</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>Conversione delle foto su questo computer</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>Invia dal telefono come sempre. La copia PNG o JPEG compare automaticamente.</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Converti in</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Apri Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Esci da Lumaport</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>Richiede attenzione</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport: %1. Conversione delle foto.</translation>
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
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>Foto arrivata e pronta</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>Convertita localmente. Fai clic per mostrarla nel gestore file.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostra nel gestore file</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>Lumaport continua a osservare</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>Le nuove foto vengono ancora convertite. Avvia di nuovo Lumaport per aprire la finestra.</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>Foto HEIC e HEIF</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>Accanto agli originali</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Cartella Lumaport</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>Mantieni gli originali</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>Sposta in Originals</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>Qualità: %1%</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>A modo tuo</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>Chiudi opzioni</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>Cartella monitorata</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Cambia…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>Converti le foto HEIC esistenti</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualità JPEG</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>Salva le foto convertite</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>Foto originali</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>Avvisa quando pronta</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>Un suono di arrivo dedicato. Fai clic sulla notifica per mostrare la foto nel gestore file.</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>Le tue foto restano sul tuo computer.</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>Converti in</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
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
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostra nel gestore file</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>Converti in PNG</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>Converti in JPEG</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Mostra pannello rapido</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Apri Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Esci da Lumaport</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>Sospendi monitoraggio</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>Riprendi monitoraggio</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Converti le foto HEIC nella cartella monitorata</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Rivedi il benvenuto animato</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Avvia all’accesso</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>Espanso</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Compresso</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>Opzioni di conversione</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>Benvenuto in Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>Aree di lavoro</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Ricezione</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>Foto recenti</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n pronta</numerusform>
            <numerusform>%n pronte</numerusform>
        </translation>
    </message>
</context>
</TS>
