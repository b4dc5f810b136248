<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_AE" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>الفيديو</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>المستندات</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>قواعد البيانات</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>ملفات الويب</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>الأرشيفات</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>ملفات غير محفوظة</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>الألعاب</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>سلة المحذوفات</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>مواقع مفقودة</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>الموقع</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>بطاقة SD</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>ملفات محذوفة</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>البحث بالاسم</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>ملفات بلا أسماء</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>كل الأوقات</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>وقت غير معروف</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>بايت</translation>
    </message>
    <message>
        <source>SizeUnit_KB</source>
        <translation>كيلوبايت</translation>
    </message>
    <message>
        <source>SizeUnit_MB</source>
        <translation>ميغابايت</translation>
    </message>
    <message>
        <source>SizeUnit_GB</source>
        <translation>غيغابايت</translation>
    </message>
    <message>
        <source>SizeUnit_TB</source>
        <translation>تيرابايت</translation>
    </message>
    <message>
        <source>name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>ملف موجود</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>ملف محذوف</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>حساسية ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>علامة الكاميرا</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>طراز الكاميرا</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>توازن اللون الأبيض</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>زمن التعريض</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>البعد البؤري</translation>
    </message>
    <message>
        <source>software</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>معدل الإطارات</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>معدل البت</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>فتحة العدسة</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>حسنًا، فهمت</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>قابلية الاستعادة</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>قابلية الاستعادة</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>عالية</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>متوسطة</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>جارٍ التقييم</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>جارٍ الفحص</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>يُرجى الانتظار ريثما نعثر على ملفاتك سريعًا.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>لم يُعثر على ملفات</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>تعذّر العثور على ملفات من هذا النوع. يُرجى التأكد من اختيار القرص الصحيح للفحص.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>جارٍ تحميل الملفات…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>قد يستغرق ذلك لحظات.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>لا شيء يطابق عامل التصفية</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>عثر الفحص على ملفات، لكن لا يطابق أي منها عوامل التصفية المحددة.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>عذرًا، لم يُعثر على أي ملف</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. فقدت بعض الملفات أسماءها الأصلية. ابحث عنها ضمن &lt;a href=&quot;#&quot;&gt;ملفات بلا أسماء&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. انتظر حتى ينتهي الفحص، ثم ابحث مرة أخرى.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. استخدم عامل التصفية لحصر ملفاتك.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>عذرًا، لا توجد نتائج</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>لا يوجد في نتائج الفحص الحالية ما يطابق وصفك.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>جرّب وصفًا آخر، مثل نوع الملف أو التاريخ أو الحجم.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>إذا كان الفحص لا يزال جاريًا، فانتظر العثور على مزيد من الملفات.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>يمكنك أيضًا تضييق النتائج بعامل التصفية أو البحث بالاسم.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>كيفية العثور على الملفات بلا أسماء</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>فقدت بعض الملفات أسماءها، فلا يمكن العثور عليها بالاسم. إليك كيف تعثر على ملفاتك:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>افتح «ملفات بلا أسماء».</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>اختر أنواع الملفات التي تريد استعادتها.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>عاين الملفات للعثور على ما فقدته.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>المشاهد</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>منظر طبيعي</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>شاطئ</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>مشهد مدينة</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>فندق</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>منظر جوي</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>أطفال</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>حيوانات أليفة</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>عيد ميلاد</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>عشاء</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>عرض فني</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>معرض</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>رياضة</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>حفل تخرج</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>فستان زفاف</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>باقة زهور</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>طعام</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>قاعة اجتماعات</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>عرض تقديمي</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>سبورة بيضاء</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>منتج</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>سيلفي</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>صورة جماعية</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>صورة شخصية رسمية</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>مستند ورقي</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>وثيقة هوية</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>لقطة دردشة</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>جارٍ الفحص</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>يُرجى الانتظار ريثما نعثر على ملفاتك سريعًا.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>لم يُعثر على ملفات</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>تعذّر العثور على ملفات من هذا النوع. يُرجى التأكد من اختيار القرص الصحيح للفحص.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>جارٍ تحميل الملفات…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>قد يستغرق ذلك لحظات.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>لا شيء يطابق عامل التصفية</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>عثر الفحص على ملفات، لكن لا يطابق أي منها عوامل التصفية المحددة.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>محدد</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>محدد جزئيًا</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>غير محدد</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>ملف صوتي</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>مستند</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>بريد إلكتروني</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>قاعدة بيانات</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>صفحة ويب</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>أرشيف</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>ملف %1</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>العناصر: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>مرتب تنازليًا</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>مرتب تصاعديًا</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>شريط التمرير</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>، </translation>
    </message>
</context>
</TS>
