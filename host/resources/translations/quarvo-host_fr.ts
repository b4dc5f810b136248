<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
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
            <numerusform>%Ln élément par seconde</numerusform>
            <numerusform>%Ln éléments par seconde</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln supprimé</numerusform>
            <numerusform>%Ln supprimés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln fichier coché</numerusform>
            <numerusform>%Ln fichiers cochés</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Rien n’est coché</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln masqué par le filtre</numerusform>
            <numerusform>%Ln masqués par le filtre</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Récupérer…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Progression de l’analyse</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 sur %2 libres à destination</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 nécessaires, seulement %2 libres à destination</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Récupérer vers %1. Choisir un autre dossier…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Choisir le dossier de récupération</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Niveau supérieur</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Quitter la recherche</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» trouvé dans %Ln nom</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» trouvé dans %Ln noms</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Cocher</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Cocher ou décocher plusieurs fichiers (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Cocher toutes les photos</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Cocher tous les fichiers supprimés</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Cocher tout dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Cocher tout ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Inverser les coches</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Tout décocher</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>Le module SDCardScanContentPlugin ne se trouve pas à côté du programme.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 ne peut pas être chargé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 est un module d’un autre type&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert&#xa0;: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Aucun programme n’ouvre «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Toute taille</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Jusqu’à 1 Mo</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 à 10 Mo</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 à 100 Mo</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Plus de 100 Mo</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Toute date</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>12 derniers mois</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Plus d’un an</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Tout type</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Supprimés seulement</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>de du des d’un une le la les et en au aux avec dans sur</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mails</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Bases de données</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Fichiers Web</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>L’analyse a été arrêtée. Ce qu’elle a trouvé est affiché.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln élément n’a pas pu être lu, le premier&#xa0;: %1</numerusform>
            <numerusform>%Ln éléments n’ont pas pu être lus, le premier&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>La carte d’exemple n’a pas été créée. Ouvrez un dossier, une image disque ou un périphérique.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Ouvrir une image disque</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln fichier coché.</numerusform>
            <numerusform>%Ln fichiers cochés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln fichier décoché.</numerusform>
            <numerusform>%Ln fichiers décochés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln coche modifiée.</numerusform>
            <numerusform>%Ln coches modifiées.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>La modification a été annulée.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>La modification a été rétablie.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>Le fichier ne contient pas d’aperçu.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>La mémoire ne suffit pas pour ce fichier.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>L’image est trop grande pour être transmise.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>Le fichier ne contient pas de métadonnées.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>L’image est endommagée ou d’un type inconnu.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>L’image n’indique pas ses dimensions.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>L’image est trop grande&#xa0;: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>La mémoire ne suffit pas pour une image de %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>La vidéo est endommagée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>Le fichier ne contient pas d’image.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>La vidéo est endommagée.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>La vidéo est endommagée ou d’un type inconnu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Aucune image de la vidéo ne peut être décodée.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>Le programme quarvo-media ne se trouve pas à côté de celui-ci&#xa0;: ni miniatures ni métadonnées.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Le programme %1 ne peut pas être démarré&#xa0;: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>Le programme %1 ne répond pas comme il le devrait.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>l’opération a duré trop longtemps</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>le décodeur s’est arrêté brutalement</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>le décodeur s’est égaré</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Le fichier est endommagé.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Le fichier est endommagé&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>Un tel fichier n’a pas de métadonnées lisibles.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Un tel fichier ne contient pas d’image.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Cette image ne peut pas être affichée.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 sur %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Image suivante</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>Il n’y a plus de place dans %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>Il n’y a pas assez de place dans %1&#xa0;: le fichier demande %2, %3 sont libres.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>Le fichier ne peut pas être créé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Le contenu s’arrête à l’octet %L1 sur %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Échec de l’écriture&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Impossible d’écrire dans %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Le fichier %1 ne peut pas être créé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Trop de fichiers portent le nom %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 sur %Ln fichier</numerusform>
            <numerusform>%1 sur %Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln fichier récupéré dans %1.</numerusform>
            <numerusform>%Ln fichiers récupérés dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln fichier n’a pas pu être récupéré.</numerusform>
            <numerusform>%Ln fichiers n’ont pas pu être récupérés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Progression de la récupération</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Fichiers non récupérés</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Récupération annulée</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Récupération terminée</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Certains fichiers n’ont pas pu être récupérés</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Récupération vers %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Récupérer vers</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Il n’y a rien à récupérer.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>lecture au-delà de la fin</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>le support s’arrête trop tôt</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 n’est ni un dossier, ni une image disque, ni un disque.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 est vide.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 est trop petit pour être une image disque.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>La carte n’est plus lisible.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>La fiche du fichier ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>La carte ne peut pas être lue&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>La fiche du fichier a changé depuis l’analyse.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Le contenu s’arrête à l’octet %L1 sur %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>La carte ne peut pas être lue à l’octet %L1 du fichier&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>Un autre fichier supprimé se trouvait au même endroit&#xa0;; on ignore lequel des deux y est encore.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Une partie du contenu a été écrasée par un autre fichier.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>Une partie du contenu a été écrasée par le fichier plus récent %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>La liste des emplacements du fichier sur la carte est endommagée.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>Le contenu se trouve au-delà de la fin de la carte.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>La carte n’indique plus où se trouve le contenu.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>La carte n’indique plus la longueur du fichier ni l’endroit de son contenu.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Le fichier n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Le dossier %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>Le dossier %1 n’a pas pu être lu en entier&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 a disparu pendant l’analyse.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Le fichier n’est plus là.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Le fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Le fichier ne peut pas être ouvert&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 ne contient aucun système de fichiers lisible (FAT, exFAT, NTFS ou ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Fichiers supprimés sans dossier</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Le volume %1 n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>La carte se termine avant son système de fichiers&#xa0;; des fichiers peuvent être tronqués.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>Le dossier racine de la carte ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>La carte n’a pas pu être lue partout&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 n’existe pas.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volume n°&#xa0;%1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Volume n°&#xa0;%1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>Le dossier /%1 n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>Le dossier /%1 est trop profond et n’a pas été lu.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>«&#xa0;%1&#xa0;» est vide.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Par type</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Par dossier</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Où chercher</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 se trouve sur la carte à récupérer. Y écrire pourrait détruire ce qui reste à récupérer. Choisissez un dossier sur un autre disque.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 se trouve dans le dossier analysé. Choisissez un dossier en dehors.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 est l’image disque analysée, pas un dossier. Choisissez un dossier.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>Il n’y a pas assez de place dans %1&#xa0;: les fichiers demandent %2, seulement %3 sont libres. Choisissez un autre dossier ou cochez moins de fichiers.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln dossier</numerusform>
            <numerusform>%Ln dossiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Un tel fichier ne contient pas d’image.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Ouvrir une image disque…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Relancer l’analyse</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Arrêter l’analyse</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniatures</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Liste avec détails</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Clair ou sombre</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Source&#xa0;: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Rechercher par description</translation>
    </message>
</context>
</TS>
