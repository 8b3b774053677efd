<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AppModel</name>
    <message>
        <source>Drop HEIC or HEIF photos here</source>
        <translation>أفلِت صور HEIC أو HEIF هنا</translation>
    </message>
    <message>
        <source>%1 landed</source>
        <translation>وصلت %1</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>جاهزة: %1</translation>
    </message>
    <message>
        <source>Couldn’t convert %1</source>
        <translation>تعذّر تحويل %1</translation>
    </message>
    <message>
        <source>Waiting for your next AirDrop</source>
        <translation>في انتظار الصورة التالية من الهاتف</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>اختيار صور HEIC</translation>
    </message>
    <message>
        <source>Convert photos</source>
        <translation>تحويل الصور</translation>
    </message>
    <message>
        <source>History cleared</source>
        <translation>مُسح السجل</translation>
    </message>
    <message>
        <source>Couldn’t watch %1</source>
        <translation>تعذّرت مراقبة %1</translation>
    </message>
    <message>
        <source>Choose the folder where AirDrop saves photos</source>
        <translation>اختر المجلد الذي تصل إليه صور الهاتف</translation>
    </message>
    <message>
        <source>Watch this folder</source>
        <translation>مراقبة هذا المجلد</translation>
    </message>
    <message>
        <source>Watching %1</source>
        <translation>تجري مراقبة %1</translation>
    </message>
    <message>
        <source>No HEIC photos found in %1</source>
        <translation>لا توجد صور HEIC في %1</translation>
    </message>
    <message>
        <source>Folder unavailable</source>
        <translation>المجلد غير متاح</translation>
    </message>
    <message>
        <source>Check your watched folder, then retry.</source>
        <translation>تحقّق من المجلد المراقَب ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>Auto-convert: On</source>
        <translation>التحويل التلقائي: مفعّل</translation>
    </message>
    <message>
        <source>Watching %1 for new HEIC photos.</source>
        <translation>تجري مراقبة %1 بحثًا عن صور HEIC جديدة.</translation>
    </message>
    <message>
        <source>Auto-convert: Paused</source>
        <translation>التحويل التلقائي: متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>New arrivals won’t convert until you resume.</source>
        <translation>لن تُحوَّل الصور الجديدة حتى تستأنف.</translation>
    </message>
</context>
<context>
    <name>AppearanceControl</name>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>%1 appearance</source>
        <translation>المظهر: %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
</context>
<context>
    <name>ArrivalRow</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
</context>
<context>
    <name>ArrivalsList</name>
    <message>
        <source>Recent arrivals</source>
        <translation>الصور الواصلة حديثًا</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>لا صور جاهزة</numerusform>
            <numerusform>صورة جاهزة</numerusform>
            <numerusform>صورتان جاهزتان</numerusform>
            <numerusform>%n صور جاهزة</numerusform>
            <numerusform>%n صورة جاهزة</numerusform>
            <numerusform>%n صورة جاهزة</numerusform>
        </translation>
    </message>
    <message>
        <source>Removes history only. Your photos are kept.</source>
        <translation>يمسح السجل فقط. تبقى صورك محفوظة.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>مسح السجل</translation>
    </message>
    <message>
        <source>Your next photo goes here.</source>
        <translation>ستظهر صورتك التالية هنا.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListController</name>
    <message>
        <source>AirDrop into %1, or choose a HEIC photo above.</source>
        <translation>أرسل صورة من الهاتف إلى %1، أو اختر صورة HEIC في الأعلى.</translation>
    </message>
</context>
<context>
    <name>ArrivalsListModel</name>
    <message>
        <source>Couldn’t convert. Try choosing the photo again.</source>
        <translation>تعذّر التحويل. جرّب اختيار الصورة من جديد.</translation>
    </message>
    <message>
        <source>Reveal %1 in Finder</source>
        <translation>إظهار %1 في مدير الملفات</translation>
    </message>
</context>
<context>
    <name>CommandMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>إنهاء Lumaport</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;تحويل</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>إظهار اللوحة السريعة</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>إعادة عرض الترحيب</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>تحويل صور HEIC في المجلد المراقَب</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;نافذة</translation>
    </message>
    <message>
        <source>Use Recommended Window Size</source>
        <translation>استخدام حجم النافذة الموصى به</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>التشغيل عند تسجيل الدخول</translation>
    </message>
</context>
<context>
    <name>ConversionError</name>
    <message>
        <source>This file is not a HEIC or HEIF image.</source>
        <translation>هذا الملف ليس صورة HEIC أو HEIF.</translation>
    </message>
    <message>
        <source>The image could not be opened. It may still be transferring.</source>
        <translation>تعذّر فتح الصورة. ربما لا يزال نقلها جاريًا.</translation>
    </message>
    <message>
        <source>Lumaport could not create the converted file.</source>
        <translation>تعذّر على Lumaport إنشاء الملف المحوَّل.</translation>
    </message>
    <message>
        <source>The converted image could not be written.</source>
        <translation>تعذّرت كتابة الصورة المحوَّلة.</translation>
    </message>
    <message>
        <source>The image converted, but its original could not be archived.</source>
        <translation>حُوِّلت الصورة، لكن تعذّرت أرشفة الأصل.</translation>
    </message>
    <message>
        <source>Photos can’t be opened safely on this system, so nothing was converted.</source>
        <translation>لا يمكن فتح الصور بأمان على هذا النظام، لذا لم يُحوَّل شيء.</translation>
    </message>
