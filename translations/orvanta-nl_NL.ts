<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Programmastart</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Vensterindeling herstellen</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Vensterpositie herstellen</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Opstartscherm uitschakelen</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Controleren op nieuwe versies</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Automatisch controleren op nieuwe versies </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Nu controleren</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Start het programma opnieuw om de instelling door te voeren.</translation>
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
        <translation>Taal</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Automatisch controleren op updates</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Volgende</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Bedankt voor uw vertrouwen; we hopen dat u plezier aan onze software beleeft.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Ontdek meer producten van ons:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Wij zoeken vertalers die in hun moedertaal vertalen.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Neem contact met ons op via: </translation>
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
        <translation>Controlegetal berekenen</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Algoritme:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Beschikbare hash-algoritmen</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Pad:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Doelbestand kiezen</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Controlegetal:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Berekende hashwaarde</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Opgegeven controlegetal</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Plak de hashwaarde ter vergelijking</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>Voor de controle zijn twee controlegetallen nodig..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>GELDIG - De controlegetallen komen overeen</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>ONGELDIG - De controlegetallen komen niet overeen</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle bestanden</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Altijd op voorgrond</translation>
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
        <translation>Er zijn geen updates beschikbaar.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Nieuwe versie beschikbaar:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>Wilt u de nieuwste versie van onze website downloaden?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Versiecontrole mislukt</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>Kan geen verbinding maken met de server.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Controleer uw internet- en firewallinstellingen of kijk zelf op %1 of er een nieuwe versie is.</translation>
    </message>
</context>
</TS>
