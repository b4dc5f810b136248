<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
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
            <numerusform>%Ln elemento al secondo</numerusform>
            <numerusform>%Ln elementi al secondo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln eliminato</numerusform>
            <numerusform>%Ln eliminati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln file selezionato</numerusform>
            <numerusform>%Ln file selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Nessuna selezione</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln nascosto dal filtro</numerusform>
            <numerusform>%Ln nascosti dal filtro</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Recupera…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Avanzamento della scansione</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 di %2 liberi nella destinazione</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>Servono %1, solo %2 liberi nella destinazione</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Recupera in %1. Scegli un’altra cartella…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Scegli la cartella di recupero</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Termina la ricerca</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>“%1” trovato in %Ln nome</numerusform>
            <numerusform>“%1” trovato in %Ln nomi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Seleziona o deseleziona molti file (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Seleziona tutte le foto</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Seleziona tutti i file eliminati</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Seleziona tutto in “%1”</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Seleziona tutto ciò che è stato trovato</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Inverti la selezione</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>Il plug-in SDCardScanContentPlugin non si trova accanto al programma.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>Impossibile caricare %1: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 è un plug-in di altro tipo: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>Impossibile aprire “%1”: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Nessun programma apre “%1”.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Qualsiasi dimensione</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Fino a 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>Da 1 a 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>Da 10 a 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Oltre 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Qualsiasi data</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ultimi 7 giorni</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Ultimi 30 giorni</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Ultimo anno</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Più di un anno fa</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Qualsiasi tipo</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Solo eliminati</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
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
        <translation>il lo la i gli le un una e di del della dei da dal in nel nella con su</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>File Web</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archivi</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>La scansione è stata fermata. Viene mostrato ciò che ha trovato.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>Impossibile leggere %Ln elemento, il primo: %1</numerusform>
            <numerusform>Impossibile leggere %Ln elementi, il primo: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>La scheda di esempio non è stata creata. Apri una cartella, un’immagine disco o un dispositivo.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Apri immagine disco</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln file selezionato.</numerusform>
            <numerusform>%Ln file selezionati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln file deselezionato.</numerusform>
            <numerusform>%Ln file deselezionati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln selezione modificata.</numerusform>
            <numerusform>%Ln selezioni modificate.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>La modifica è stata annullata.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>La modifica è stata ripetuta.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Non c’è nulla da annullare.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Non c’è nulla da ripetere.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>Il file non contiene un’anteprima.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>La memoria non basta per questo file.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>L’immagine è troppo grande per essere trasmessa.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>Il file non contiene metadati.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>L’immagine è danneggiata o di tipo sconosciuto.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>L’immagine non indica le proprie dimensioni.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>L’immagine è troppo grande: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>La memoria non basta per un’immagine di %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>Il video è danneggiato: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>Il file non contiene immagini.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>Il video è danneggiato.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>Il video è danneggiato o di tipo sconosciuto: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Impossibile decodificare alcun fotogramma del video.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>Il programma quarvo-media non si trova accanto a questo: non ci sono miniature né metadati.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Impossibile avviare il programma %1: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>Il programma %1 non risponde come dovrebbe.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>ha impiegato troppo tempo</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>il decodificatore si è bloccato</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>il decodificatore si è perso</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Il file è danneggiato.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Il file è danneggiato: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>Un file di questo tipo non ha metadati leggibili.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Un file di questo tipo non contiene immagini.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Caricamento…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Impossibile mostrare questa immagine.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 di %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Immagine precedente</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Immagine successiva</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>Non c’è più spazio in %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>Non c’è abbastanza spazio in %1: il file richiede %2, sono liberi %3.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>Impossibile creare il file: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Il contenuto termina al byte %L1 di %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Scrittura non riuscita: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 non è una cartella.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Impossibile scrivere in %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Impossibile creare il file %1: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Troppi file hanno il nome %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 di %Ln file</numerusform>
            <numerusform>%1 di %Ln file</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 di %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln file recuperato in %1.</numerusform>
            <numerusform>%Ln file recuperati in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>Impossibile recuperare %Ln file.</numerusform>
            <numerusform>Impossibile recuperare %Ln file.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recupero</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Avanzamento del recupero</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>File che non è stato possibile recuperare</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Recupero annullato</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Recupero completato</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Alcuni file non sono stati recuperati</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Recupero in %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Recupera in</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Non c’è nulla da recuperare.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>lettura oltre la fine</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>il supporto termina troppo presto</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 non è una cartella, né un’immagine disco, né un disco.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 è vuoto.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 è troppo piccolo per essere un’immagine disco.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Impossibile leggere %1.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>La scheda non è più leggibile.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>Impossibile leggere la voce del file.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>Impossibile leggere la scheda: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>La voce del file è cambiata dopo la scansione.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Il contenuto termina al byte %L1 di %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>Impossibile leggere la scheda al byte %L1 del file: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>Nello stesso punto c’era un altro file eliminato; non si sa quale dei due ci sia ancora.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Una parte del contenuto è stata sovrascritta da un altro file.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>Una parte del contenuto è stata sovrascritta dal file più recente %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>L’elenco delle posizioni del file sulla scheda è danneggiato.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>Il contenuto si trova oltre la fine della scheda.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>La scheda non indica più dove si trova il contenuto.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>La scheda non indica più quanto era lungo il file e dove si trova il suo contenuto.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Impossibile leggere il file.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Impossibile leggere la cartella %1: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>Impossibile leggere per intero la cartella %1: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 è scomparso durante la scansione.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Il file non c’è più.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Impossibile aprire il file.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Impossibile aprire il file: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 non contiene alcun file system leggibile (FAT, exFAT, NTFS o ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>File eliminati senza cartella</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Impossibile aprire il volume %1.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>La scheda termina prima del suo file system; alcuni file potrebbero essere troncati.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>Impossibile leggere la cartella principale della scheda.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>Impossibile leggere tutta la scheda: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 non esiste.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volume n. %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Volume n. %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>Impossibile leggere la cartella /%1.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>La cartella /%1 è troppo in profondità e non è stata letta.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>“%1” è vuoto.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Scheda</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Per tipo</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Per posizione</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Dove cercare</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 si trova sulla scheda da recuperare. Scriverci potrebbe distruggere ciò che resta da recuperare. Scegli una cartella su un altro disco.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 si trova nella cartella analizzata. Scegli una cartella al di fuori.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 è l’immagine disco analizzata, non una cartella. Scegli una cartella.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>Non c’è abbastanza spazio in %1: i file richiedono %2, sono liberi solo %3. Scegli un’altra cartella o seleziona meno file.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln cartella</numerusform>
            <numerusform>%Ln cartelle</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Un file di questo tipo non contiene immagini.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Apri cartella…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Apri immagine disco…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Ripeti la scansione</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Ferma la scansione</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Cerca per nome</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniature</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Elenco con dettagli</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Chiaro o scuro</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Apri…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Origine: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Cerca per descrizione</translation>
    </message>
</context>
</TS>
