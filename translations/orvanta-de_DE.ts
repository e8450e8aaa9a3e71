<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Programmstart</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Fensteraufteilung wiederherstellen</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Fensterposition wiederherstellen</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Startbild nicht anzeigen</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Nach neuen Versionen suchen</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Automatisch nach neuen Versionen suchen </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Starten Sie das Programm neu, damit die Einstellung wirksam wird.</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Automatisch nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Wir danken Ihnen für Ihr Vertrauen und wünschen Ihnen viel Freude mit unserer Software.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Entdecken Sie weitere Produkte von uns:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Wir suchen Übersetzer, die in ihre Muttersprache übersetzen.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Bitte schreiben Sie uns: </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>Prüfsumme berechnen</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Algorithmus:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Verfügbare Hash-Algorithmen</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Zieldatei auswählen</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Prüfsumme:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Berechneter Hash-Wert</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Vorgegebene Prüfsumme</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Hash-Wert zum Vergleich einfügen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>Für den Vergleich werden zwei Prüfsummen benötigt..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>GÜLTIG - Die Prüfsummen stimmen überein</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>UNGÜLTIG - Die Prüfsummen stimmen nicht überein</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Immer im Vordergrund</translation>
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
        <translation>Es sind keine Aktualisierungen verfügbar.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Neue Version verfügbar:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>Möchten Sie die neueste Version von unserer Website herunterladen?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Versionsprüfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>Es konnte keine Verbindung zum Server hergestellt werden.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Bitte prüfen Sie Ihre Internet- und Firewall-Einstellungen oder sehen Sie selbst unter %1 nach, ob es eine neue Version gibt.</translation>
    </message>
</context>
</TS>
