<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_GB">
<context>
    <name>DialogOptions</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Program Startup</source>
        <translation>Démarrage du programme</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Restaurer la disposition de la fenêtre</translation>
    </message>
    <message>
        <source>Restore window position</source>
        <translation>Restaurer la position de la fenêtre</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Désactiver l&apos;écran de démarrage</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Recherche de nouvelles versions</translation>
    </message>
    <message>
        <source>Automatically check for new versions </source>
        <translation>Rechercher automatiquement les nouvelles versions </translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Rechercher maintenant</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restart the application so the setting can take effect.</source>
        <translation>Redémarrez l&apos;application pour que le réglage prenne effet.</translation>
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
        <translation>Langue</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy our software.</source>
        <translation>Nous vous remercions de votre confiance et espérons que notre logiciel vous plaira.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Découvrez nos autres produits :</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Nous recherchons des traducteurs de langue maternelle.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Contactez-nous à l&apos;adresse : </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Calculate Checksum</source>
        <translation>Calculer la somme de contrôle</translation>
    </message>
    <message>
        <source>Algorithm:</source>
        <translation>Algorithme :</translation>
    </message>
    <message>
        <source>Available hash algorithms</source>
        <translation>Algorithmes de hachage disponibles</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Chemin :</translation>
    </message>
    <message>
        <source>Select target file</source>
        <translation>Choisir le fichier cible</translation>
    </message>
    <message>
        <source>Checksum:</source>
        <translation>Somme de contrôle :</translation>
    </message>
    <message>
        <source>Generated hash value</source>
        <translation>Valeur de hachage calculée</translation>
    </message>
    <message>
        <source>Precalculated Checksum</source>
        <translation>Somme de contrôle fournie</translation>
    </message>
    <message>
        <source>Paste verification hash value</source>
        <translation>Collez la valeur de hachage à vérifier</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Two checksums are needed for verification..</source>
        <translation>Deux sommes de contrôle sont nécessaires pour la vérification..</translation>
    </message>
    <message>
        <source>VALID - Checksums do match</source>
        <translation>VALIDE - Les sommes de contrôle concordent</translation>
    </message>
    <message>
        <source>INVALID - Checksums do not match</source>
        <translation>NON VALIDE - Les sommes de contrôle ne concordent pas</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Stay On Top</source>
        <translation>Toujours au premier plan</translation>
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
        <translation>Aucune mise à jour n&apos;est disponible.</translation>
    </message>
    <message>
        <source>New version available:</source>
        <translation>Nouvelle version disponible :</translation>
    </message>
    <message>
        <source>Do you want to download the latest version from our website?</source>
        <translation>Voulez-vous télécharger la dernière version depuis notre site web ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Échec de la recherche de version</translation>
    </message>
    <message>
        <source>Could not connect to server.</source>
        <translation>Impossible de se connecter au serveur.</translation>
    </message>
    <message>
        <source>Please check your internet/firewall settings or look for yourself at: %1 for a new version.</source>
        <translation>Vérifiez vos paramètres Internet et pare-feu, ou regardez vous-même sur %1 si une nouvelle version existe.</translation>
    </message>
</context>
</TS>
