<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>Upuść tu zdjęcia HEIC lub HEIF</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>Dotarło: %1</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Gotowe: %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>Nie udało się przekonwertować %1</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>Czekamy na kolejne zdjęcie z telefonu</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Wybierz zdjęcia HEIC</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>Konwertuj zdjęcia</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>Historia wyczyszczona</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>Nie można obserwować folderu %1</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>Wybierz folder, do którego trafiają zdjęcia z telefonu</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>Obserwuj ten folder</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>Obserwowany folder: %1</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>Nie znaleziono zdjęć HEIC w folderze %1</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>Folder niedostępny</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>Sprawdź obserwowany folder i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>Autokonwersja: włączona</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>Folder %1 jest obserwowany pod kątem nowych zdjęć HEIC.</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>Autokonwersja: wstrzymana</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>Nowe zdjęcia poczekają, aż wznowisz konwersję.</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>Wygląd: %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systemowy</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemny</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>Ostatnio odebrane</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n gotowe</numerusform>
            <numerusform>%n gotowe</numerusform>
            <numerusform>%n gotowych</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>Usuwa tylko historię. Twoje zdjęcia zostają.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Wyczyść historię</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>Tu pojawi się Twoje następne zdjęcie.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>Wyślij zdjęcie z telefonu do folderu %1 lub wybierz zdjęcie HEIC powyżej.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>Konwersja się nie udała. Wybierz zdjęcie jeszcze raz.</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>Pokaż %1 w menedżerze plików</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Zamknij okno</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Zakończ Lumaport</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Konwersja</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Pokaż szybki panel</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Odtwórz powitanie ponownie</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Konwertuj zdjęcia HEIC z obserwowanego folderu</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Okno</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>Użyj zalecanego rozmiaru okna</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Uruchamiaj przy logowaniu</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>Ten plik nie jest obrazem HEIC ani HEIF.</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>Nie można otworzyć obrazu. Być może wciąż trwa przesyłanie.</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>Lumaport nie może utworzyć przekonwertowanego pliku.</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>Nie można zapisać przekonwertowanego obrazu.</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>Obraz przekonwertowano, ale nie udało się zarchiwizować oryginału.</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>W tym systemie nie można bezpiecznie otwierać zdjęć, więc niczego nie przekonwertowano.</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>Czeka na konwersję</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>Konwersja na Twoim komputerze</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>Gotowe do użycia</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>Opalizujący podpis „vo” z ukośnikiem</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>Trochę mniej pracy. Trochę więcej lekkości.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Zaczynamy</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>Otwórz obserwowany folder: %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>Konwertowanie zdjęć</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>Konwertuj na</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>Konwertuj na %1</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>Wybierz zdjęcia lub upuść je do folderu</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Wybierz zdjęcia HEIC</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>Wybierz zdjęcia ręcznie</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>Albo upuść tu zdjęcia HEIC. Oryginały pozostają Twoje.</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>Prywatność z założenia. Konwersja na Twoim komputerze.</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>Upuść. My się tym zajmiemy.</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>Twoje zdjęcie właśnie dotarło.</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>Odrobina magii formatów.</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>Nowy format. Ta sama chwila.</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>To zdjęcie wymaga uwagi.</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>Połączmy ponownie Twój folder.</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>Wyślij. I gotowe.</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>Gotowe, kiedy zechcesz.</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>Otwórz opcje konwersji i wybierz dostępny folder.</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>Wznów automatyczną konwersję lub wybierz zdjęcia ręcznie.</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>Nowe zdjęcia HEIC w obserwowanym folderze automatycznie zmieniają się w %1.</translation>
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
        <translation>Twój fotograficzny towarzysz</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>Konwertowanie zdjęć na tym komputerze</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>Wysyłaj z telefonu jak zwykle. Kopia PNG lub JPEG pojawi się automatycznie.</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Konwertuj na</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Otwórz Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Zakończ Lumaport</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>Wymaga uwagi</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport: %1. Konwertowanie zdjęć.</translation>
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
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>Zdjęcie dotarło i jest gotowe</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>Przekonwertowano lokalnie. Kliknij, aby pokazać w menedżerze plików.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>Lumaport nadal obserwuje</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>Nowe zdjęcia są nadal konwertowane. Uruchom Lumaport ponownie, aby otworzyć okno.</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>Zdjęcia HEIC i HEIF</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>Obok oryginałów</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Folder Lumaport</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>Zachowaj oryginały</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>Przenieś do Originals</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>Jakość: %1%</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>Po swojemu</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>Zamknij opcje</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>Obserwowany folder</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Zmień…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>Konwertuj istniejące zdjęcia HEIC</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Jakość JPEG</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>Zapis przekonwertowanych zdjęć</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>Oryginalne zdjęcia</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>Powiadom, gdy gotowe</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>Własny dźwięk nadejścia. Kliknij powiadomienie, aby pokazać gotowe zdjęcie w menedżerze plików.</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>Twoje zdjęcia zostają na Twoim komputerze.</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>Konwertuj na</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>Konwertuj na PNG</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>Konwertuj na JPEG</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Pokaż szybki panel</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Otwórz Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Zakończ Lumaport</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>Wstrzymaj obserwowanie</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>Wznów obserwowanie</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Konwertuj zdjęcia HEIC z obserwowanego folderu</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Odtwórz powitanie ponownie</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Uruchamiaj przy logowaniu</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>Rozwinięte</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zwinięte</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>Opcje konwersji</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>Witamy w Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>Obszary robocze</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Odbiór</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>Ostatnie zdjęcia</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n gotowe</numerusform>
            <numerusform>%n gotowe</numerusform>
            <numerusform>%n gotowych</numerusform>
        </translation>
    </message>
</context>
</TS>
