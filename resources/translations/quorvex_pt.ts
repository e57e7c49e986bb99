<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Falha ao alocar memória</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, um tamanho impossível</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>O registro indica %1 bytes, mais do que um arquivo pode ter.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>Tamanhos impossíveis na soma: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>Certificado de apagamento - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 Exportar PDF</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ Imprimir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>Exportar certificado</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>Arquivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>Exportação concluída</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>Certificado exportado para:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Falha na exportação</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>Não foi possível exportar o certificado. Verifique as permissões do caminho do arquivo.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Imprimir certificado</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>Tipo de operação</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>Passagens</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Término</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>Apagamento</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>Arquivos processados</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total de setores</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>Setores apagados</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>Dados gravados</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>Setores com falha</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verificação</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>Aprovada ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>Reprovada ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>Hash dos dados</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>Dados do operador</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>Certificado de apagamento de dados</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>Registro de conformidade do apagamento seguro de dados</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>ID do certificado:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Criado em:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>Declaração: este certificado atesta que o dispositivo de armazenamento ou os arquivos acima indicados foram apagados com segurança de acordo com o padrão de apagamento de dados especificado. O processo de apagamento está em conformidade com a legislação de proteção de dados aplicável. Este certificado foi gerado automaticamente pelo Quorvex e serve como registro de conformidade da destruição de dados.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>No suporte</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>Não relido</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>Nada que pudesse ser comparado</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>Releitura</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>CertificateNumber</name>
    <message>
        <source>All certificate numbers of this day are taken.</source>
        <translation>Todos os números de certificado deste dia já foram usados.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Tipo de operação</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>Passagens</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> ×</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Término</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>Apagamento</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> no total</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>Total de setores</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>Setores apagados</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>Dados gravados</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>Setores com falha</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>Verificação</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>Resultado:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>Aprovada</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>Reprovada</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> posições</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>Hash dos dados</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>Dados do operador</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>Certificado de apagamento de dados</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>ID do certificado: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>Criado em: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>Declaração: este certificado atesta que o dispositivo de armazenamento ou os arquivos acima indicados foram apagados com segurança de acordo com o padrão de apagamento de dados especificado. O processo de apagamento está em conformidade com a legislação de proteção de dados aplicável. Este certificado foi gerado automaticamente pelo Quorvex e serve como registro de conformidade da destruição de dados.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>Ferramenta profissional de apagamento de dados</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>realmente processados: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>não relido</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>conteúdo relido não comparável</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(texto completo no histórico deste programa)</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>this program was built without certificates</source>
        <translation>este programa foi compilado sem certificados</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>nenhum comando informado</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; está incompleto</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>comando desconhecido: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; requer %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%1&apos; é um argumento a mais para &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (consulte %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 não é um arquivo</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 é grande demais para ser um relatório</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>os campos são iguais, mas o texto difere a partir do byte %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>o primeiro campo que difere é %1: %2 no registro, %3 no arquivo</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>NÃO IDÊNTICO: %1 não é um relatório</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>NÃO IDÊNTICO: o banco de dados não tem nenhum registro de %1</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>IDÊNTICO: %1 corresponde ao registro de %2</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>NÃO IDÊNTICO: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>TUDO ZERO: cada um dos %1 bytes de %2 é 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>NÃO ZERADO: o byte %1 de %2 é %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>um caminho está vazio</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>Compara um relatório exportado com seu registro ou procura bytes que tenham restado</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE é um relatório em JSON ou, com --zeros, um arquivo de imagem ou uma unidade, que é apenas lida.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>Lê FILE por completo e informa se todos os bytes são 0x00</translation>
    </message>
    <message>
        <source>system</source>
        <translation>sistema</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>removível</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>Nenhuma unidade encontrada.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Atributos</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, sistema</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>Mostra as unidades com seus volumes</translation>
    </message>
    <message>
        <source>random</source>
        <translation>aleatório</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>complemento</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (com verificação)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, nível %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>Mostra os padrões de apagamento com suas passagens</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>não foi possível excluir o relatório %1</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>Relatório %1 excluído.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>Exclui um relatório do banco de dados</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; requer --pdf ou --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>não foi possível gravar %1</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>Exporta um relatório como certificado, como JSON ou das duas formas</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>O JSON é o texto armazenado, byte por byte, para &apos;quorvex-cli check&apos;.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>Grava o certificado em PDF, neste arquivo ou pasta</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>Grava o relatório em JSON; - é a saída padrão</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>danificado</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>Nenhum relatório.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operação</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Alvo</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 requer um número %2, não &apos;%3&apos;</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>igual ou superior a %1</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>Mostra os relatórios armazenados, começando pelos mais recentes</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>Quantos mostrar (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>Quantos dos mais recentes omitir (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>Mostra um relatório</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>Mostra o que &apos;wipe trash&apos; apagaria</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>Apaga uma unidade inteira</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE é o número que &apos;quorvex-cli disks&apos; mostra ou um caminho de dispositivo. Discos do sistema são recusados.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>Apaga arquivos, e pastas com todo o seu conteúdo</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>De um link, remove-se apenas o próprio link; aquilo para que ele aponta não é tocado. Coloque -- antes de um caminho que comece com hífen.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  o espaço livre de:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  os arquivos existentes são mantidos</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report aceita o relatório de um só volume, não de vários</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>--pdf requer uma pasta quando há vários volumes</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>Apaga o espaço livre dos volumes</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME é uma letra de unidade, um ponto de montagem ou um número de unidade para todos os volumes da unidade.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>A Lixeira está vazia.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>a lista de pastas da própria Lixeira ainda cita o que foi apagado, erro %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>a Lixeira</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>Apaga todo o conteúdo da Lixeira do usuário atual</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>Trata-se da Lixeira do Windows e da Lixeira de outros ambientes gráficos.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>O seguinte será destruído definitivamente:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>não confirmado: a entrada padrão não é um terminal; --yes dispensa a pergunta</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>Digite %1 para destruir:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>cancelado, nada foi gravado</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>não confirmado, nada foi gravado</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>unidade inexistente: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 é uma parte da unidade %2; é preciso indicar uma unidade inteira</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>a unidade %1 é um disco do sistema e não pode ser apagada enquanto está em uso</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>sem permissão para gravar na unidade %1</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>a unidade %1 não está mais presente, ou outra tomou seu lugar</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 não é um arquivo nem uma pasta; unidades são apagadas com &apos;wipe disk&apos;</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 volta através de um link; informe o caminho sem &quot;..&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>não é possível examinar %1, erro %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 é a raiz de um volume; indique o que deve ser apagado nele</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>Saída para programas: JSON, um valor por linha</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>Guarda o banco de dados e o log nesta pasta em vez da pasta do usuário</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>Faz este arquivo de imagem aparecer como unidade (repetível)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>Não mostra nem abre nenhuma unidade real</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>Mostra somente os erros e a linha final</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Mostra esta ajuda</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostra a versão</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>não é um arquivo de imagem: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>Uso: quorvex-cli [OPÇÃO...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemplo:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>Opções de todos os comandos:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>concluído, tudo o que foi solicitado foi feito</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>a tarefa foi executada e falhou, no todo ou em parte</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>a linha de comando está errada</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>recusado antes de gravar qualquer coisa</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>cancelado (Ctrl+C), a tarefa parou de forma ordenada</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>não foi possível gravar um relatório ou outra saída</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Códigos de saída:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMANDO</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>Destrói dados sem possibilidade de recuperação e comprova isso.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>Cada comando tem sua própria ajuda: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>não é possível usar a pasta de dados %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; está dentro do que será apagado</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>não é possível gravar %1</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>o banco de dados de relatórios em %1 está dentro do que será apagado; --data-dir usa outra pasta, --no-report dispensa o banco</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>não foi possível salvar o relatório %1 no banco de dados: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>não foi possível gravar o arquivo de relatório %1</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>não foi possível gravar o certificado %1</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>idioma desconhecido: &apos;%1&apos;; os conhecidos são: %2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>não é possível ler o catálogo do idioma %1</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 passagem</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 passagens</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; não pode ser o nome de um arquivo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; é uma pasta, não um arquivo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; existe e não é um arquivo comum</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>a pasta de &apos;%1&apos; não existe</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>passagem %1/%2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>restam %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>não é possível usar o banco de dados de relatórios em %1: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>não é possível ler o banco de dados de relatórios: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>o relatório %1 não existe</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>o que está armazenado como relatório %1 está danificado</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Setores</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>Setores apagados</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>Setores com falha</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verificação</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>aprovada</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>reprovada</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Leitura de verificação</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Término</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Dados gravados</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>não foi possível gravar a saída</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[erro]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[aviso]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[info]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>CONCLUÍDO</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>CANCELADO</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FALHOU</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 gravados</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4 em %5, certificado %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, relatório %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root está vazio</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 não é uma pasta</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>Procura nas lixeiras do Windows sob esta pasta, que representa uma unidade (repetível)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>Com --root: somente a lixeira do usuário com este identificador de segurança</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid está vazio</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid requer --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>o sistema não informa quem é o usuário</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 item</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>pasta, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, resta apenas seu registro</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>unidade %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>volume inexistente: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>método desconhecido: &apos;%1&apos;; &apos;quorvex-cli methods&apos; mostra todos</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>Padrão de apagamento, por nome ou número (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>Não lê o que foi gravado para verificar</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>Amostras lidas de uma unidade para verificação (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>Arquivos apagados ao mesmo tempo, de 1 a 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>Buffer de gravação em MiB, de 1 a 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>Grava o relatório em JSON, neste arquivo</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>Não salva o relatório no banco de dados</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>Após um apagamento bem-sucedido, grava o certificado em PDF, neste arquivo ou pasta</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>Não pede a palavra ERASE</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>com leitura de verificação</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>sem leitura de verificação</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  método %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>não é possível ler %1 no byte %2, erro %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>sem permissão para ler %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>não é possível abrir %1, erro %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 é uma pasta</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>o log do programa em %1 está no que será apagado; --data-dir usa outra pasta</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>FEITO EM PARTE</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 está vazio, não há nada a verificar</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>dispositivo que não é uma unidade</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 é somente leitura</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>a unidade %1 é somente leitura</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>o volume %1 está na unidade %2 e também em: %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>a unidade %1 está ocupada por %2</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>para liberá-la: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>Lacuna</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Observação</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completo</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>parcial</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>falhou</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>tipo de lacuna desconhecido: &apos;%1&apos;; os disponíveis são: %2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>Uma lacuna deste tipo não conta como falha (repetível)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>volumes que continuam desmontados: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  nem tudo será apagado:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  a unidade inteira: a tabela de partições e tudo o que está entre os volumes e fora deles</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  os volumes são desmontados antes e assim ficam logo que algo tenha sido escrito</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>De uma unidade com volumes montados só estes são apagados; --whole desmonta-os e apaga todos os setores da unidade.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>Desmontar todos os volumes da unidade e apagar todos os seus setores</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>No suporte</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir está vazio</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>nada a apagar foi encontrado, mas nem todas as lixeiras foram examinadas: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>nenhuma lixeira de %1 foi encontrada</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 entrada sem registro</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 entradas sem registro</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>e %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 é um link e não é seguido</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 pertence a outro usuário e não é tocado</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>não é possível examinar %1, erro %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>Com --no-report dispensa-se o número.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; foi indicado para duas saídas</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; existe e não é um relatório; --force o substitui</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>Permite que --report substitua um arquivo que não é um relatório</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1; tente como administrador</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1; tente com sudo</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>Mostra o que unidades e volumes respondem, para quem ajuda à distância</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>Nada é escrito. As respostas estão em inglês em todos os idiomas e contêm números de série e caminhos: reveja-as antes de as enviar.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Reciclagem de %1</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>Idioma: %1 (padrão: o do sistema)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>Apagamento concluído</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>Falha no apagamento</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>Ocorreu um erro durante o apagamento.
Consulte o log para obter detalhes.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>Dados selecionados apagados com segurança.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>Dados selecionados apagados com segurança.
Um certificado de apagamento foi gerado.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>Dados apagados com êxito!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>Certificado: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>Ver certificado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>Ficaram desmontados: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>O relatório não foi salvo. %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>Confirmar apagamento</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>Digite &lt;b&gt;ERASE&lt;/b&gt; para confirmar:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>Aviso: operação irreversível</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>Os dados selecionados serão apagados para sempre e não poderão ser recuperados.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>Apagar o disco inteiro
(caso contrário, tudo fora dos volumes permanece)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>Apagar o disco inteiro
(caso contrário, %1 fora dos volumes permanecem)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>Todos os setores são sobrescritos, incluindo a tabela de partições. Antes são desmontados todos os volumes do disco.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>Isto será destruído</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>Apagamento de discos e partições</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>Selecione o disco ou a partição a apagar. Expanda os discos para ver as partições.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Voltar</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Avançar →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Discos e partições</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>Disco/partição</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>Apagamento de espaço livre</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>Selecione uma partição para apagar seu espaço livre com segurança.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>Selecione o disco ou a partição que deseja apagar por completo. Todos os dados serão excluídos permanentemente.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ Não é possível selecionar o disco do sistema para apagamento.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ O apagamento de espaço livre é seguro para o disco do sistema. Ele não afeta os arquivos existentes nem o funcionamento do sistema.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ Não é possível selecionar a partição do sistema para apagamento.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ O apagamento de espaço livre é seguro para a partição do sistema. Ele não afeta os arquivos existentes nem o funcionamento do sistema.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 Disco %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ Disco do sistema</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>Removível</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponível</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 Partição %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 livres</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ Sistema</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ Inicialização</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>um dispositivo que não é um disco</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>o disco %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>O volume %1 abrange este disco e também %2.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>O disco é somente leitura.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>O disco está ocupado por: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>Estes comandos o liberam:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Falha ao alocar memória</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>Erro: nenhum acesso disponível ao disco ou aos volumes</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>Apagando por acesso ao disco...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>Falha em SetFilePointerEx, código de erro: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Erro de gravação, posição: %1, código de erro: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>Apagando por acesso aos volumes...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>Usando o tamanho estimado do volume: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>Apagando volume %1/%2, tamanho: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>Volume %1: %2 sem sobrescrita</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>Volume %1 apagado, dados gravados: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>0 bytes gravados, fim do volume alcançado</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>Limite do volume alcançado, continuando com o próximo...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>Erro: acesso negado</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>Erro: o disco está protegido contra gravação</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>Erro: o dispositivo não está pronto</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>Erro: o disco está em uso</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>Erro: conflito de bloqueio</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>Erro: falha de E/S do dispositivo</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>Falha ao esvaziar o buffer de gravação, código de erro: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>Verificação reprovada, posição: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>Verificação aprovada</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>Aviso: nenhum volume encontrado, o disco talvez não tenha partições</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>Procurando volumes no disco %1...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>Volume encontrado: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>Volumes que precisam ser bloqueados: %1</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>Processando volume: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>Não é possível abrir o volume %1, código de erro: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>Bloqueando volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>Volume %1 bloqueado</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>Aviso: falha ao bloquear o volume %1, código de erro: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>Desmontando volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>Volume %1 desmontado</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>Aviso: falha ao desmontar o volume %1, código de erro: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>Não é possível apagar o disco do sistema</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>Bloqueando os volumes do disco...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>Não é possível bloquear os volumes do disco, feche todos os programas que usam o disco</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>Volumes do disco bloqueados e desmontados</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>Não é possível obter as informações do disco</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>Apagamento de disco concluído!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Apagamento cancelado</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>Iniciando o apagamento de disco...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disco alvo: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>Número do disco: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>Número de série: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>Abrindo o disco...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>Disco aberto</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>Não é possível abrir o disco, código de erro: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>O apagamento será feito por acesso aos volumes</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Tamanho do disco: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>Tamanho do setor: %1 bytes</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>Total de setores: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>Passagem %1/%2 (valor: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>Falha na sobrescrita</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>aleatório</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>O volume %1 foi montado de novo, nada foi escrito</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>Não foi possível repor o disco online, código de erro: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>Montado de novo: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>Erro: o volume está cifrado e bloqueado (BitLocker). Desbloqueie-o ou apague a unidade inteira (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>Erro: o dispositivo foi desligado ou o suporte foi trocado</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>Erro: falha do dispositivo ou do suporte</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>Selecionar arquivos para destruir</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Use os botões para adicionar arquivos e pastas</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 Adicionar arquivos</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 Adicionar pasta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Remover tudo</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>Clique para adicionar arquivos ou arraste-os para cá</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Voltar</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Avançar →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>Arquivos e pastas para destruir</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>Selecionar arquivos</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>Remover tudo</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>Tem certeza de que deseja remover todos os arquivos adicionados?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>Itens adicionados: %1, total: %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>Não foi possível encontrar 1 item</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>Não foi possível encontrar %1 itens</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 arquivo tem outros nomes; seu conteúdo é apagado também sob eles</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 arquivos têm outros nomes; seu conteúdo é apagado também sob eles</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>Arquivos esparsos como %1 ocupam mais %2 quando são sobrescritos, e só há %3 livres. Nada foi gravado.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Falha ao alocar memória</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>Examinando os arquivos alvo...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>Nenhum arquivo encontrado para apagar</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>A tarefa de apagamento foi cancelada pelo usuário</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>Todos os arquivos foram apagados com sucesso! Arquivos processados: %1</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>Apagamento terminado, arquivos com falha: %1. Os dados podem ser recuperáveis!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>Não é possível ler a pasta: %1, código de erro: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>Não é possível acessar: %1, código de erro: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>O arquivo tem outros links físicos (%1): %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>Arquivos prontos para apagar: %1, tamanho total por passagem: %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>Todos os arquivos estão vazios, a sobrescrita foi ignorada</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>Falha na passagem %1/%2, arquivos com falha: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>Não é possível abrir o arquivo (WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>Falha em FlushFileBuffers: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>Falha em SetFilePointerEx: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>Falha em WriteFile: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>Verificação reprovada: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>Executando a exclusão segura e a limpeza de metadados...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Falha ao excluir: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>Não é possível excluir a pasta: %1, código de erro: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>O ficheiro foi substituído por outro, que fica como está: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>O conteúdo de %1 ficheiros pode estar também noutro lugar, onde não foi sobrescrito</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>Há outro sistema de ficheiros montado na pasta, deixado como está: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>Durante a tarefa apareceram mais %1 ficheiros, que também são apagados</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>O conteúdo do ficheiro não está neste computador, apenas na nuvem, e não pode ser apagado: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>Nem todo o conteúdo da pasta está neste computador, parte está apenas na nuvem; não pode ser apagada: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 ficheiros são sincronizados por um serviço na nuvem, que pode guardar cópias e versões anteriores</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>Apagando os nomes de arquivos do diário do sistema de arquivos...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>O diário do sistema de arquivos ainda pode conter nomes de arquivos: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>O volume não está mais disponível, código de erro: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>Os arquivos de preenchimento excluídos não liberaram espaço, não é possível continuar a sobrescrita</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>Falha ao alocar memória</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>Dados gravados: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>Partição do sistema detectada, 1 GB reservado como margem de segurança</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>Espaço livre preenchido</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>Não é possível criar o arquivo de preenchimento: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Erro de gravação, posição: %1, código de erro: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>O espaço livre não diminui, o sistema de arquivos talvez comprima os dados</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>Iniciando o apagamento de espaço livre...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>Alvo inválido</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>Partição alvo: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>Tamanho da partição: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>Sistema de arquivos: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disco alvo: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Tamanho do disco: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>O disco não tem tabela de partições, procurando o volume correspondente...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>Volume correspondente encontrado: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>Aviso: não há no disco partições disponíveis que não sejam do sistema</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>Partições cujo espaço livre será apagado: %1</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>Nenhuma partição disponível</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== Partição %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Apagamento cancelado</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>Apagamento de espaço livre concluído!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>Falha ao preencher o espaço livre</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>Espaço livre: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>Não há espaço livre para apagar</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>Excluídos os arquivos temporários de uma interrupção anterior: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>Não é possível criar a pasta temporária: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>Passagem %1/%2 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>valor: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>valor: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>valor: aleatório</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>valor: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>valor: desconhecido</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>Limpando os resíduos do sistema de arquivos...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>Limpeza incompleta dos resíduos do sistema de arquivos, código de erro: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>Aviso: o sistema de arquivos não aceita mais dados, %1 de espaço livre ainda não foram preenchidos</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>código de erro: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nada foi escrito.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>O volume %1 já não é o que foi escolhido.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>Outra tarefa está a apagar o espaço livre deste volume; os seus ficheiros estão em %1.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1 ficam como reserva de segurança e não são sobrescritos</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>Ver certificado</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>Exportar PDF</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>Excluir tudo</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>Histórico de apagamentos</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Alvo</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[Disco] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[Partição] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[Espaço livre] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[Arquivos] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>Quantidade: %1</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>Exportar certificado</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>Arquivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>Exportação concluída</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>Certificado exportado para: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>Falha na exportação</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>Não foi possível exportar o certificado</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>Confirmar exclusão</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>Tem certeza de que deseja excluir este registro de apagamento?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>Não há registros para excluir</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>Confirmar exclusão</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>Tem certeza de que deseja excluir todos os registros de apagamento?

Esta operação não pode ser desfeita!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>Exclusão concluída</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>Todos os registros foram excluídos</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>Destrua dados para sempre. Sem vazamentos.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Apagamento de disco</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>Apaga por completo todos os dados do disco, inclusive partições e registros de inicialização</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Apagamento de espaço livre</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>Apaga os resíduos de arquivos excluídos</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Apagamento de arquivos</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>Destrói arquivos e pastas permanentemente</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Apagamento da Lixeira</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>Apaga os arquivos excluídos que estão na Lixeira</translation>
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
        <translation>Gutmann, 35 passagens</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>A tarefa anterior ainda está terminando.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>Há um apagamento em curso.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>Não foi possível impedir a suspensão do sistema durante esta tarefa, erro %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Erro de configuração</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Não é possível carregar os links das páginas.

Entre em contato com o suporte técnico ou reinstale o programa.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Não é possível abrir o navegador</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Não é possível abrir o navegador padrão.

Copie o link e abra-o manualmente:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>Copiar log</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Salvar log</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Arquivos de texto (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>O dispositivo de loop %1 está anexado a %2. Nada foi gravado.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - Apagamento seguro de dados</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>Apagar o espaço livre?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>Os arquivos da Lixeira foram apagados com segurança!

Deseja apagar também o espaço livre para que os arquivos
excluídos anteriormente não possam ser recuperados?

Isso pode demorar mais, dependendo do espaço livre disponível.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>Confirmar interrupção</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>Tem certeza de que deseja parar a tarefa de apagamento?
Esta operação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>Confirmar saída</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>Há uma tarefa de apagamento em curso. Tem certeza de que deseja sair?
Se você sair, a tarefa atual será interrompida.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - Apagamento seguro de dados&lt;/h3&gt;&lt;p&gt;Versão 5.0&lt;/p&gt;&lt;p&gt;Apague seus dados com segurança usando padrões de nível militar.&lt;br&gt;Oferece apagamento de disco, apagamento de partição, apagamento de espaço livre e apagamento de arquivos.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. Apagado significa apagado, e o certificado diz como.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>Sobre o Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Apagamento da Lixeira</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>Examinando os arquivos excluídos que estão na Lixeira...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>Examinando a Lixeira...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>Examinando a Lixeira da unidade %1 (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>A Lixeira está vazia</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>A Lixeira já está vazia.

No entanto, os arquivos excluídos anteriormente ainda podem ser recuperáveis.
Deseja apagar o espaço livre para que eles não possam ser recuperados?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>Os seguintes arquivos excluídos foram encontrados na Lixeira</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>Itens encontrados: %1, total: %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>Selecionar arquivos para destruir</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Use os botões para adicionar arquivos e pastas</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>Este disco não pode ser apagado</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>Tudo isto será apagado, não apenas %1
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>Este volume não pode ser apagado</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>Estes arquivos não podem ser apagados</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>O apagamento não pode começar</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>Também apagado, sem registro: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>Não examinado: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>Lendo as unidades...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Reciclagem de %1</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>Passagens: %1</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>Nível de segurança: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>Selecionar método de apagamento</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>Cada método de apagamento oferece um nível de segurança diferente: quanto mais passagens, maior a segurança, mas também a duração</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← Voltar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>somente os volumes montados são apagados, não o resto da unidade</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>volumes não puderam ser abertos e não foram apagados</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>volumes deixaram de aceitar dados antes do seu fim</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>volumes estavam em uso enquanto eram sobrescritos</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>o fim da unidade não é um setor inteiro e não foi sobrescrito</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>a unidade informa tamanho zero, nada foi gravado</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>volumes se estendem além da unidade</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>nada foi gravado, embora houvesse espaço livre</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>restou espaço livre que não pôde ser preenchido</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>mais de 10% do espaço livre é deixado como reserva</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>restaram arquivos de preenchimento</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>itens já não existiam antes de poderem ser apagados</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>itens foram substituídos por outros nesse meio-tempo</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>arquivos cresceram depois de sobrescritos</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>itens não puderam ser removidos</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>o sistema de arquivos talvez mantenha o conteúdo em outro lugar, onde ele não é sobrescrito</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>os links são removidos, aquilo para que apontam não é apagado</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>o que foi gravado não foi lido para verificação</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>o que foi gravado não pode ser comparado na leitura de verificação</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>uma pequena parte do espaço livre é deixada como reserva</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>arquivos tinham outros nomes, que permanecem e levam a conteúdo sobrescrito</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>o sistema de arquivos grava em novos lugares e talvez mantenha conteúdo anterior, por exemplo em snapshots</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>não havia espaço livre para sobrescrever</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>Apagado em parte: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>Não apagado por completo: a tarefa falhou</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>Não apagado por completo: a tarefa foi cancelada</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>Escrito no suporte: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>a unidade não tem nenhum volume montado cujo espaço livre possa ser apagado</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>lixeiras não foram examinadas, o que contêm não é apagado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>as cópias sombra do volume podem guardar conteúdo anterior</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>um serviço na nuvem guarda cópias e versões anteriores de ficheiros</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>Velocidade: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>Tempo restante: calculando...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Log de operações</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ Parar</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>Método de apagamento: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>Velocidade: %1/s</translation>
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
        <translation>Tempo restante: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ Continuar</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ Pausar</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>Apagando dados...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>Progresso do apagamento</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>Retoma a exibição desta página; o apagamento não parou</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>Pausa apenas a exibição desta página; o apagamento continua</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>Nota: o «Acesso controlado a pastas» da Segurança do Windows pode impedir que este programa escreva. Permita-o aí e tente de novo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>机械硬盘</source>
        <translation>HDD</translation>
    </message>
    <message>
        <source>固态硬盘</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>USB设备</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>Externo</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>Outro programa está usando o banco de dados de relatórios.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>Não é possível gravar no banco de dados de relatórios.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>Não há mais espaço para o banco de dados de relatórios.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>O banco de dados de relatórios está danificado.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>Não é possível abrir o banco de dados de relatórios.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>No lugar do banco de dados de relatórios há um link.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>O banco de dados de relatórios não aceitou o relatório.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>Verificar os dados após o apagamento</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>Gerar automaticamente um certificado de apagamento</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>Exportar automaticamente o certificado em PDF ao concluir o apagamento</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>Opções de apagamento</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>Caminho de exportação:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>Selecione o caminho padrão...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>Selecionar pasta de exportação</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>Exportação de certificados</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Restaurar padrão</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Salvo com sucesso</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>As configurações foram salvas</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Falha ao salvar</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>Não foi possível salvar as configurações</translation>
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
        <translation>Apagamento</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>Relatório não encontrado</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>Não há nenhum relatório %1 no banco de dados.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>unidade %1: modelo %2, número de série %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>volume %1, %2, %3, %4 livres</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, rótulo %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>nenhum volume montado</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 arquivo, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>pelo menos 1 arquivo, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 arquivos, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>pelo menos %1 arquivos, %2</translation>
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
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma alterado</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>O idioma foi alterado.

O aplicativo será reiniciado agora.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>Não é possível alterar a tarefa durante a execução</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>Nenhuma tarefa definida</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>A tarefa já está em execução</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>Falha ao criar o thread de trabalho</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>Iniciando a tarefa de apagamento...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>Método de apagamento: %1 (passagens: %2)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>Tarefa interrompida</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>Passagem %1/%2</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>Erro: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>Apagamento concluído!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>Falha no apagamento</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>A unidade está a ser usada por outro programa.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>Não é possível libertar a unidade dos seus volumes, erro %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>O volume %1 está em uso e não pode ser desmontado.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>O volume %1 não pode ser desmontado, erro %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nada foi escrito.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>Não montado de novo: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>Arquivos: %1</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>ID do certificado</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Tipo de operação</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Alvo</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Método de apagamento</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>Padrão do Instituto Nacional de Padrões e Tecnologia dos EUA, 1 passagem, adequado para a maioria dos casos</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>Padrão de segurança do governo britânico, 2 passagens</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>Padrão do Departamento de Defesa dos EUA, 7 passagens, segurança de nível militar</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>Padrão do Escritório Federal de Segurança da Informação da Alemanha, 7 passagens</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Padrão de máxima segurança proposto por Peter Gutmann, 35 passagens</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>Reforçado</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconhecido</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>Pendente</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em curso</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Apagamento de disco</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>Apagamento de partição</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Apagamento de espaço livre</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Apagamento de arquivos</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>Arquivo não encontrado: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>Selecione o disco que deseja apagar</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>Não é possível apagar o disco do sistema. Inicialize o computador por uma unidade externa.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>Selecione a partição que deseja apagar</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>Não é possível apagar a partição do sistema. Inicialize o computador por uma unidade externa.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>Selecione um disco ou uma partição para apagar seu espaço livre</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>Adicione os arquivos que deseja apagar</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>O número de threads deve estar entre 1 e 32</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>O tamanho do buffer deve estar entre 1 e 1024 MB</translation>
    </message>
</context>
</TS>
