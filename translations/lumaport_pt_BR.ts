<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>Solte fotos HEIC ou HEIF aqui</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>%1 chegou</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Pronta: %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>Não foi possível converter %1</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>Aguardando o próximo envio do celular</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Escolher fotos HEIC</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>Converter fotos</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>Histórico limpo</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>Não foi possível monitorar %1</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>Escolha a pasta onde chegam as fotos do celular</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>Monitorar esta pasta</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>Monitorando %1</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>Nenhuma foto HEIC encontrada em %1</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>Pasta indisponível</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>Verifique a pasta monitorada e tente novamente.</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>Conversão automática: ativada</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>Monitorando %1 em busca de novas fotos HEIC.</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>Conversão automática: pausada</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>As novas fotos só serão convertidas quando você retomar.</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>Aparência: %1</translation>
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
        <translation>Escuro</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>Chegadas recentes</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n pronta</numerusform>
            <numerusform>%n prontas</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>Remove apenas o histórico. Suas fotos são mantidas.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>Sua próxima foto aparece aqui.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>Envie uma foto do celular para %1 ou escolha uma foto HEIC acima.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>Não foi possível converter. Tente escolher a foto novamente.</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>Mostrar %1 no gerenciador de arquivos</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fechar janela</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Sair do Lumaport</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Converter</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Mostrar painel rápido</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Rever as boas-vindas animadas</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Converter fotos HEIC da pasta monitorada</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Janela</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>Usar tamanho de janela recomendado</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Iniciar ao entrar na sessão</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>Este arquivo não é uma imagem HEIC ou HEIF.</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>Não foi possível abrir a imagem. Talvez ela ainda esteja sendo transferida.</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>O Lumaport não conseguiu criar o arquivo convertido.</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>Não foi possível gravar a imagem convertida.</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>A imagem foi convertida, mas não foi possível arquivar o original.</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>Não é possível abrir fotos com segurança neste sistema, então nada foi convertido.</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>Aguardando conversão</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>Convertendo no seu computador</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>Pronta para usar</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>Assinatura iridescente “vo” com barra</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>Um pouco menos de trabalho. Um pouco mais de fluidez.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Começar</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>Abrir a pasta monitorada: %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>Convertendo fotos</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>Converter para</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>Converter para %1</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>Escolha fotos ou solte-as na pasta</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>Escolher fotos HEIC</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>Escolher fotos manualmente</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>Ou solte fotos HEIC aqui. Os originais continuam seus.</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>Privado por natureza. Convertido no seu computador.</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>Pode soltar. É com a gente.</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>Sua foto acabou de chegar.</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>Um toque de mágica no formato.</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>Novo formato. Mesmo momento.</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>Esta foto precisa de atenção.</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>Vamos reconectar sua pasta.</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>Envie. Já está pronta.</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>Pronto quando você quiser.</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>Abra as opções de conversão para escolher uma pasta disponível.</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>Retome a conversão automática ou escolha fotos manualmente.</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>As novas fotos HEIC da pasta monitorada viram %1, automaticamente.</translation>
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
        <translation>Seu companheiro de fotos</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>Convertendo fotos neste computador</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>Envie do celular como sempre. Sua cópia PNG ou JPEG aparece automaticamente.</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Converter para</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Abrir o Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Sair do Lumaport</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>Precisa de atenção</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport: %1. Convertendo fotos.</translation>
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
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>Foto recebida e pronta</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>Convertida localmente. Clique para mostrá-la no gerenciador de arquivos.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>O Lumaport continua observando</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>As novas fotos continuam sendo convertidas. Inicie o Lumaport de novo para abrir a janela.</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>Fotos HEIC e HEIF</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>Junto aos originais</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>Pasta Lumaport</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>Manter originais</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>Mover para Originals</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>Qualidade: %1%</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>Do seu jeito</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>Fechar opções</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>Pasta monitorada</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Alterar…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>Converter fotos HEIC existentes</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualidade JPEG</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>Salvar fotos convertidas</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>Fotos originais</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>Avisar quando pronta</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>Um som de chegada exclusivo. Clique na notificação para mostrar a foto pronta no gerenciador de arquivos.</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>Suas fotos ficam no seu computador.</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>Converter para</translation>
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
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>Converter para PNG</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>Converter para JPEG</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>Mostrar painel rápido</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>Abrir o Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>Sair do Lumaport</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>Pausar monitoramento</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>Retomar monitoramento</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>Converter fotos HEIC da pasta monitorada</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>Rever as boas-vindas animadas</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>Iniciar ao entrar na sessão</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>Expandido</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Recolhido</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>Opções de conversão</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>Boas-vindas ao Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>Áreas de trabalho</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Receber</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>Fotos recentes</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n pronta</numerusform>
            <numerusform>%n prontas</numerusform>
        </translation>
    </message>
</context>
</TS>
