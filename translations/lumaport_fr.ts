<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>Déposez des photos HEIC ou HEIF ici</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>%1 est arrivée</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Prête : %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>Impossible de convertir %1</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>En attente du prochain envoi du téléphone</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Choisir des photos HEIC</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>Convertir les photos</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>Historique effacé</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>Impossible de surveiller %1</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>Choisissez le dossier qui reçoit les photos du téléphone</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>Surveiller ce dossier</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>Surveillance de %1</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>Aucune photo HEIC trouvée dans %1</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>Dossier indisponible</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>Vérifiez le dossier surveillé, puis réessayez.</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>Conversion auto : activée</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>Surveillance des nouvelles photos HEIC dans %1.</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>Conversion auto : en pause</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>Les nouvelles photos attendront que vous repreniez.</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>Apparence : %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>Arrivées récentes</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n prête</numerusform>
            <numerusform>%n prêtes</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>Efface uniquement l’historique. Vos photos sont conservées.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>Votre prochaine photo viendra ici.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>Envoyez une photo du téléphone vers %1, ou choisissez une photo HEIC ci-dessus.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>Conversion impossible. Choisissez à nouveau la photo.</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>Afficher %1 dans le gestionnaire de fichiers</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Quitter Lumaport</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Convertir</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Afficher le panneau rapide</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Revoir l’accueil animé</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Convertir les photos HEIC du dossier surveillé</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>Utiliser la taille de fenêtre recommandée</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>Ce fichier n’est pas une image HEIC ou HEIF.</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>Impossible d’ouvrir l’image. Le transfert est peut-être encore en cours.</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>Lumaport n’a pas pu créer le fichier converti.</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>Impossible d’enregistrer l’image convertie.</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>L’image est convertie, mais l’original n’a pas pu être archivé.</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>Ce système ne permet pas d’ouvrir des photos en toute sécurité ; rien n’a été converti.</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>En attente de conversion</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>Conversion sur votre ordinateur</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>Prête à l’emploi</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>Signature irisée « vo » barre oblique</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>Un peu moins d’effort. Un peu plus de fluidité.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Commencer</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>Ouvrir le dossier surveillé : %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>Conversion des photos</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>Convertir en</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>Convertir en %1</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>Choisir des photos, ou les déposer dans le dossier</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Choisir des photos HEIC</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>Choisir des photos manuellement</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>Ou déposez des photos HEIC ici. Vos originaux restent à vous.</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>Confidentiel par nature. Converti sur votre ordinateur.</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>Lâchez. On s’en occupe.</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>Votre photo vient d’arriver.</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>Un peu de magie de format.</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>Nouveau format. Même instant.</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>Cette photo demande votre attention.</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>Reconnectons votre dossier.</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>Envoyez-la. Elle est prête.</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>Prêt quand vous l’êtes.</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>Ouvrez les options de conversion pour choisir un dossier disponible.</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>Reprenez la conversion automatique, ou choisissez des photos manuellement.</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>Les nouvelles photos HEIC du dossier surveillé deviennent des %1, automatiquement.</translation>
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
        <translation>Votre compagnon photo</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>Conversion des photos sur cet ordinateur</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>Envoyez depuis le téléphone comme d’habitude. La copie PNG ou JPEG apparaît automatiquement.</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Convertir en</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Ouvrir Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Quitter Lumaport</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>Attention requise</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport : %1. Conversion des photos.</translation>
    </message>
    <message>
        <source>Lumaport: %1</source>
        <translation>Lumaport : %1</translation>
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
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>Photo arrivée et prête</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>Convertie localement. Cliquez pour l’afficher dans le gestionnaire de fichiers.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>Lumaport continue de surveiller</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>Les nouvelles photos sont toujours converties. Relancez Lumaport pour ouvrir sa fenêtre.</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>Photos HEIC et HEIF</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>À côté des originaux</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Dossier Lumaport</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>Garder les originaux</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>Ranger dans Originals</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>Qualité : %1 %</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>À votre façon</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>Fermer les options</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>Dossier surveillé</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>Convertir les photos HEIC existantes</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualité JPEG</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>Enregistrer les photos converties</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>Photos originales</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>Notifier quand c’est prêt</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>Un carillon d’arrivée exclusif. Cliquez sur la notification pour afficher la photo dans le gestionnaire de fichiers.</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>Vos photos restent sur votre ordinateur.</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>Convertir en</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>Convertir en PNG</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>Convertir en JPEG</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Afficher le panneau rapide</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Ouvrir Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Quitter Lumaport</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>Suspendre la surveillance</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>Reprendre la surveillance</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Convertir les photos HEIC du dossier surveillé</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Revoir l’accueil animé</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>Options de conversion</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>Bienvenue dans Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>Espaces de travail</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Réception</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>Photos récentes</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n prête</numerusform>
            <numerusform>%n prêtes</numerusform>
        </translation>
    </message>
</context>
</TS>
