<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>Il n’y a pas de fichiers dans le presse-papiers</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Tout ou rien</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Tout ou rien&#xa0;: une exécution renomme tous les fichiers de la liste, ou aucun</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1&#xa0;: rien ne sera renommé, car il y en a %2 avec problème</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Nouveaux noms jusqu’ici&#xa0;: %1 sur %2. Tout restaurer, ou garder ce qui est fait&#xa0;?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Tout restaurer</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Garder ce qui est fait</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Gardés</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Renommer ce qui peut l’être</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Rien n’a été renommé, car tous les fichiers ne peuvent pas l’être.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Rien n’a été renommé&#xa0;: un fichier a échoué, et les autres ont retrouvé leur ancien nom.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Rien n’a été renommé&#xa0;: l’exécution a été annulée.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>La restauration est incomplète&#xa0;; fichiers sans leur ancien nom&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Rien n’a été renommé&#xa0;: le journal de l’exécution ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>L’exécution n’est pas encore terminée.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Impossible de restaurer le fichier &apos;%1&apos;&#xa0;: il s’appelle &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Ne plus afficher ce message.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Paramètres généraux</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Extensions</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Faire un don</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Nécessite une entrée dans le registre</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Lancer au démarrage du système</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Réduire au démarrage</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Désactiver l’écran de démarrage</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Restaurer la disposition de la fenêtre</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Restaurer la taille et la position de la fenêtre</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Réduire dans la zone de notification</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Rechercher automatiquement une nouvelle version</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Greffons</translation>
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
        <source>Translation: Kavrondel</source>
        <translation>Traduction&#xa0;: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Soutenir ce projet</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Cette application est gratuite et le restera toujours. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Par une petite contribution, vous pouvez nous aider à développer, à améliorer et à maintenir nos produits.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Dossier de l’application</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Dossier des données de l’application</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Visiter notre site web</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Nous envoyer vos commentaires</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Réalisé par Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>La commande s’est terminée correctement.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>La commande n’a pas pu être exécutée.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Assurez-vous de disposer des droits d’administrateur.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
        <source>Automatically check for new versions</source>
        <translation>Rechercher automatiquement les nouvelles versions</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Nous vous remercions de votre confiance et espérons que ce logiciel vous plaira.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Découvrez nos autres produits&#xa0;:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Nous recherchons des traducteurs travaillant vers leur langue maternelle.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Veuillez nous contacter à l’adresse&#xa0;: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>Numéroter les photos</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Espaces à la place des tirets bas</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Harmoniser majuscules et minuscules</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Sans préfixes d’appareil photo</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Dates sous la forme 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Numéros de piste à deux chiffres</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>«&#xa0;Titre - Artiste&#xa0;» au lieu de «&#xa0;Artiste - Titre&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>le fichier est introuvable</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>le nouveau nom est vide ou ne contient que des points</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>le système de fichiers n’accepte pas le nouveau nom</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>le nouveau nom est trop long</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>rien ne peut être renommé dans ce dossier</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>le nouveau nom contient la moitié d’un caractère</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>le système a refusé</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>le nom est déjà pris</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>la ligne %1 prend le nom %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>la ligne %1 porte encore le nom %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fichiers</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 garde son nom</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 gardent leur nom</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>vérification…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Aller à la ligne problématique suivante (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, sélection&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1&#xa0;: %2 à renommer, %3, %4 avec problème</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1&#xa0;: %2 à renommer, %3, %4 avec problème, %5 sans certitude</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Garde son nom.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>Impossible à prédire avant de renommer.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Reste tel quel&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Sera déplacé dans le dossier %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>Le nouveau nom mène au dossier %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Non renommé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Afficher les détails…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Fichiers non renommés</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>un autre fichier porte son nom</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Règles actives</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Liste des fichiers</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Filtre de noms</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Afficher le chemin complet</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Journal de l’application</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Enregistrer les journaux</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Inclure les messages de débogage</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Débogage</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Ouvrir le dossier des journaux</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Paramètres généraux</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Explorateur de fichiers</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Veuillez patienter</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Ajout des fichiers</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Début du renommage des fichiers</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Impossible de renommer le fichier</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Traités</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échecs</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Soutenez-nous si ce logiciel vous plaît et si vous souhaitez que notre service perdure.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Merci&#xa0;!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>L’application a été réduite.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Cliquez sur l’icône de la zone de notification pour l’afficher.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Toujours au premier plan</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Annuler la dernière exécution</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Annuler, rétablir et exécutions précédentes</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Ajouter des fichiers et des dossiers</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Trier les fichiers</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Déposez ici des fichiers ou des dossiers, ou appuyez sur Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Choisissez ci-dessus un type de règle, remplissez ses champs et appuyez sur «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Fichier %1</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Délai d’attente du socket dépassé</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>A&amp;ugmenter</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuer</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Détache ou rattache le panneau</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Ferme le panneau</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Passer à la vue détaillée</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Passer à la vue en liste</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Créer un dossier</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Créer un nouveau dossier</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vue détaillée</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom de fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Fichiers de type&#xa0;:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Revenir en arrière</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Aller en avant</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Aller au dossier parent</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vue en liste</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste des emplacements et des signets</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Chercher dans&#xa0;:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Afficher les fichiers &amp;cachés</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barre latérale</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fichier introuvable.
