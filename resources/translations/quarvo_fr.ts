<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mails</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Bases de données</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Fichiers Web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Fichiers non enregistrés</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeux</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Emplacements perdus</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modifié le</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Emplacement</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>Carte SD</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Fichiers supprimés</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Fichiers sans nom</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Toutes les dates</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Date inconnue</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>SizeUnit_KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>SizeUnit_MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>SizeUnit_GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>SizeUnit_TB</source>
        <translation>To</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Modifié le</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Fichier existant</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Fichier supprimé</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>Sensibilité ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Marque de l’appareil</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Modèle de l’appareil</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Temps d’exposition</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Longueur focale</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Afficher dans son dossier</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>J’ai compris</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Chances de récupération</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Chances de récupération</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Élevées</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Moyennes</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Évaluation</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Analyse en cours</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Merci de patienter pendant la recherche rapide de vos fichiers.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>Aucun fichier trouvé</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Aucun fichier de ce type trouvé. Vérifiez que le bon disque est choisi pour l’analyse.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Chargement des fichiers…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Cela peut prendre un instant.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Aucun résultat pour ce filtre</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>L’analyse a trouvé des fichiers, mais aucun ne correspond aux filtres appliqués.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Désolé, aucun fichier trouvé</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Certains fichiers ont perdu leur nom d’origine. Cherchez-les parmi les &lt;a href=&quot;#&quot;&gt;fichiers sans nom&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Attendez la fin de l’analyse, puis relancez la recherche.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Utilisez le filtre pour trouver plus vite vos fichiers.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Désolé, aucun résultat</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Aucun des fichiers trouvés ne correspond à votre description.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Essayez une autre description&#xa0;: type de fichier, date, taille.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Si l’analyse est en cours, attendez d’autres fichiers.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Affinez les résultats avec le filtre ou cherchez par nom.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Comment trouver les fichiers sans nom</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Certains fichiers ont perdu leur nom et ne se cherchent plus ainsi. Voici comment trouver les vôtres&#xa0;:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Ouvrez «&#xa0;Fichiers sans nom&#xa0;».</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Choisissez les types de fichiers à récupérer.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Utilisez l’aperçu pour reconnaître les fichiers perdus.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Scènes</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Paysage urbain</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hôtel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Vue aérienne</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Enfants</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Animaux</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Anniversaire</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Dîner</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Spectacle</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Remise de diplôme</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Robe de mariée</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Bouquet</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Nourriture</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Salle de réunion</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Présentation</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Tableau blanc</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Produit</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Selfie</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Photo de groupe</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Photo d’identité</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Document papier</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Pièce d’identité</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Capture de discussion</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Analyse en cours</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Merci de patienter pendant la recherche rapide de vos fichiers.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Aucun fichier trouvé</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Aucun fichier de ce type trouvé. Vérifiez que le bon disque est choisi pour l’analyse.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Chargement des fichiers…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Cela peut prendre un instant.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Aucun résultat pour ce filtre</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>L’analyse a trouvé des fichiers, mais aucun ne correspond aux filtres appliqués.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Partiellement coché</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non coché</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Fichier audio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Page web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>éléments : %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Tri décroissant</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Tri croissant</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Barre de défilement</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
