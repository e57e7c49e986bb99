<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Échec de l&apos;allocation de mémoire</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, une taille impossible</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>Son enregistrement indique %1 octets, plus qu&apos;un fichier ne peut en avoir.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>Tailles impossibles dans la somme&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>Certificat d&apos;effacement - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 Exporter en PDF</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ Imprimer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>Exporter le certificat</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>Exportation réussie</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>Certificat exporté vers&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Échec de l&apos;exportation</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>Impossible d&apos;exporter le certificat. Veuillez vérifier le chemin du fichier et ses autorisations.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Imprimer le certificat</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>Résumé de l&apos;opération</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>Norme appliquée</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>Passes</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>Support de stockage</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>Détails de l&apos;effacement</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>Fichiers traités</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Nb de secteurs</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>Secteurs effacés</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>Données écrites</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>Sect. défectueux</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>Conforme ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>Non conforme ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>Empreinte</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>Informations sur l&apos;opérateur</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>Certificat d&apos;effacement de données</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>Attestation de conformité de l&apos;effacement sécurisé des données</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>N° de certificat&#xa0;:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Créé le&#xa0;:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>Déclaration&#xa0;: ce certificat atteste que le support de stockage ou les fichiers indiqués ci-dessus ont été effacés de manière sécurisée conformément à la norme d&apos;effacement spécifiée. Le processus d&apos;effacement respecte la réglementation applicable en matière de protection des données. Ce certificat a été généré automatiquement par Quorvex et tient lieu de justificatif de conformité pour la destruction des données.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>Sur le support</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>Non relu</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>Rien qui puisse être comparé</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>Relecture</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>CertificateNumber</name>
    <message>
        <source>All certificate numbers of this day are taken.</source>
        <translation>Tous les numéros de certificat de ce jour sont pris.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>Résumé de l&apos;opération</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>Norme appliquée</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>Passes</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> au total</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Statut&#xa0;:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>Support de stockage</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>Détails de l&apos;effacement</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>Fichiers traités</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> au total</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>Nb de secteurs</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>Secteurs effacés</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>Données écrites</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>Sect. défectueux</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>Résultat&#xa0;:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>Non conforme</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> positions</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>Empreinte</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>Informations sur l&apos;opérateur</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>Certificat d&apos;effacement de données</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>N° de certificat&#xa0;: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>Généré le&#xa0;: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>Déclaration&#xa0;: ce certificat atteste que le support de stockage ou les fichiers indiqués ci-dessus ont été effacés de manière sécurisée conformément à la norme d&apos;effacement spécifiée. Le processus d&apos;effacement respecte la réglementation applicable en matière de protection des données. Ce certificat a été généré automatiquement par Quorvex et tient lieu de justificatif de conformité pour la destruction des données.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>Outil professionnel d&apos;effacement de données</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>réellement traités&#xa0;: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>non relu</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>contenu relu non comparable</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(texte complet dans l&apos;historique de ce programme)</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>this program was built without certificates</source>
        <translation>ce programme a été compilé sans la prise en charge des certificats</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>aucune commande indiquée</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; est incomplet</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>commande inconnue &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; attend %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%1&apos; est un argument de trop pour &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (voir %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 n&apos;est pas un fichier</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 est trop volumineux pour un rapport</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>les champs sont identiques, mais le texte diffère à partir de l&apos;octet %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>le premier champ qui diffère est %1&#xa0;: %2 dans l&apos;enregistrement, %3 dans le fichier</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>DIFFÉRENT&#xa0;: %1 n&apos;est pas un rapport</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>DIFFÉRENT&#xa0;: la base de données ne contient aucun enregistrement de %1</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>IDENTIQUE&#xa0;: %1 correspond à l&apos;enregistrement de %2</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>DIFFÉRENT&#xa0;: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>ZÉROS UNIQUEMENT&#xa0;: les %1 octets de %2 valent tous 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>PAS UNIQUEMENT DES ZÉROS&#xa0;: l&apos;octet %1 de %2 vaut %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>un chemin est vide</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>Compare un rapport exporté avec son enregistrement, ou recherche les octets restants</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE est un rapport au format JSON ou, avec --zeros, un fichier image ou un disque, ouvert uniquement en lecture.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>Lit FILE en entier et indique si chaque octet vaut 0x00</translation>
    </message>
    <message>
        <source>system</source>
        <translation>système</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>amovible</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>Aucun disque trouvé.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
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
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, système</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>Liste les disques et leurs volumes</translation>
    </message>
    <message>
        <source>random</source>
        <translation>aléatoire</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>complément</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (vérifié)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2&#xa0;: %3, niveau %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>Liste les normes d&apos;effacement et leurs passes</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>impossible de supprimer le rapport %1</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>Le rapport %1 est supprimé.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>Supprime un rapport de la base de données</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; exige --pdf ou --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>impossible d&apos;écrire %1</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>Exporte un rapport sous forme de certificat, de JSON ou des deux</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>Le JSON est le texte enregistré, octet pour octet, destiné à &apos;quorvex-cli check&apos;.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>Écrit le certificat au format PDF, dans ce fichier ou ce dossier</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>Écrit le rapport au format JSON&#xa0;; - désigne la sortie standard</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagé</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>Aucun rapport.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 attend un nombre %2, et non &apos;%3&apos;</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>supérieur ou égal à %1</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>Liste les rapports enregistrés, du plus récent au plus ancien</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>Nombre de rapports à lister (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>Nombre de rapports récents à ignorer (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>Affiche un rapport</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>Liste ce que &apos;wipe trash&apos; effacerait</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>Efface un disque entier</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE est le numéro affiché par &apos;quorvex-cli disks&apos; ou un chemin de périphérique. Les disques système sont refusés.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
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
        <source>Erases files, and folders with all that is in them</source>
        <translation>Efface des fichiers, ainsi que des dossiers avec tout leur contenu</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>Pour un lien, seul le lien lui-même est supprimé&#xa0;; sa cible n&apos;est pas touchée. Placez -- devant un chemin qui commence par un tiret.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  l&apos;espace libre de&#xa0;:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  les fichiers existants sont conservés</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report n&apos;accepte que le rapport d&apos;un seul volume</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>--pdf exige un dossier lorsqu&apos;il y a plusieurs volumes</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>Efface l&apos;espace libre de volumes</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME est une lettre de lecteur, un point de montage ou un numéro de disque pour tous les volumes du disque.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>La Corbeille est vide.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>la liste des dossiers tenue par la Corbeille mentionne encore ce qui a été effacé, erreur %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>la Corbeille</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>Efface tout le contenu de la Corbeille de l&apos;utilisateur actuel</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>Il s&apos;agit de la Corbeille de Windows et de celle des autres environnements de bureau.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>Les éléments suivants vont être détruits définitivement&#xa0;:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>non confirmé&#xa0;: l&apos;entrée standard n&apos;est pas un terminal&#xa0;; --yes évite la question</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>Saisissez %1 pour tout détruire&#xa0;:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>annulé, rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>non confirmé, rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>disque introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 fait partie du disque %2&#xa0;; un disque entier est requis</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>le disque %1 est un disque système et ne peut pas être effacé tant qu&apos;il est utilisé</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>autorisation d&apos;écriture refusée pour le disque %1</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>le disque %1 a disparu, ou un autre a pris sa place</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 n&apos;est ni un fichier ni un dossier&#xa0;; un disque s&apos;efface avec &apos;wipe disk&apos;</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 remonte à travers un lien&#xa0;; indiquez le chemin sans &quot;..&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>impossible d&apos;examiner %1, erreur %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 est la racine d&apos;un volume&#xa0;; indiquez ce qui doit y être effacé</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>Sortie destinée aux machines&#xa0;: JSON, une valeur par ligne</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>Conserve la base de données et le journal dans ce dossier au lieu de celui de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>Présente ce fichier image comme un disque (répétable)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>Ne liste et n&apos;ouvre aucun disque réel</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>N&apos;affiche que les erreurs et la ligne finale</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Affiche cette aide</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Affiche la version</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>n&apos;est pas un fichier image&#xa0;: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>Utilisation&#xa0;: quorvex-cli [OPTION...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple&#xa0;:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>Options communes à toutes les commandes&#xa0;:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>terminé, tout ce qui était demandé a été fait</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>la tâche a été exécutée et a échoué, en tout ou en partie</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>la ligne de commande est incorrecte</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>refusé avant toute écriture</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>annulé (Ctrl+C), la tâche s&apos;est arrêtée proprement</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>impossible d&apos;écrire un rapport ou une autre sortie</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Codes de sortie&#xa0;:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMMANDE</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>Détruit les données sans récupération possible et en apporte la preuve.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>Chaque commande a sa propre aide&#xa0;: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>impossible d&apos;utiliser le dossier de données %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; se trouve dans ce qui doit être effacé</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d&apos;écrire dans %1</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>la base de données des rapports dans %1 se trouve dans ce qui doit être effacé&#xa0;; --data-dir choisit un autre dossier, --no-report s&apos;en passe</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>impossible d&apos;enregistrer le rapport %1 dans la base de données&#xa0;: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>impossible d&apos;écrire le fichier de rapport %1</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>impossible d&apos;écrire le certificat %1</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>langue inconnue &apos;%1&apos;, langues connues&#xa0;: %2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>impossible de lire le catalogue de la langue %1</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 passe</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 passes</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; ne peut pas être un nom de fichier</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; est un dossier, pas un fichier</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; existe et n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>le dossier de &apos;%1&apos; n&apos;existe pas</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>passe %1/%2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>impossible d&apos;utiliser la base de données des rapports dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>impossible de lire la base de données des rapports&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>il n&apos;existe aucun rapport %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>les données enregistrées pour le rapport %1 sont endommagées</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>Secteurs effacés</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>Secteurs défectueux</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>réussie</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>non réussie</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Relecture</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Empreinte</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Données écrites</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>impossible d&apos;écrire la sortie</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[erreur]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[avertissement]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[info]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>TERMINÉ</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>ANNULÉ</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>ÉCHEC</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 écrits</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1&#xa0;: %2, %3, %4 en %5, certificat %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, rapport %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root est vide</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 n&apos;est pas un dossier</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>Examine les Corbeilles Windows sous ce dossier, qui représente un disque (répétable)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>Avec --root&#xa0;: uniquement la Corbeille de l&apos;utilisateur ayant cet identifiant de sécurité</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid est vide</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid exige --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>le système n&apos;indique pas qui est l&apos;utilisateur</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 élément</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>dossier, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, seul son enregistrement subsiste</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>disque %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>volume introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>compris entre %1 et %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>méthode inconnue &apos;%1&apos;, &apos;quorvex-cli methods&apos; liste les méthodes disponibles</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>Norme d&apos;effacement, par nom ou numéro (0&#xa0;: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>Ne relit pas ce qui a été écrit</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>Nombre d&apos;échantillons à relire sur un disque (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>Nombre de fichiers à effacer simultanément, de 1 à 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>Tampon d&apos;écriture en MiB, de 1 à 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>Écrit le rapport au format JSON dans ce fichier</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>N&apos;enregistre pas le rapport dans la base de données</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>En cas de succès, écrit le certificat au format PDF, dans ce fichier ou ce dossier</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>Ne demande pas le mot ERASE</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>avec relecture</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>sans relecture</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  méthode %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>impossible de lire %1 à l&apos;octet %2, erreur %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>autorisation de lecture refusée pour %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>impossible d&apos;ouvrir %1, erreur %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 est un dossier</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>le journal du programme dans %1 se trouve dans ce qui doit être effacé&#xa0;; --data-dir prend un autre dossier</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>FAIT EN PARTIE</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 est vide, il n&apos;y a rien à vérifier</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>périphérique qui n&apos;est pas un disque</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 est en lecture seule</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>le disque %1 est en lecture seule</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>le volume %1 se trouve sur le disque %2 et aussi sur&#xa0;: %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>le disque %1 est occupé par %2</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>pour le libérer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>Lacune</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>complet</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>partiel</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>type de lacune inconnu &apos;%1&apos;, types possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>Une lacune de ce type ne compte pas comme un échec (répétable)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>volumes restés démontés&#xa0;: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  une partie ne sera pas effacée&#xa0;:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  le disque entier&#xa0;: sa table de partitions et tout ce qui se trouve entre ses volumes et hors de ceux-ci</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  ses volumes sont démontés auparavant et le restent dès que quelque chose a été écrit</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>D&apos;un disque dont des volumes sont montés, seuls ceux-ci sont effacés&#xa0;; --whole les démonte et efface chaque secteur du disque.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>Démonter tous les volumes du disque et effacer chacun de ses secteurs</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>Sur le support</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir est vide</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>rien à effacer n&apos;a été trouvé, mais toutes les corbeilles n&apos;ont pas été examinées&#xa0;: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>aucune corbeille de %1 n&apos;a été trouvée</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 entrée sans enregistrement</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 entrées sans enregistrement</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>et %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 est un lien, il n&apos;est pas suivi</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 appartient à un autre utilisateur et n&apos;est pas touché</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>%1 ne peut pas être examiné, erreur %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>--no-report permet de s&apos;en passer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; est indiqué pour deux sorties</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; existe et n&apos;est pas un rapport&#xa0;; --force le remplace</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>Laisse --report remplacer un fichier qui n&apos;est pas un rapport</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1&#xa0;; essayez en tant qu&apos;administrateur</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1&#xa0;; essayez avec sudo</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>Indique ce que répondent disques et volumes, pour qui aide à distance</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>Rien n’est écrit. Les réponses sont en anglais dans toutes les langues et contiennent des numéros de série et des chemins&#xa0;: relisez-les avant de les transmettre.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Corbeille de %1</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>Langue&#xa0;: %1 (par défaut&#xa0;: celle du système)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>Effacement terminé</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>Échec de l&apos;effacement</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>Une erreur s&apos;est produite pendant l&apos;effacement.
Veuillez consulter le journal pour plus de détails.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>Toutes les données sélectionnées ont été effacées de manière sécurisée.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>Toutes les données sélectionnées ont été effacées de manière sécurisée.
Un certificat d&apos;effacement a été généré.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>Effacement réussi&#xa0;!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>Certificat&#xa0;: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>Voir le certificat</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>Restés démontés&#xa0;: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>Le rapport n&apos;est pas enregistré. %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>Confirmer l&apos;effacement</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>Saisissez &lt;b&gt;ERASE&lt;/b&gt; pour confirmer&#xa0;:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>Attention&#xa0;: opération irréversible</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>Les données sélectionnées seront effacées définitivement, sans récupération possible.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>Effacer le disque entier
(sinon, tout ce qui est hors de ses volumes reste)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>Effacer le disque entier
(sinon, %1 restent hors de ses volumes)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>Chaque secteur est écrasé, la table de partitions aussi. Tous les volumes du disque sont démontés auparavant.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>Ceci sera détruit</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>Effacer un disque ou une partition</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>Sélectionnez un disque ou une partition. Développez un disque pour voir ses partitions.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Retour</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Suivant →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Disques et partitions</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>Disque/Partition</translation>
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
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>Effacer l&apos;espace libre</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>Sélectionnez une partition dont l&apos;espace libre doit être effacé de manière sécurisée.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>Sélectionnez un disque ou une partition. Toutes ses données seront effacées à jamais.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ Le disque système ne peut pas être effacé.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ L&apos;effacement de l&apos;espace libre est sans risque pour le disque système. Il n&apos;affecte ni les fichiers existants ni le fonctionnement du système.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ La partition système ne peut pas être effacée.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ L&apos;effacement de l&apos;espace libre est sans risque pour la partition système. Il n&apos;affecte ni les fichiers existants ni le fonctionnement du système.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 Disque %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ Système</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>Amovible</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 Partition %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ Système</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ Démarrage</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>un périphérique qui n&apos;est pas un disque</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>le disque %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>Le volume %1 se trouve sur ce disque et aussi sur %2.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Le disque est en lecture seule.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>Le disque est occupé par&#xa0;: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>Ces commandes le libèrent&#xa0;:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Échec de l&apos;allocation de mémoire</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>Erreur&#xa0;: aucun descripteur de disque ou de volume disponible</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>Effacement via le descripteur du disque...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>Échec de SetFilePointerEx, code d&apos;erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Erreur d&apos;écriture, position&#xa0;: %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>Effacement via les descripteurs des volumes...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>Utilisation de la taille de volume estimée&#xa0;: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>Effacement du volume %1/%2, taille&#xa0;: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>Volume %1&#xa0;: %2 non écrasés</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>Effacement du volume %1 terminé, données écrites&#xa0;: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>0 octet écrit, fin du volume atteinte</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>Limite du volume atteinte, passage au volume suivant...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>Erreur&#xa0;: accès refusé</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>Erreur&#xa0;: disque protégé en écriture</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>Erreur&#xa0;: périphérique non prêt</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>Erreur&#xa0;: disque en cours d&apos;utilisation</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>Erreur&#xa0;: conflit de verrouillage</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>Erreur&#xa0;: erreur d&apos;E/S du périphérique</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>Échec du vidage du tampon d&apos;écriture, code d&apos;erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>Vérification en cours...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>Échec de la vérification, position&#xa0;: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>Vérification réussie</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>Avertissement&#xa0;: aucun volume trouvé, il s&apos;agit peut-être d&apos;un disque sans partition</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>Recherche des volumes du disque %1...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>Volume trouvé&#xa0;: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>Volumes à verrouiller trouvés&#xa0;: %1</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>Traitement du volume&#xa0;: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>Impossible d&apos;ouvrir le volume %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>Verrouillage du volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>Volume %1 verrouillé</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>Avertissement&#xa0;: échec du verrouillage du volume %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>Démontage du volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>Volume %1 démonté</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>Avertissement&#xa0;: échec du démontage du volume %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>Impossible d&apos;effacer le disque système</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>Verrouillage des volumes du disque...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>Impossible de verrouiller les volumes du disque, veuillez fermer tous les programmes qui l&apos;utilisent</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>Volumes du disque verrouillés et démontés</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>Impossible d&apos;obtenir les informations du disque</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>Effacement du disque terminé&#xa0;!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Effacement annulé</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>Début de l&apos;effacement du disque...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disque cible&#xa0;: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>Numéro du disque&#xa0;: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>Numéro de série&#xa0;: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>Ouverture du disque...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>Disque ouvert</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>Impossible d&apos;ouvrir le disque, code d&apos;erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>L&apos;effacement se fera via les descripteurs des volumes</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Taille du disque&#xa0;: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>Taille de secteur&#xa0;: %1 octets</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>Nombre total de secteurs&#xa0;: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>Passe d&apos;écrasement %1/%2 (motif&#xa0;: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>Échec de l&apos;écrasement</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>aléatoire</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>Le volume %1 a été remonté, rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>Le disque n&apos;a pas pu être remis en ligne, code d&apos;erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>Remonté&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>Erreur&#xa0;: le volume est chiffré et verrouillé (BitLocker). Déverrouillez-le, ou effacez le disque entier (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>Erreur&#xa0;: le périphérique a été débranché, ou le support a été changé</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>Erreur&#xa0;: défaillance du périphérique ou de son support</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>Sélectionner les fichiers à détruire</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Cliquez sur les boutons pour ajouter des fichiers et des dossiers</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 Ajouter des fichiers</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 Ajouter un dossier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>Cliquez pour ajouter des fichiers ou faites-les glisser ici</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Retour</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Suivant →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>Fichiers et dossiers à détruire</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>Sélectionner des fichiers</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>Voulez-vous vraiment retirer tous les fichiers ajoutés&#xa0;?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>Éléments ajoutés&#xa0;: %1, total&#xa0;: %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>1 élément est introuvable</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>%1 éléments sont introuvables</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 fichier a d&apos;autres noms&#xa0;; son contenu est effacé sous ceux-ci aussi</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 fichiers ont d&apos;autres noms&#xa0;; leur contenu est effacé sous ceux-ci aussi</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>Les fichiers creux comme %1 occupent encore %2 une fois réécrits, et seuls %3 sont libres. Rien n&apos;a été écrit.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Échec de l&apos;allocation de mémoire</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>Analyse des fichiers cibles...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>Aucun fichier à effacer trouvé</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>La tâche d&apos;effacement a été annulée par l&apos;utilisateur</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>Tous les fichiers ont été effacés avec succès&#xa0;! Fichiers traités&#xa0;: %1</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>Effacement terminé, mais fichiers en échec&#xa0;: %1. Les données ne sont peut-être pas en sécurité&#xa0;!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>Impossible de lire le dossier&#xa0;: %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>Impossible d&apos;accéder à&#xa0;: %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>Autres liens physiques vers le fichier (%1)&#xa0;: %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>Fichiers prêts à être effacés&#xa0;: %1, taille totale par passe&#xa0;: %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>Tous les fichiers sont vides, écrasement des données ignoré</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>Fichiers en échec lors de la passe d&apos;écrasement %1/%2, nombre&#xa0;: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>Impossible d&apos;ouvrir le fichier (WinAPI)&#xa0;: %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>Échec de FlushFileBuffers&#xa0;: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>Échec de SetFilePointerEx&#xa0;: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>Échec de WriteFile&#xa0;: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>Échec de la vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>Suppression sécurisée et nettoyage des métadonnées en cours...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Échec de la suppression&#xa0;: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>Impossible de supprimer le dossier&#xa0;: %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>Le fichier a été remplacé par un autre, qui reste tel quel&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>Le contenu de %1 fichiers se trouve peut-être aussi ailleurs, où il n&apos;a pas été écrasé</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>Un autre système de fichiers est monté dans le dossier, laissé tel quel&#xa0;: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>%1 fichiers de plus sont apparus pendant la tâche et sont effacés aussi</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>Le contenu du fichier n’est pas sur cet ordinateur mais seulement dans le nuage, et ne peut pas être effacé&#xa0;: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>Tout le contenu du dossier n’est pas sur cet ordinateur, une partie n’est que dans le nuage&#xa0;; il ne peut pas être effacé&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 fichiers sont synchronisés par un service en nuage, qui peut garder des copies et des versions antérieures</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>Effacement des noms de fichiers du journal du système de fichiers...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>Le journal du système de fichiers peut encore contenir des noms de fichiers : %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>Le volume n&apos;est plus disponible, code d&apos;erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>La suppression du fichier de remplissage n&apos;a pas libéré d&apos;espace, impossible de poursuivre l&apos;écrasement</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>Échec de l&apos;allocation de mémoire</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>Données écrites&#xa0;: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>Partition système détectée, 1 GB d&apos;espace de sécurité est réservé</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>L&apos;espace libre est rempli</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>Impossible de créer le fichier de remplissage, %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Erreur d&apos;écriture, position&#xa0;: %1, code d&apos;erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>L&apos;espace libre ne diminue pas, le système de fichiers compresse peut-être les données</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>Début de l&apos;effacement de l&apos;espace libre...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>Cible non valide</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>Partition cible&#xa0;: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>Taille de la partition&#xa0;: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>Système de fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disque cible&#xa0;: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Taille du disque&#xa0;: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>Le disque n&apos;a pas de table de partitions, recherche du volume correspondant...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>Volume correspondant trouvé&#xa0;: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>Avertissement&#xa0;: aucune partition non système utilisable sur le disque</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>Partitions dont l&apos;espace libre va être effacé&#xa0;: %1</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>Aucune partition utilisable</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== Partition %1/%2&#xa0;: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Effacement annulé</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>Effacement de l&apos;espace libre terminé&#xa0;!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>Échec du remplissage de l&apos;espace libre</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>Espace libre&#xa0;: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>Aucun espace libre à effacer</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>Fichiers temporaires de la dernière interruption supprimés&#xa0;: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>Impossible de créer le dossier temporaire&#xa0;: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>Passe d&apos;écrasement %1/%2 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>motif&#xa0;: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>motif&#xa0;: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>motif&#xa0;: aléatoire</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>motif&#xa0;: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>motif&#xa0;: inconnu</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>Nettoyage des résidus du système de fichiers...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>Nettoyage incomplet des résidus du système de fichiers, code d&apos;erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>Avertissement&#xa0;: le système de fichiers n&apos;accepte plus de données, %1 d&apos;espace libre restent non remplis</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>code d&apos;erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>Le volume %1 n&apos;est plus celui qui a été choisi.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>Une autre tâche efface l&apos;espace libre de ce volume&#xa0;; ses fichiers sont dans %1.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1 sont gardés comme réserve de sécurité et ne sont pas écrasés</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>Voir le certificat</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>Tout supprimer</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>Historique des effacements</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Statut&#xa0;:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>Voir</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[Disque] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[Partition] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[Espace libre] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[Fichiers] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 au total</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>Exporter le certificat</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>Exportation réussie</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>Certificat exporté vers&#xa0;: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>Échec de l&apos;exportation</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>Impossible d&apos;exporter le fichier du certificat</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>Voulez-vous vraiment supprimer cet enregistrement d&apos;effacement&#xa0;?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>Aucun enregistrement à supprimer</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>Voulez-vous vraiment supprimer tous les enregistrements d&apos;effacement&#xa0;?

Cette opération est irréversible&#xa0;!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>Suppression terminée</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>Tous les enregistrements ont été supprimés</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>Données détruites à jamais. Aucune fuite.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Effacer un disque</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>Efface intégralement toutes les données du disque, y compris les partitions et les secteurs de démarrage</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Effacer l&apos;espace&#xa0;libre</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>Élimine les résidus des fichiers supprimés</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Effacer des fichiers</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>Détruit définitivement fichiers et dossiers</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Effacer la Corbeille</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>Efface les fichiers placés dans la Corbeille</translation>
    </message>
    <message>
        <source>DoD 5220.22-M</source>
        <translation>DoD 5220.22-M</translation>
    </message>
    <message>
        <source>NIST 800-88</source>
        <translation>NIST 800-88</translation>
    </message>
    <message>
        <source>Gutmann 35-Pass</source>
        <translation>Gutmann 35 passes</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>La tâche précédente est encore en train de se terminer.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>Un effacement est en cours.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>La mise en veille du système n’a pas pu être empêchée pendant cette tâche, erreur %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Erreur de configuration</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossible de charger le lien de la page.

Veuillez contacter l&apos;assistance technique ou réinstaller le logiciel.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossible d&apos;ouvrir le navigateur</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossible d&apos;ouvrir le navigateur par défaut.

Veuillez copier le lien manuellement pour y accéder&#xa0;:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>Copier le journal</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Fichiers texte (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>Le périphérique loop %1 est attaché à %2. Rien n&apos;a été écrit.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - Effacement sécurisé des données</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>Effacer l&apos;espace libre&#xa0;?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>Les fichiers de la Corbeille ont été effacés de manière sécurisée&#xa0;!

Voulez-vous aussi effacer l&apos;espace libre, afin que les fichiers
précédemment vidés de la Corbeille ne puissent pas être récupérés&#xa0;?

Cette opération peut être plus longue selon l&apos;espace libre disponible.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>Confirmer l&apos;arrêt</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>Voulez-vous vraiment arrêter la tâche d&apos;effacement&#xa0;?
Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>Confirmer la fermeture</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>Une tâche d&apos;effacement est en cours. Voulez-vous vraiment quitter&#xa0;?
Quitter le programme interrompra la tâche en cours.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - Effacement sécurisé des données&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Effacez vos données de manière sécurisée selon des normes de niveau militaire.&lt;br&gt;Permet d&apos;effacer un disque, une partition, l&apos;espace libre ou des fichiers.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. Effacé veut dire effacé, et le certificat dit comment.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>À propos de Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Effacer la Corbeille</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>Analyse des fichiers supprimés dans la Corbeille...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>Analyse de la Corbeille...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>Analyse de la Corbeille du lecteur %1 (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>La Corbeille est vide</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>La Corbeille est déjà vide.

Toutefois, des fichiers supprimés auparavant peuvent encore être récupérables.
Voulez-vous effacer l&apos;espace libre afin qu&apos;ils ne puissent pas être récupérés&#xa0;?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>Les fichiers supprimés suivants ont été trouvés dans la Corbeille</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>Éléments trouvés&#xa0;: %1, total&#xa0;: %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>Sélectionner les fichiers à détruire</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Cliquez sur les boutons pour ajouter des fichiers et des dossiers</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>Ce disque ne peut pas être effacé</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>Tout ceci sera effacé, pas seulement %1
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>Ce volume ne peut pas être effacé</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>Ces fichiers ne peuvent pas être effacés</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>L&apos;effacement ne peut pas commencer</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>Effacé aussi, sans enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>Non examiné&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>Lecture des disques...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Corbeille de %1</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>Passes&#xa0;: %1</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>Niveau de sécurité&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>Choisir la méthode d&apos;effacement</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>Chaque méthode d&apos;effacement offre un niveau de sécurité différent&#xa0;: plus il y a de passes d&apos;écrasement, plus la sécurité est élevée, mais plus l&apos;opération est longue</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← Retour</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>seuls les volumes montés sont effacés, pas le reste du disque</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>des volumes n&apos;ont pas pu être ouverts et n&apos;ont pas été effacés</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>des volumes n&apos;acceptaient plus de données avant d&apos;avoir atteint leur fin</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>des volumes étaient en cours d&apos;utilisation pendant leur écrasement</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>la fin du disque n&apos;est pas un secteur entier et n&apos;a pas été écrasée</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>le disque indique une taille nulle, rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>des volumes s&apos;étendent au-delà de la fin du disque</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>rien n&apos;a été écrit alors qu&apos;il y avait de l&apos;espace libre</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>il est resté de l&apos;espace libre qui n&apos;a pas pu être rempli</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>plus de 10&#xa0;% de l&apos;espace libre est laissé en réserve</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>des fichiers de remplissage sont restés</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>des éléments avaient disparu avant de pouvoir être effacés</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>des éléments ont été entre-temps remplacés par d&apos;autres</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>des fichiers se sont agrandis après leur écrasement</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>des éléments n&apos;ont pas pu être supprimés</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>il se peut que le système de fichiers conserve le contenu ailleurs, où il n&apos;est pas écrasé</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>les liens sont supprimés, leurs cibles ne sont pas effacées</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>ce qui a été écrit n&apos;a pas été relu</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>ce qui a été écrit ne peut pas être comparé lors de la relecture</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>une petite partie de l&apos;espace libre est laissée en réserve</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>des fichiers avaient d&apos;autres noms, qui subsistent et mènent au contenu écrasé</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>le système de fichiers écrit à de nouveaux emplacements et conserve peut-être le contenu antérieur, par exemple dans des instantanés</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>il n&apos;y avait pas d&apos;espace libre à écraser</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>Effacé en partie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>Pas entièrement effacé&#xa0;: la tâche a échoué</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>Pas entièrement effacé&#xa0;: la tâche a été annulée</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>Écrit sur le support&#xa0;: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>le disque n&apos;a aucun volume monté dont l&apos;espace libre pourrait être effacé</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>des corbeilles n&apos;ont pas été examinées, leur contenu n&apos;est pas effacé</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>des clichés instantanés du volume peuvent garder un contenu antérieur</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>un service en nuage garde des copies et des versions antérieures de fichiers</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>Vitesse&#xa0;: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>Temps restant&#xa0;: calcul en cours...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Journal des opérations</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ Arrêter</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>Méthode d&apos;effacement&#xa0;: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>Vitesse&#xa0;: %1/s</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 小时 %2 分</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>剩余时间: %1</source>
        <translation>Temps restant&#xa0;: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ Reprendre</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ Pause</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>Effacement des données...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>Progression de l&apos;effacement</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>Reprend l&apos;affichage de cette page&#xa0;; l&apos;effacement ne s&apos;est pas arrêté</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>Suspend seulement l&apos;affichage de cette page&#xa0;; l&apos;effacement continue</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>Remarque&#xa0;: le « dispositif d’accès contrôlé aux dossiers » de Sécurité Windows empêche peut-être ce programme d’écrire. Autorisez-le à cet endroit, puis réessayez</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>机械硬盘</source>
        <translation>Disque dur</translation>
    </message>
    <message>
        <source>固态硬盘</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>USB设备</source>
        <translation>Support USB</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>Disque externe</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>Un autre programme retient la base de données des rapports.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>La base de données des rapports ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>Il n&apos;y a plus de place pour la base de données des rapports.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>La base de données des rapports est endommagée.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>La base de données des rapports ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>Un lien se trouve à la place de la base de données des rapports.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>La base de données des rapports n&apos;a pas accepté le rapport.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>Vérifier les données après l&apos;effacement</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>Générer automatiquement le certificat d&apos;effacement</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>Exporter automatiquement le certificat en PDF après l&apos;effacement</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>Effacement</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>Dossier d&apos;exportation&#xa0;:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>Choisir le dossier d&apos;exportation par défaut...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>Choisir le dossier d&apos;exportation</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>Exportation des certificats</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Enregistrement réussi</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>Les paramètres ont été enregistrés</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Échec de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>Impossible d&apos;enregistrer les paramètres</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Quorvex</source>
        <translation>Quorvex</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>Effacement</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>Rapport introuvable</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>La base de données ne contient pas de rapport %1.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>disque %1&#xa0;: modèle %2, numéro de série %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>volume %1, %2, %3, %4 libres</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, étiquette %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>aucun volume monté</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 fichier, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>au moins 1 fichier, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 fichiers, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>au moins %1 fichiers, %2</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Quorvex</source>
        <translation>Quorvex</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Langue modifiée</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>La langue a été modifiée.

L&apos;application va maintenant redémarrer.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>Impossible de modifier la tâche pendant son exécution</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>Aucune tâche définie</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>La tâche est déjà en cours d&apos;exécution</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>Échec de la création du thread de travail</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>Début de la tâche d&apos;effacement...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>Méthode d&apos;effacement&#xa0;: %1 (passes&#xa0;: %2)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>Tâche arrêtée</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>Passe d&apos;écrasement %1/%2</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>Erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>Effacement terminé&#xa0;!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>Échec de l&apos;effacement</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>Le disque est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>Les volumes du disque ne peuvent pas en être détachés, erreur %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>Le volume %1 est utilisé et ne peut pas être démonté.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>Le volume %1 ne peut pas être démonté, erreur %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>Non remonté&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>Fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>N° de certificat</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Statut</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>Norme de l&apos;Institut national américain des normes et de la technologie (NIST), 1 passe, convient à la plupart des cas</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>Norme de sécurité du gouvernement britannique, 2 passes</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>Norme du département de la Défense des États-Unis, 7 passes, sécurité de niveau militaire</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>Norme de l&apos;Office fédéral allemand de la sécurité des technologies de l&apos;information (BSI), 7 passes</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Norme de sécurité maximale proposée par Peter Gutmann, 35 passes</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>Basique</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>Renforcé</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Élevé</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>Maximal</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Effacement de disque</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>Effacement de partition</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Effacement d&apos;espace libre</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Effacement de fichiers</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>Fichier introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>Veuillez sélectionner un disque à effacer</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>Impossible d&apos;effacer le disque système. Veuillez démarrer depuis un disque externe.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>Veuillez sélectionner une partition à effacer</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>Impossible d&apos;effacer la partition système. Veuillez démarrer depuis un disque externe.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>Veuillez sélectionner un disque ou une partition dont l&apos;espace libre doit être effacé</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>Veuillez ajouter des fichiers à effacer</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>Le nombre de threads doit être compris entre 1 et 32</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>La taille du tampon doit être comprise entre 1 et 1024 MB</translation>
    </message>
</context>
</TS>