Veuillez vérifier le nom du fichier.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Afficher </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Choisir</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Dossier introuvable.
Vérifiez que son nom est correct.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date de modification</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Connexion fermée</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Hôte %1 introuvable</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Hôte inaccessible</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Faire défiler jusqu’ici</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bord droit</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page vers la gauche</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page vers le haut</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page vers la droite</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page vers le bas</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Défiler vers la gauche</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Défiler vers la droite</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Défiler vers le bas</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copier l’adresse du &amp;lien</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Mettre ces valeurs à la place de la règle</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Laisser la règle telle quelle</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Jeux de règles</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Jeux de règles</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Enregistrer les règles actives sous un nom et les reprendre</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>Les règles ont été modifiées depuis.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Dernières utilisées</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Gérer…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Ouvrir un fichier…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemples</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Jeux de règles</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Les règles actives ne sont pas enregistrées. Les remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Il existe déjà un jeu de règles «&#xa0;%1&#xa0;». Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>Supprimer le jeu de règles «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Enregistrer le jeu de règles</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Nom du jeu de règles</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Ouvrir un jeu de règles</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Aucune règle n’a été chargée depuis %1&#xa0;:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Le jeu de règles n’a pas pu être enregistré&#xa0;:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Le jeu de règles n’a pas pu être supprimé&#xa0;:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Le jeu de règles n’a pas pu être renommé&#xa0;:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>règle %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>doit être un objet</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>trop volumineux</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>la ligne %1 n’est pas du JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>doit être un texte d’au plus %1 caractères</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>doit être un nom, sans espaces au début ni à la fin</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>doit être un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>doit être true ou false</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>doit être %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>doit être l’une de ces valeurs&#xa0;: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>doit être une liste d’au plus %1 règles</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>ce fichier a été écrit par une version plus récente du programme</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>ce champ est inconnu</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>est absent</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>n’est pas un fichier</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>un autre jeu de règles porte ce nom</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>le fichier portant l’ancien nom n’a pas pu être supprimé</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Changer la casse</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Majuscules</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Minuscules</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Majuscule au début de chaque mot</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Ignorer l’extension du fichier</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Numéroter</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Numéro de départ</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Zéros en tête</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Insérer du texte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Expression régulière</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Raccourcir</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Motif non valide&#xa0;: il ne changera rien.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Ce motif prendrait trop de temps&#xa0;: il ne changera rien.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Majuscules et minuscules sont distinguées&#xa0;; le plus long texte possible est trouvé.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>un caractère quelconque</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>le point lui-même</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>un de ces caractères</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>tout autre caractère</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>un chiffre</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>une lettre, un chiffre ou _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>un espace</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>un nombre quelconque de a, même aucun</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>un a ou plus</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>un a ou aucun</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>de deux à quatre a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>soit ab, soit cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>le début du nom</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>la fin du nom</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>un groupe&#xa0;: \1 dans le nouveau texte est ce qu’il a trouvé</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Une annulation a été interrompue&#xa0;; le reste peut encore être annulé</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>L’exécution de %1 a été interrompue&#xa0;; les changements de nom qu’elle a faits peuvent être annulés</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Cette exécution ne pourra pas être annulée</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Les derniers changements de nom de cette exécution ne pourront pas être annulés&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 dossiers</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>Annuler 1 changement de nom (%1) dans %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>Annuler %1 changements de nom (%2) dans %3</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Une autre fenêtre du programme s’occupe déjà de cette exécution.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Cette exécution vient d’un autre ordinateur ou d’une version plus récente du programme.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Une exécution ultérieure a renommé certains de ces fichiers. Annulez d’abord celle-ci.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>Il ne reste rien à annuler de cette exécution.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Début de l’annulation</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Impossible d’annuler le changement de nom du fichier &apos;%1&apos;&#xa0;: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>Annuler %1 changements de nom (%2) dans %3 dossiers</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Exécutions</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommés</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>annulée en partie</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>complète</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>interrompue par vous</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompue</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>d’un autre ordinateur</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>d’une version plus récente</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, modifiée par une exécution ultérieure</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>L’exécution de %1 a renommé certains de ces fichiers. Annulez d’abord celle-ci.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Annuler l’exécution</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Afficher les fichiers</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Tout oublier</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Oublier toutes les exécutions&#xa0;? Les fichiers restent tels quels, et aucune exécution ne pourra plus être annulée.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Fichiers de l’exécution de %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Ancien nom</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>porte le nouveau nom</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>porte l’ancien nom</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>un autre fichier s’y trouve</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>n’est plus là</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Exécutions…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Cette exécution a été interrompue&#xa0;; «&#xa0;Exécutions…&#xa0;» peut aussi la terminer</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Cette exécution devait renommer tous les fichiers ou aucun, et a été interrompue. Terminez-la, restaurez tout, ou laissez les fichiers tels quels.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Laisser ainsi</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Achèvement d’une exécution commencé</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>L’exécution de %1 a été interrompue&#xa0;; «&#xa0;Exécutions…&#xa0;» peut la terminer ou tout restaurer</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extension</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Ordre d’ajout</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, croissant</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, décroissant</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Échec de la transmission des données</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Échec de la vérification de version</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Erreur de connexion au serveur.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Veuillez vérifier vous-même à l’adresse&#xa0;:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Une nouvelle version est disponible&#xa0;!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Voulez-vous la télécharger maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Quoi de neuf&#xa0;?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>Vous utilisez la dernière version.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
