<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Запуск программы</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Восстанавливать вид окна</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Восстанавливать положение окна</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Не показывать заставку</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Проверка новых версий</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Автоматически проверять наличие новых версий </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Проверить сейчас</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Перезапустите программу, чтобы настройка вступила в силу.</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Автоматически проверять обновления</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Благодарим вас за доверие и надеемся, что наша программа вам понравится.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Познакомьтесь с другими нашими продуктами:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Мы ищем переводчиков — носителей языка.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Свяжитесь с нами: </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>Вычислить контрольную сумму</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Алгоритм:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Доступные алгоритмы хеширования</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Путь:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Выбрать файл</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Сумма:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Вычисленное значение хеша</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Заданная контрольная сумма</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Вставьте значение хеша для проверки</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>Для проверки нужны две контрольные суммы..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>ВЕРНО - Контрольные суммы совпадают</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>НЕВЕРНО - Контрольные суммы не совпадают</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Поверх других окон</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Okay</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>No updates are available.</source>
        <translation>Обновлений нет.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Доступна новая версия:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>Загрузить последнюю версию с нашего сайта?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Не удалось проверить версию</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>Не удалось подключиться к серверу.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Проверьте настройки интернета и брандмауэра или посмотрите сами на %1, нет ли новой версии.</translation>
    </message>
</context>
</TS>
