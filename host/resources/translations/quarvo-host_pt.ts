<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>BottomBar</name>
    <message>
        <source>%1, %2</source>
        <comment>files and folders</comment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) a second</source>
        <translation>
            <numerusform>%Ln elemento por segundo</numerusform>
            <numerusform>%Ln elementos por segundo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln eliminado</numerusform>
            <numerusform>%Ln eliminados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln ficheiro marcado</numerusform>
            <numerusform>%Ln ficheiros marcados</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Nada marcado</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln oculto pelo filtro</numerusform>
            <numerusform>%Ln ocultos pelo filtro</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Recuperar…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Progresso da análise</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 de %2 livres no destino</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>São precisos %1, só há %2 livres no destino</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Recuperar para %1. Escolher outra pasta…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Escolher a pasta de recuperação</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Terminar a pesquisa</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>“%1” encontrado em %Ln nome</numerusform>
            <numerusform>“%1” encontrado em %Ln nomes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Marcar</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Marcar ou desmarcar muitos ficheiros (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Marcar todas as fotografias</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Marcar todos os ficheiros eliminados</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Marcar tudo em “%1”</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Marcar tudo o que foi encontrado</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Inverter as marcas</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Desmarcar tudo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>O plug-in SDCardScanContentPlugin não se encontra junto do programa.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>Não é possível carregar %1: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 é um plug-in de outro tipo: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>Não é possível abrir “%1”: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Nenhum programa abre “%1”.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Qualquer tamanho</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Até 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 a 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 a 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Mais de 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Qualquer data</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 dias</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Últimos 30 dias</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Último ano</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Há mais de um ano</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Qualquer tipo</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Só eliminados</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Mostrar tudo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>o a os as um uma e de do da dos das em no na com</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Todos os ficheiros</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotografias</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mails</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Bases de dados</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Ficheiros Web</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Outros</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>A análise foi parada. É mostrado o que encontrou.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>Não foi possível ler %Ln elemento, o primeiro: %1</numerusform>
            <numerusform>Não foi possível ler %Ln elementos, o primeiro: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>O cartão de exemplo não foi criado. Abra uma pasta, uma imagem de disco ou um dispositivo.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Abrir imagem de disco</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln ficheiro marcado.</numerusform>
            <numerusform>%Ln ficheiros marcados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln ficheiro desmarcado.</numerusform>
            <numerusform>%Ln ficheiros desmarcados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln marca alterada.</numerusform>
            <numerusform>%Ln marcas alteradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>A alteração foi anulada.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>A alteração foi refeita.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Não há nada para anular.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Não há nada para refazer.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>O ficheiro não contém pré-visualização.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Não há memória suficiente para este ficheiro.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>A imagem é demasiado grande para ser entregue.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>O ficheiro não contém metadados.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>A imagem está danificada ou é de um tipo desconhecido.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>A imagem não indica as suas dimensões.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>A imagem é demasiado grande: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>Não há memória suficiente para uma imagem de %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>O vídeo está danificado: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>O ficheiro não contém nenhuma imagem.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>O vídeo está danificado.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>O vídeo está danificado ou é de um tipo desconhecido: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Não é possível descodificar nenhum fotograma do vídeo.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>O programa quarvo-media não se encontra junto deste: não há miniaturas nem metadados.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Não é possível iniciar o programa %1: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>O programa %1 não responde como devia.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>demorou demasiado tempo</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>o descodificador falhou</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>o descodificador perdeu-se</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>O ficheiro está danificado.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>O ficheiro está danificado: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>Um ficheiro destes não tem metadados legíveis.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Um ficheiro destes não contém imagens.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>A carregar…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Não é possível mostrar esta imagem.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 de %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Imagem anterior</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Imagem seguinte</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>Não há mais espaço em %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>Não há espaço suficiente em %1: o ficheiro precisa de %2, há %3 livres.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>Não é possível criar o ficheiro: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>O conteúdo termina no byte %L1 de %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>A escrita falhou: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 não é uma pasta.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Não é possível criar a pasta %1.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Não é possível escrever em %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Não é possível criar o ficheiro %1: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Há demasiados ficheiros com o nome %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 de %Ln ficheiro</numerusform>
            <numerusform>%1 de %Ln ficheiros</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln ficheiro recuperado para %1.</numerusform>
            <numerusform>%Ln ficheiros recuperados para %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>Não foi possível recuperar %Ln ficheiro.</numerusform>
            <numerusform>Não foi possível recuperar %Ln ficheiros.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperação</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Progresso da recuperação</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Ficheiros que não foi possível recuperar</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Recuperação cancelada</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Recuperação concluída</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Não foi possível recuperar alguns ficheiros</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>A recuperar para %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Recuperar para</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Não há nada para recuperar.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>leitura para além do fim</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>o suporte termina cedo demais</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 não é uma pasta, nem uma imagem de disco, nem um disco.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 está vazio.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 é demasiado pequeno para ser uma imagem de disco.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Não é possível ler %1.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>Já não é possível ler o cartão.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>Não é possível ler o registo do ficheiro.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>Não é possível ler o cartão: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>O registo do ficheiro mudou desde a análise.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>O conteúdo termina no byte %L1 de %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>Não é possível ler o cartão no byte %L1 do ficheiro: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>Havia outro ficheiro eliminado no mesmo lugar; não se sabe qual dos dois ainda lá está.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Uma parte do conteúdo foi substituída por outro ficheiro.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>Uma parte do conteúdo foi substituída pelo ficheiro mais recente %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>A lista dos lugares do ficheiro no cartão está danificada.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>O conteúdo fica para além do fim do cartão.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>O cartão já não indica onde está o conteúdo.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>O cartão já não indica o comprimento do ficheiro nem onde está o seu conteúdo.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Não foi possível ler o ficheiro.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Não é possível ler a pasta %1: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>Não foi possível ler toda a pasta %1: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 desapareceu durante a análise.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>O ficheiro já não está lá.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Não é possível abrir o ficheiro.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Não é possível abrir o ficheiro: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 não contém nenhum sistema de ficheiros legível (FAT, exFAT, NTFS ou ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Ficheiros eliminados sem pasta</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Não foi possível abrir o volume %1.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>O cartão termina antes do seu sistema de ficheiros; alguns ficheiros podem estar cortados.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>Não é possível ler a pasta raiz do cartão.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>Não foi possível ler o cartão todo: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 não existe.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volume n.º %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Volume n.º %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>Não foi possível ler a pasta /%1.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>A pasta /%1 está a demasiada profundidade e não foi lida.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>“%1” está vazio.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Cartão</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Por local</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Onde procurar</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 está no cartão que está a ser recuperado. Escrever aí poderia destruir o que ainda há para recuperar. Escolha uma pasta noutro disco.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 está na pasta que foi analisada. Escolha uma pasta fora dela.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 é a imagem de disco que foi analisada, não uma pasta. Escolha uma pasta.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>Não há espaço suficiente em %1: os ficheiros precisam de %2, só há %3 livres. Escolha outra pasta ou marque menos ficheiros.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln ficheiro</numerusform>
            <numerusform>%Ln ficheiros</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln pasta</numerusform>
            <numerusform>%Ln pastas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Um ficheiro destes não contém imagens.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Abrir pasta…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Abrir imagem de disco…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Analisar de novo</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Parar a análise</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Pesquisar nome</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Lista com detalhes</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Claro ou escuro</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Origem: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Pesquisar descrição</translation>
    </message>
</context>
</TS>
