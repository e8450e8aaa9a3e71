<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Uruchamianie programu</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Przywracaj układ okna</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Przywracaj położenie okna</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Wyłącz ekran powitalny</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Sprawdzanie nowych wersji</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Automatycznie sprawdzaj nowe wersje </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Sprawdź teraz</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Kraj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Uruchom program ponownie, aby ustawienie zaczęło działać.</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Kraj</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Automatycznie sprawdzaj aktualizacje</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Dziękujemy za zaufanie i mamy nadzieję, że nasze oprogramowanie się spodoba.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Poznaj inne nasze produkty:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Szukamy tłumaczy przekładających na język ojczysty.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Prosimy o kontakt: </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>Strona internetowa</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>Oblicz sumę kontrolną</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Algorytm:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Dostępne algorytmy skrótu</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Ścieżka:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Wybierz plik</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Suma kontrolna:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Obliczona wartość skrótu</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Podana suma kontrolna</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Wklej wartość skrótu do porównania</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>Do weryfikacji potrzebne są dwie sumy kontrolne..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>ZGODNE - Sumy kontrolne są zgodne</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>NIEZGODNE - Sumy kontrolne nie są zgodne</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Wszystkie pliki</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Zawsze na wierzchu</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Okay</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No updates are available.</source>
        <translation>Brak dostępnych aktualizacji.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Dostępna jest nowa wersja:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>Czy pobrać najnowszą wersję z naszej strony internetowej?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Sprawdzenie wersji nie powiodło się</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>Nie można połączyć się z serwerem.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Sprawdź ustawienia internetu i zapory sieciowej albo sprawdź samodzielnie na stronie %1, czy jest nowa wersja.</translation>
    </message>
</context>
</TS>