</context>
<context>
    <name>ConversionItem</name>
    <message>
        <source>Waiting to convert</source>
        <translation>في انتظار التحويل</translation>
    </message>
    <message>
        <source>Converting on your Mac</source>
        <translation>يجري التحويل على حاسوبك</translation>
    </message>
    <message>
        <source>Ready to use</source>
        <translation>جاهزة للاستخدام</translation>
    </message>
</context>
<context>
    <name>FirstLaunchView</name>
    <message>
        <source>Iridescent vo slash signature</source>
        <translation>توقيع «vo» قزحي مع شرطة مائلة</translation>
    </message>
    <message>
        <source>A little less work. A little more flow.</source>
        <translation>عملٌ أقل. انسيابٌ أكثر.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>لنبدأ</translation>
    </message>
</context>
<context>
    <name>FolderRow</name>
    <message>
        <source>Open watched folder: %1</source>
        <translation>فتح المجلد المراقَب: %1</translation>
    </message>
    <message>
        <source>Converting photos</source>
        <translation>يجري تحويل الصور</translation>
    </message>
</context>
<context>
    <name>FormatControl</name>
    <message>
        <source>Convert to</source>
        <translation>تحويل إلى</translation>
    </message>
    <message>
        <source>Convert to %1</source>
        <translation>تحويل إلى %1</translation>
    </message>
</context>
<context>
    <name>LandingWorkspace</name>
    <message>
        <source>Choose photos, or drop them into the folder</source>
        <translation>اختر صورًا أو أفلِتها في المجلد</translation>
    </message>
    <message>
        <source>Choose HEIC photos</source>
        <translation>اختيار صور HEIC</translation>
    </message>
    <message>
        <source>Choose photos manually</source>
        <translation>اختيار الصور يدويًا</translation>
    </message>
    <message>
        <source>Or drop HEIC photos here. Originals stay yours.</source>
        <translation>أو أفلِت صور HEIC هنا. تبقى الأصول لك.</translation>
    </message>
</context>
<context>
    <name>LatestArrival</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
</context>
<context>
    <name>MainColumn</name>
    <message>
        <source>Private by design. Converted on your Mac.</source>
        <translation>الخصوصية أساس التصميم. التحويل على حاسوبك.</translation>
    </message>
</context>
<context>
    <name>MainViewController</name>
    <message>
        <source>Drop it. We’ve got it.</source>
        <translation>أفلِتها. نحن نتولّى الباقي.</translation>
    </message>
    <message>
        <source>Your photo just landed.</source>
        <translation>وصلت صورتك للتو.</translation>
    </message>
    <message>
        <source>A little format magic.</source>
        <translation>لمسة من سحر الصيغ.</translation>
    </message>
    <message>
        <source>New format. Same moment.</source>
        <translation>صيغة جديدة. اللحظة نفسها.</translation>
    </message>
    <message>
        <source>This photo needs attention.</source>
        <translation>هذه الصورة تحتاج إلى انتباهك.</translation>
    </message>
    <message>
        <source>Let’s reconnect your folder.</source>
        <translation>لنُعِد وصل مجلدك.</translation>
    </message>
    <message>
        <source>AirDrop it. It’s ready.</source>
        <translation>أرسِلها. وها هي جاهزة.</translation>
    </message>
    <message>
        <source>Ready when you are.</source>
        <translation>جاهزون متى شئت.</translation>
    </message>
    <message>
        <source>Open conversion options to choose an available folder.</source>
        <translation>افتح خيارات التحويل لاختيار مجلد متاح.</translation>
    </message>
    <message>
        <source>Resume automatic conversion, or choose photos manually.</source>
        <translation>استأنف التحويل التلقائي، أو اختر الصور يدويًا.</translation>
    </message>
    <message>
        <source>New HEIC photos in your watched folder become %1, automatically.</source>
        <translation>صور HEIC الجديدة في مجلدك المراقَب تصبح %1 تلقائيًا.</translation>
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
        <translation>رفيق صورك</translation>
    </message>
    <message>
        <source>Converting photos on this Mac</source>
        <translation>يجري تحويل الصور على هذا الحاسوب</translation>
    </message>
    <message>
        <source>AirDrop as usual. Your PNG or JPEG copy appears automatically.</source>
        <translation>أرسل من هاتفك كالمعتاد. تظهر نسخة PNG أو JPEG تلقائيًا.</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>تحويل إلى</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>فتح Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>إنهاء Lumaport</translation>
    </message>
</context>
<context>
    <name>MenuBarViewController</name>
    <message>
        <source>Needs attention</source>
        <translation>تحتاج إلى انتباه</translation>
    </message>
