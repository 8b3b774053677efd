<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>HEIC- oder HEIF-Fotos hier ablegen</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>%1 ist angekommen</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Fertig: %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>%1 ließ sich nicht umwandeln</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>Bereit für das nächste Foto vom Telefon</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>HEIC-Fotos auswählen</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>Fotos umwandeln</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>Verlauf gelöscht</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>%1 lässt sich nicht überwachen</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>Ordner auswählen, in dem Fotos vom Telefon landen</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>Diesen Ordner überwachen</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>%1 wird überwacht</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>Keine HEIC-Fotos in %1 gefunden</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>Ordner nicht verfügbar</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>Prüfe den überwachten Ordner und versuche es erneut.</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>Automatik: ein</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>%1 wird auf neue HEIC-Fotos überwacht.</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>Automatik: angehalten</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>Neue Fotos werden erst nach dem Fortsetzen umgewandelt.</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>Erscheinungsbild: %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>Zuletzt angekommen</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n fertig</numerusform>
            <numerusform>%n fertig</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>Löscht nur den Verlauf. Deine Fotos bleiben erhalten.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>Dein nächstes Foto kommt hierhin.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>Sende Fotos vom Telefon an %1 oder wähle oben ein HEIC-Foto.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>Umwandeln fehlgeschlagen. Wähle das Foto noch einmal aus.</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>%1 im Dateimanager anzeigen</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Lumaport beenden</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Umwandeln</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Schnellzugriff anzeigen</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Begrüßung erneut abspielen</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>HEIC-Fotos im überwachten Ordner umwandeln</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>Empfohlene Fenstergröße verwenden</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Bei Anmeldung starten</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>Diese Datei ist kein HEIC- oder HEIF-Bild.</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>Das Bild ließ sich nicht öffnen. Vielleicht wird es noch übertragen.</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>Lumaport konnte die umgewandelte Datei nicht erstellen.</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>Das umgewandelte Bild ließ sich nicht speichern.</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>Das Bild wurde umgewandelt, das Original ließ sich aber nicht verschieben.</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>Fotos lassen sich auf diesem System nicht sicher öffnen, daher wurde nichts umgewandelt.</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>Wartet auf Umwandlung</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>Wird auf deinem Computer umgewandelt</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>Schillernde Signatur „vo“ mit Schrägstrich</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>Weniger Aufwand. Mehr Leichtigkeit.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>Überwachten Ordner öffnen: %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>Fotos werden umgewandelt</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>Umwandeln in</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>In %1 umwandeln</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>Fotos auswählen oder in den Ordner legen</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>HEIC-Fotos auswählen</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>Fotos selbst auswählen</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>Oder HEIC-Fotos hier ablegen. Originale bleiben deine.</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>Von Grund auf privat. Auf deinem Computer umgewandelt.</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>Lass los. Wir haben’s.</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>Dein Foto ist da.</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>Ein wenig Formatzauber.</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>Neues Format. Derselbe Moment.</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>Dieses Foto braucht dich kurz.</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>Verbinden wir deinen Ordner neu.</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>Einfach senden. Schon fertig.</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>Bereit, wenn du es bist.</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>Wähle in den Optionen einen verfügbaren Ordner.</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>Setze die Automatik fort oder wähle Fotos selbst aus.</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>Neue HEIC-Fotos im überwachten Ordner werden automatisch zu %1.</translation>
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
        <translation>Dein Begleiter für Fotos</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>Fotos werden auf diesem Computer umgewandelt</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>Sende Fotos wie gewohnt vom Telefon. Deine PNG- oder JPEG-Kopie erscheint von selbst.</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Umwandeln in</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Lumaport öffnen</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Lumaport beenden</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>Braucht Aufmerksamkeit</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport: %1. Fotos werden umgewandelt.</translation>
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
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>Foto angekommen und bereit</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>Auf diesem Computer umgewandelt. Klicken, um das Foto im Dateimanager anzuzeigen.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>Lumaport überwacht weiter</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>Neue Fotos werden weiterhin umgewandelt. Starte Lumaport erneut, um das Fenster zu öffnen.</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>HEIC- und HEIF-Fotos</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>Neben den Originalen</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Ordner „Lumaport“</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>Originale behalten</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>In „Originals“ legen</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>Qualität %1 %</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>Ganz nach dir</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>Optionen schließen</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>Überwachter Ordner</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Ändern …</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>Vorhandene HEIC-Fotos umwandeln</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG-Qualität</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>Umgewandelte Fotos sichern</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>Originalfotos</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>Melden, wenn fertig</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>Ein eigener Ankunftston. Klicke auf die Benachrichtigung, um das fertige Foto im Dateimanager anzuzeigen.</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>Deine Fotos bleiben auf deinem Computer.</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>Umwandeln in</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>Fertig</translation>
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
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>In PNG umwandeln</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>In JPEG umwandeln</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Schnellzugriff anzeigen</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Lumaport öffnen</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Lumaport beenden</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>Überwachung anhalten</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>Überwachung fortsetzen</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>HEIC-Fotos im überwachten Ordner umwandeln</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Begrüßung erneut abspielen</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Bei Anmeldung starten</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>Ausgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Eingeklappt</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>Umwandlungsoptionen</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>Willkommen bei Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>Arbeitsbereiche</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Empfang</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>Letzte Fotos</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n fertig</numerusform>
            <numerusform>%n fertig</numerusform>
        </translation>
    </message>
</context>
</TS>
