<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Avvio del programma</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Ripristina la disposizione della finestra</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Ripristina la posizione della finestra</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Disattiva la schermata iniziale</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Verifica di nuove versioni</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Verifica automaticamente la presenza di nuove versioni </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Verifica ora</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Paese</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Riavviare l&apos;applicazione per rendere effettiva l&apos;impostazione.</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Paese</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Verifica automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Avanti</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Grazie per la fiducia; ci auguriamo che il nostro software sia di suo gradimento.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Scopra gli altri nostri prodotti:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Cerchiamo traduttori madrelingua.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Ci contatti all&apos;indirizzo: </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>Calcola la somma di controllo</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Algoritmo:</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Algoritmi di hash disponibili</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Percorso:</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Seleziona il file</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Somma:</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Valore di hash calcolato</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Somma di controllo pubblicata</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Incolla il valore di hash da verificare</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>Per la verifica servono due somme di controllo..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>VALIDO - Le somme di controllo coincidono</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>NON VALIDO - Le somme di controllo non coincidono</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Sempre in primo piano</translation>
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
        <translation>Non sono disponibili aggiornamenti.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Nuova versione disponibile:</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>Scaricare l&apos;ultima versione dal nostro sito web?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Verifica della versione non riuscita</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>Impossibile connettersi al server.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Controllare le impostazioni di Internet e del firewall oppure verificare su %1 se esiste una nuova versione.</translation>
    </message>
</context>
</TS>