</context>
<context>
    <name>MenuIcon</name>
    <message>
        <source>Lumaport: %1. Converting photos.</source>
        <translation>Lumaport: %1. يجري تحويل الصور.</translation>
    </message>
    <message>
        <source>Lumaport: %1</source>
        <translation>Lumaport: %1</translation>
    </message>
    <message>
        <source>Lumaport, %1</source>
        <translation>Lumaport، %1</translation>
    </message>
</context>
<context>
    <name>MonitoringControlController</name>
    <message>
        <source>Retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
</context>
<context>
    <name>NotificationManager</name>
    <message>
        <source>Photo landed ready</source>
        <translation>وصلت الصورة وهي جاهزة</translation>
    </message>
    <message>
        <source>Converted locally. Click to reveal it in Finder.</source>
        <translation>حُوِّلت محليًا. انقر لإظهارها في مدير الملفات.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
    <message>
        <source>Lumaport goes on watching</source>
        <translation>يواصل Lumaport المراقبة</translation>
    </message>
    <message>
        <source>New photos are still converted. Start Lumaport again to open its window.</source>
        <translation>ما زالت الصور الجديدة تُحوَّل. شغّل Lumaport مرة أخرى لفتح نافذته.</translation>
    </message>
</context>
<context>
    <name>OpenPanel</name>
    <message>
        <source>HEIC and HEIF photos</source>
        <translation>صور HEIC وHEIF</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Beside originals</source>
        <translation>بجانب الأصول</translation>
    </message>
    <message>
        <source>Lumaport folder</source>
        <translation>مجلد Lumaport</translation>
    </message>
    <message>
        <source>Keep originals</source>
        <translation>الإبقاء على الأصول</translation>
    </message>
    <message>
        <source>Move to Originals</source>
        <translation>النقل إلى Originals</translation>
    </message>
</context>
<context>
    <name>OptionsController</name>
    <message>
        <source>%1% quality</source>
        <translation>الجودة %1%</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Make it yours</source>
        <translation>على طريقتك</translation>
    </message>
    <message>
        <source>Close options</source>
        <translation>إغلاق الخيارات</translation>
    </message>
    <message>
        <source>Watch folder</source>
        <translation>المجلد المراقَب</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>تغيير…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Convert existing HEIC photos</source>
        <translation>تحويل صور HEIC الموجودة</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>جودة JPEG</translation>
    </message>
    <message>
        <source>Save converted photos</source>
        <translation>حفظ الصور المحوَّلة</translation>
    </message>
    <message>
        <source>Original photos</source>
        <translation>الصور الأصلية</translation>
    </message>
    <message>
        <source>Notify when ready</source>
        <translation>إشعار عند الجاهزية</translation>
    </message>
    <message>
        <source>A custom arrival chime. Click the notification to reveal the finished photo in Finder.</source>
        <translation>نغمة وصول خاصة. انقر الإشعار لإظهار الصورة الجاهزة في مدير الملفات.</translation>
    </message>
    <message>
        <source>Your photos stay on your Mac.</source>
        <translation>تبقى صورك على حاسوبك.</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <source>Convert to</source>
        <translation>تحويل إلى</translation>
    </message>
</context>
<context>
    <name>PhotoLandingStageController</name>
    <message>
        <source>Ready</source>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
    <message>
        <source>Convert to PNG</source>
        <translation>تحويل إلى PNG</translation>
    </message>
    <message>
        <source>Convert to JPEG</source>
        <translation>تحويل إلى JPEG</translation>
    </message>
    <message>
        <source>Show Quick Panel</source>
        <translation>إظهار اللوحة السريعة</translation>
    </message>
    <message>
        <source>Open Lumaport</source>
        <translation>فتح Lumaport</translation>
    </message>
    <message>
        <source>Quit Lumaport</source>
        <translation>إنهاء Lumaport</translation>
    </message>
    <message>
        <source>Pause Watching</source>
        <translation>إيقاف المراقبة مؤقتًا</translation>
    </message>
    <message>
        <source>Resume Watching</source>
        <translation>استئناف المراقبة</translation>
    </message>
    <message>
        <source>Convert HEIC Photos in Watched Folder</source>
        <translation>تحويل صور HEIC في المجلد المراقَب</translation>
    </message>
    <message>
        <source>Replay Signature Welcome</source>
        <translation>إعادة عرض الترحيب</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>التشغيل عند تسجيل الدخول</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Expanded</source>
        <translation>موسَّع</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>مطوي</translation>
    </message>
    <message>
        <source>Conversion options</source>
        <translation>خيارات التحويل</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>Lumaport Welcome</source>
        <translation>مرحبًا بك في Lumaport</translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message>
        <source>Workspaces</source>
        <translation>مساحات العمل</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>استقبال</translation>
    </message>
    <message>
        <source>Recent photos</source>
        <translation>الصور الأخيرة</translation>
    </message>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>لا صور جاهزة</numerusform>
            <numerusform>صورة جاهزة</numerusform>
            <numerusform>صورتان جاهزتان</numerusform>
            <numerusform>%n صور جاهزة</numerusform>
            <numerusform>%n صورة جاهزة</numerusform>
            <numerusform>%n صورة جاهزة</numerusform>
        </translation>
    </message>
</context>
</TS>
