<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Fotografias</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mails</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Bases de dados</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Ficheiros Web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Outros</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Ficheiros não guardados</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jogos</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Reciclagem</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Localizações perdidas</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modificado em</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Localização</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>Cartão SD</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos os ficheiros</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Ficheiros eliminados</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Pesquisar pelo nome</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Ficheiros sem nome</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Todas as datas</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Data desconhecida</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>SizeUnit_KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>SizeUnit_MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>SizeUnit_GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>SizeUnit_TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Modificado em</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Localização</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Ficheiro existente</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Ficheiro eliminado</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>Sensibilidade ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Marca da câmara</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Modelo da câmara</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Balanço de brancos</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Tempo de exposição</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Distância focal</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Abertura</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Pré-visualizar</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Compreendi</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Recuperabilidade</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Recuperabilidade</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Alta</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Média</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>A avaliar</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>A analisar</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Aguarde enquanto localizamos rapidamente os seus ficheiros.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>Nenhum ficheiro encontrado</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Não foram encontrados ficheiros deste tipo. Verifique se escolheu o disco certo para a análise.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>A carregar ficheiros…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Isto pode demorar um momento.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Nada corresponde a este filtro</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>A análise encontrou ficheiros, mas nenhum corresponde aos filtros aplicados.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Nenhum ficheiro encontrado</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Alguns ficheiros perderam o nome original. Procure-os em &lt;a href=&quot;#&quot;&gt;ficheiros sem nome&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Aguarde que a análise termine e volte a pesquisar.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Utilize o filtro para encontrar os seus ficheiros mais depressa.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Nenhum resultado encontrado</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Nada nos resultados atuais corresponde à sua descrição.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Experimente outra descrição: tipo, data ou tamanho.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Se a análise ainda decorre, aguarde por mais ficheiros.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Use também o filtro ou pesquise pelo nome.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Como encontrar ficheiros sem nome</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Alguns ficheiros perderam o nome e já não podem ser encontrados por ele. Veja como encontrar os seus:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Abra “Ficheiros sem nome”.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Escolha os tipos de ficheiro que pretende recuperar.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Pré-visualize os ficheiros para encontrar os que perdeu.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Cenas</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Paisagem</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Praia</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Paisagem urbana</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Vista aérea</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Crianças</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Animais</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Aniversário</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Jantar</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Espetáculo</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Exposição</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Desporto</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Formatura</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Vestido de noiva</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Ramo de flores</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Comida</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Sala de reuniões</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Apresentação</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Quadro branco</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Produto</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Selfie</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Foto de grupo</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Foto tipo passe</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Documento em papel</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Documento de identificação</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Captura de conversa</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>A analisar</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Aguarde enquanto localizamos rapidamente os seus ficheiros.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Nenhum ficheiro encontrado</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Não foram encontrados ficheiros deste tipo. Verifique se escolheu o disco certo para a análise.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>A carregar ficheiros…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Isto pode demorar um momento.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Nada corresponde a este filtro</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>A análise encontrou ficheiros, mas nenhum corresponde aos filtros aplicados.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Marcado</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Parcialmente marcado</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Não marcado</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Ficheiro de áudio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de dados</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página Web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>Ficheiro %1</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>itens: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Em ordem decrescente</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Em ordem crescente</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Barra de deslocamento</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
