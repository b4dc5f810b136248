<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_AE" sourcelanguage="en">
<context>
    <name>BottomBar</name>
    <message>
        <source>%1, %2</source>
        <comment>files and folders</comment>
        <translation>%1، %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) a second</source>
        <translation>
            <numerusform>%Ln عنصر في الثانية</numerusform>
            <numerusform>عنصر واحد في الثانية</numerusform>
            <numerusform>عنصران في الثانية</numerusform>
            <numerusform>%Ln عناصر في الثانية</numerusform>
            <numerusform>%Ln عنصرًا في الثانية</numerusform>
            <numerusform>%Ln عنصر في الثانية</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln محذوف</numerusform>
            <numerusform>ملف محذوف واحد</numerusform>
            <numerusform>ملفان محذوفان</numerusform>
            <numerusform>%Ln محذوفة</numerusform>
            <numerusform>%Ln محذوفًا</numerusform>
            <numerusform>%Ln محذوف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>لا ملفات محددة</numerusform>
            <numerusform>ملف واحد محدد</numerusform>
            <numerusform>ملفان محددان</numerusform>
            <numerusform>%Ln ملفات محددة</numerusform>
            <numerusform>%Ln ملفًا محددًا</numerusform>
            <numerusform>%Ln ملف محدد</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>لم يُحدد شيء</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>لا شيء يخفيه عامل التصفية</numerusform>
            <numerusform>ملف واحد يخفيه عامل التصفية</numerusform>
            <numerusform>ملفان يخفيهما عامل التصفية</numerusform>
            <numerusform>%Ln ملفات يخفيها عامل التصفية</numerusform>
            <numerusform>%Ln ملفًا يخفيها عامل التصفية</numerusform>
            <numerusform>%Ln ملف يخفيها عامل التصفية</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>استعادة…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>تقدم الفحص</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 من %2 متاحة في الوجهة</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>يلزم %1، والمتاح في الوجهة %2 فقط</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>استعادة إلى %1. اختيار مجلد آخر…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>اختيار مجلد الاستعادة</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>إلى الأعلى</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>إنهاء البحث</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>لم يُعثر على «%1» في أي اسم</numerusform>
            <numerusform>عُثر على «%1» في اسم واحد</numerusform>
            <numerusform>عُثر على «%1» في اسمين</numerusform>
            <numerusform>عُثر على «%1» في %Ln أسماء</numerusform>
            <numerusform>عُثر على «%1» في %Ln اسمًا</numerusform>
            <numerusform>عُثر على «%1» في %Ln اسم</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>تحديد</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>تحديد ملفات كثيرة أو إلغاء تحديدها (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>تحديد كل الصور</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>تحديد كل الملفات المحذوفة</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>تحديد كل ما في «%1»</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>تحديد كل ما عُثر عليه</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>عكس التحديد</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>إلغاء تحديد الكل</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>الملحق SDCardScanContentPlugin ليس بجانب البرنامج.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>تعذّر تحميل %1: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 ملحق من نوع آخر: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>تعذّر فتح «%1»: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>لا يوجد برنامج يفتح «%1».</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>أي حجم</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>حتى 1 ميغابايت</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 إلى 10 ميغابايت</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 إلى 100 ميغابايت</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>أكثر من 100 ميغابايت</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>أي تاريخ</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>آخر 7 أيام</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>آخر 30 يومًا</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>آخر سنة</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>أقدم من سنة</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>أي نوع</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>المحذوفة فقط</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>إظهار الكل</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>من في على مع و إلى</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>الفيديو</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>المستندات</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>قواعد البيانات</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>ملفات الويب</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>الأرشيفات</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>أخرى</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>أُوقف الفحص. تُعرض النتائج التي عُثر عليها.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>لا عناصر تعذّرت قراءتها: %1</numerusform>
            <numerusform>تعذّرت قراءة عنصر واحد: %1</numerusform>
            <numerusform>تعذّرت قراءة عنصرين، أولهما: %1</numerusform>
            <numerusform>تعذّرت قراءة %Ln عناصر، أولها: %1</numerusform>
            <numerusform>تعذّرت قراءة %Ln عنصرًا، أولها: %1</numerusform>
            <numerusform>تعذّرت قراءة %Ln عنصر، أولها: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>لم تُنشأ بطاقة العينة. افتح مجلدًا أو صورة قرص أو جهازًا.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>فتح مجلد</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>فتح صورة قرص</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>لم يُحدد أي ملف.</numerusform>
            <numerusform>حُدد ملف واحد.</numerusform>
            <numerusform>حُدد ملفان.</numerusform>
            <numerusform>حُددت %Ln ملفات.</numerusform>
            <numerusform>حُدد %Ln ملفًا.</numerusform>
            <numerusform>حُدد %Ln ملف.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>لم يُلغ تحديد أي ملف.</numerusform>
            <numerusform>أُلغي تحديد ملف واحد.</numerusform>
            <numerusform>أُلغي تحديد ملفين.</numerusform>
            <numerusform>أُلغي تحديد %Ln ملفات.</numerusform>
            <numerusform>أُلغي تحديد %Ln ملفًا.</numerusform>
            <numerusform>أُلغي تحديد %Ln ملف.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>لم يتغيّر أي تحديد.</numerusform>
            <numerusform>تغيّر تحديد واحد.</numerusform>
            <numerusform>تغيّر تحديدان.</numerusform>
            <numerusform>تغيّرت %Ln تحديدات.</numerusform>
            <numerusform>تغيّر %Ln تحديدًا.</numerusform>
            <numerusform>تغيّر %Ln تحديد.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>تم التراجع عن التغيير.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>أُعيد إجراء التغيير.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>لا يوجد ما يمكن التراجع عنه.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>لا يوجد ما يمكن إعادته.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>لا توجد معاينة في الملف.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>لا توجد ذاكرة كافية لهذا الملف.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>الصورة أكبر من أن تُسلَّم.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>لا توجد بيانات وصفية في الملف.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>الصورة تالفة أو نوعها غير معروف.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>لا تذكر الصورة أبعادها.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>الصورة كبيرة جدًا: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>لا توجد ذاكرة كافية لصورة بأبعاد %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>الفيديو تالف: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>لا توجد صورة في الملف.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>الفيديو تالف.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>الفيديو تالف أو نوعه غير معروف: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>تعذّر فك ترميز أي إطار من الفيديو.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>برنامج quarvo-media ليس بجانب هذا البرنامج: لا صور مصغرة ولا بيانات وصفية.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>تعذّر تشغيل البرنامج %1: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>لا يستجيب البرنامج %1 كما ينبغي.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>استغرق الأمر وقتًا طويلًا</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>تعطّل مفكّك الترميز</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>ضلّ مفكّك الترميز طريقه</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>الملف تالف.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>الملف تالف: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>ملف كهذا ليست له بيانات وصفية يمكن قراءتها.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>لا توجد صورة في ملف كهذا.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>جارٍ التحميل…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>تعذّر عرض هذه الصورة.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 من %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>الصورة السابقة</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>الصورة التالية</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>لم تبقَ مساحة في %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>لا توجد مساحة كافية في %1: يحتاج الملف إلى %2، والمتاح %3.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>تعذّر إنشاء الملف: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>ينتهي المحتوى عند البايت %L1 من %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>فشلت الكتابة: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ليس مجلدًا.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>تعذّر إنشاء المجلد %1.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>تعذّرت الكتابة إلى %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>تعذّر إنشاء الملف %1: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>ملفات كثيرة جدًا تحمل الاسم %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 من %Ln ملف</numerusform>
            <numerusform>%1 من ملف واحد</numerusform>
            <numerusform>%1 من ملفين</numerusform>
            <numerusform>%1 من %Ln ملفات</numerusform>
            <numerusform>%1 من %Ln ملفًا</numerusform>
            <numerusform>%1 من %Ln ملف</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 من %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>لم يُستعد أي ملف إلى %1.</numerusform>
            <numerusform>استُعيد ملف واحد إلى %1.</numerusform>
            <numerusform>استُعيد ملفان إلى %1.</numerusform>
            <numerusform>استُعيدت %Ln ملفات إلى %1.</numerusform>
            <numerusform>استُعيد %Ln ملفًا إلى %1.</numerusform>
            <numerusform>استُعيد %Ln ملف إلى %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>لا ملفات تعذّرت استعادتها.</numerusform>
            <numerusform>تعذّرت استعادة ملف واحد.</numerusform>
            <numerusform>تعذّرت استعادة ملفين.</numerusform>
            <numerusform>تعذّرت استعادة %Ln ملفات.</numerusform>
            <numerusform>تعذّرت استعادة %Ln ملفًا.</numerusform>
            <numerusform>تعذّرت استعادة %Ln ملف.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>الاستعادة</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>تقدم الاستعادة</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>الملفات التي تعذّرت استعادتها</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>فتح المجلد</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>أُلغيت الاستعادة</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>اكتملت الاستعادة</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>تعذّرت استعادة بعض الملفات</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>جارٍ الاستعادة إلى %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>استعادة إلى</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>لا يوجد ما يُستعاد.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>قراءة تتجاوز النهاية</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>ينتهي الوسيط قبل أوانه</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 ليس مجلدًا ولا صورة قرص ولا قرصًا.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>تعذّرت قراءة %1: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 فارغ.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 أصغر من أن يكون صورة قرص.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>تعذّرت قراءة %1.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>لم تعد قراءة البطاقة ممكنة.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>تعذّرت قراءة سجل الملف.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>تعذّرت قراءة البطاقة: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>تغيّر سجل الملف منذ الفحص.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>ينتهي المحتوى عند البايت %L1 من %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>تعذّرت قراءة البطاقة عند البايت %L1 من الملف: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>كان ملف محذوف آخر في المكان نفسه؛ ولا يُعرف أيهما لا يزال هناك.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>كُتب ملف آخر فوق جزء من المحتوى.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>كُتب الملف الأحدث %1 فوق جزء من المحتوى.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>قائمة مواضع الملف على البطاقة تالفة.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>يقع المحتوى بعد نهاية البطاقة.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>لم تعد البطاقة تذكر موضع المحتوى.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>لم تعد البطاقة تذكر طول الملف وموضع محتواه.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>تعذّرت قراءة الملف.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>تعذّرت قراءة المجلد %1: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>تعذّرت قراءة المجلد %1 كاملًا: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>اختفى %1 أثناء الفحص.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>لم يعد الملف موجودًا.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>تعذّر فتح الملف.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>تعذّر فتح الملف: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>لا يحتوي %1 على نظام ملفات يمكن قراءته (FAT أو exFAT أو NTFS أو ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>ملفات محذوفة بلا مجلد</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>تعذّر فتح وحدة التخزين %1.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>تنتهي البطاقة قبل نظام ملفاتها؛ قد تكون بعض الملفات مبتورة.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>تعذّرت قراءة المجلد الأعلى في البطاقة.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>تعذّرت قراءة البطاقة كلها: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 غير موجود.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>وحدة التخزين %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>وحدة التخزين %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>تعذّرت قراءة المجلد /%1.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>المجلد /%1 عميق جدًا ولم يُقرأ.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>«%1» فارغ.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>البطاقة</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>حسب النوع</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>حسب المكان</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>مكان البحث</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>يقع %1 على البطاقة التي تُستعاد ملفاتها. قد تُتلف الكتابة هناك ما لم يُستعد بعد. اختر مجلدًا على قرص آخر.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>يقع %1 داخل المجلد الذي فُحص. اختر مجلدًا خارجه.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 هو صورة القرص التي فُحصت وليس مجلدًا. اختر مجلدًا.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>لا توجد مساحة كافية في %1: تحتاج الملفات إلى %2، والمتاح %3 فقط. اختر مجلدًا آخر أو حدد ملفات أقل.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>لا ملفات</numerusform>
            <numerusform>ملف واحد</numerusform>
            <numerusform>ملفان</numerusform>
            <numerusform>%Ln ملفات</numerusform>
            <numerusform>%Ln ملفًا</numerusform>
            <numerusform>%Ln ملف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>لا مجلدات</numerusform>
            <numerusform>مجلد واحد</numerusform>
            <numerusform>مجلدان</numerusform>
            <numerusform>%Ln مجلدات</numerusform>
            <numerusform>%Ln مجلدًا</numerusform>
            <numerusform>%Ln مجلد</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>لا توجد صورة في ملف كهذا.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>فتح مجلد…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>فتح صورة قرص…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>إعادة الفحص</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>إيقاف الفحص</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>البحث بالاسم</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>صور مصغرة</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>قائمة مع التفاصيل</translation>
    </message>
    <message>
        <source>List</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>فاتح أو داكن</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>فتح…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>المصدر: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>البحث بالوصف</translation>
    </message>
</context>
</TS>
