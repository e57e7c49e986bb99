<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Left</source>
            <translation>Esquerda</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Direita</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Espaço</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Note</source>
            <translation>Nota</translation>
        </message>
        <message>
            <source>Letter / ANSI A</source>
            <translation>Carta / ANSI A</translation>
        </message>
        <message>
            <source>Legal</source>
            <translation>Ofício</translation>
        </message>
        <message>
            <source>Architect A</source>
            <translation>Arquiteto A</translation>
        </message>
        <message>
            <source>Architect B</source>
            <translation>Arquiteto B</translation>
        </message>
        <message>
            <source>Architect C</source>
            <translation>Arquiteto C</translation>
        </message>
        <message>
            <source>Architect D</source>
            <translation>Arquiteto D</translation>
        </message>
        <message>
            <source>Architect E</source>
            <translation>Arquiteto E</translation>
        </message>
        <message>
            <source>Letter Extra</source>
            <translation>Carta Extra</translation>
        </message>
        <message>
            <source>Letter Small</source>
            <translation>Carta Pequena</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>Envelope EUA 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>Envelope EUA 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>Envelope EUA 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>Envelope EUA 14</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>Executivo (7,5 x 10 in)</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>JIS B0</source>
            <translation>B0 JIS</translation>
        </message>
        <message>
            <source>JIS B1</source>
            <translation>B1 JIS</translation>
        </message>
        <message>
            <source>JIS B2</source>
            <translation>B2 JIS</translation>
        </message>
        <message>
            <source>JIS B3</source>
            <translation>B3 JIS</translation>
        </message>
        <message>
            <source>JIS B4</source>
            <translation>B4 JIS</translation>
        </message>
        <message>
            <source>JIS B5</source>
            <translation>B5 JIS</translation>
        </message>
        <message>
            <source>JIS B6</source>
            <translation>B6 JIS</translation>
        </message>
        <message>
            <source>JIS B7</source>
            <translation>B7 JIS</translation>
        </message>
        <message>
            <source>JIS B8</source>
            <translation>B8 JIS</translation>
        </message>
        <message>
            <source>JIS B9</source>
            <translation>B9 JIS</translation>
        </message>
        <message>
            <source>PRC 32K Big</source>
            <translation>PRC 32K Grande</translation>
        </message>
        <message>
            <source>A4 Small</source>
            <translation>A4 Pequeno</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>Executivo (7,25 x 10,5 in)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>Postal</translation>
        </message>
        <message>
            <source>Tabloid / ANSI B</source>
            <translation>Tabloide / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>Envelope Convite</translation>
        </message>
        <message>
            <source>Statement</source>
            <translation>Recibo</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>Contínuo Alemão (8.5 x 12 in)</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>Envelope EUA 9</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>Contínuo EUA (14.875 x 11 in)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>Contínuo Ofício Alemão (8.5 x 13 in)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>Personalizado (%1in x %2in)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>Personalizado (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>Personalizado (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>Personalizado (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>Personalizado (%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>Personalizado (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Letter Plus</source>
            <translation>Carta Plus</translation>
        </message>
        <message>
            <source>Tabloid Extra</source>
            <translation>Tabloide Extra</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>Envelope Italiano</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>Postal Duplo</translation>
        </message>
        <message>
            <source>Legal Extra</source>
            <translation>Ofício Extra</translation>
        </message>
        <message>
            <source>Folio (8.27 x 13 in)</source>
            <translation>Fólio (8,27 x 13 in)</translation>
        </message>
        <message>
            <source>Ledger / ANSI B</source>
            <translation>Livro / ANSI B</translation>
        </message>
        <message>
            <source>JIS B10</source>
            <translation>B10 JIS</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>Envelope Pessoal</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulário</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>Margem inferior</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>Papel</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>Origem do papel:</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>Margem direita</translation>
        </message>
        <message>
            <source>Pica (P̸)</source>
            <translation>Paica (P̸)</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>Margens</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>Paisagem</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>Layout da página</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>Largura:</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>Orientação</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>Retrato</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>Ordem da página:</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>Margem superior</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>Margem esquerda</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>Tamanho da página:</translation>
        </message>
        <message>
            <source>Cicero (CC)</source>
            <translation>Cícero (CC)</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>Retrato invertido</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>Milímetros (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>Pontos (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>Páginas por folha:</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>Polegadas (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>Paisagem invertida</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>Altura:</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>&amp;No</source>
            <translation>&amp;Não</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>&amp;Sim</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Ajuda</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Abrir</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salvar</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Aplicar</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fechar</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>Restaurar</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>Repetir</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>Restaurar padrões</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>Ignorar</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>Nã&amp;o para tudo</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>Salvar tudo</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Descartar</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>Sim par&amp;a tudo</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>Even Pages</source>
            <translation>Páginas pares</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>&amp;Opções &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>&amp;Opções &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>Da esquerda para a direita, de cima para baixo</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>Da direita para a esquerda, de baixo para cima</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>Gravar arquivo PDF</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>&amp;Imprimir</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>As opções 'Páginas por folha' e 'Conjunto de páginas' não podem ser usadas em conjunto.
Desative uma das opções.</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>O %1 já existe.
Deseja sobrescrevê-lo?</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>Da esquerda para a direita, de baixo para cima</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>Páginas ímpares</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>Arquivo local</translation>
        </message>
        <message>
            <source>There are conflicts in duplex settings. Do you want to fix them?</source>
            <translation>Há conflitos nas configurações duplex. Deseja corrigi-los?</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>Imprimir para arquivo (PDF)</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>Imprimir para arquivo...</translation>
        </message>
        <message>
            <source>Invalid Pages Definition</source>
            <translation>Definição de páginas inválida</translation>
        </message>
        <message>
            <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
            <translation>%1 não segue a sintaxe correta. Use ',' para separar intervalos e páginas, '-' para definir intervalos e certifique-se de que os intervalos não cruzem entre si.</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>Da direita para a esquerda, de cima para baixo</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>De baixo para cima, da esquerda para a direita</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>O valor 'De' não pode ser maior que o valor 'Até'.</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>Todas as páginas</translation>
        </message>
        <message>
            <source>Duplex Settings Conflicts</source>
            <translation>Conflitos de configurações duplex</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 é uma pasta.
Escolha um nome de arquivo diferente.</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>O arquivo %1 não é gravável.
Escolha um nome diferente.</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>De baixo para cima, da direita para a esquerda</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>De cima para baixo, da esquerda para a direita</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>De cima para baixo, da direita para a esquerda</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>a</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>Desligado</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Formulário</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nenhum</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Colorido</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>Imprimir tudo</translation>
        </message>
        <message>
            <source>Pages</source>
            <translation>Páginas</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>Página atual</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>Seleção</translation>
        </message>
        <message>
            <source>Long side</source>
            <translation>Lado longo</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Cópias</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>Intervalo de impressão</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>Modo de cor</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>Opções</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>Configurações de saída</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>Inverter</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>Tons de cinza</translation>
        </message>
        <message>
            <source>Short side</source>
            <translation>Lado curto</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>Agrupar</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>Cópias:</translation>
        </message>
        <message>
            <source>Short side binding</source>
            <translation>Encadernação no lado curto</translation>
        </message>
        <message>
            <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
            <translation>Indique as páginas ou intervalos separados por vírgulas. Os intervalos são indicados por dois números separados por um hífen. Ex.: 3,5-7,9 imprime as páginas 3, 5, 6, 7 e 9.</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>Páginas de</translation>
        </message>
        <message>
            <source>Double Sided Printing</source>
            <translation>Impressão em dupla face</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>Conjunto de páginas:</translation>
        </message>
        <message>
            <source>Long side binding</source>
            <translation>Encadernação no lado longo</translation>
        </message>
        <message>
            <source>Duplex Printing</source>
            <translation>Impressão duplex</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Salvar</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>Fe&amp;char</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>Fecha sem salvar</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>&amp;Cancelar</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulário</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>Tipo:</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Nome:</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>Arquivo de &amp;saída:</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>P&amp;ropriedades</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Visualização</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Impressora</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>Localização:</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>Tarefa</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>Fim:</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nenhuma</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>Separador de páginas</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>Noite (18:00 até 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>Hora específica</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>Informações de cobrança:</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>Impressão agendada:</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>Secreto</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>Altamente secreto</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>Início:</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>Dia (06:00 até 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>Segundo turno (16:00 até 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>Controle de tarefas</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>Fim de semana (sábado a domingo)</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Padrão</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>Classificado</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>Terceiro turno (00:00 até 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>Manter indefinidamente</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>Imprimir imediatamente</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>Confidencial</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>Prioridade da tarefa:</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>Sem classificação</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>Superior</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>Rolar para baixo</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>Rolar aqui</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>Rolar à esquerda</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>Inferior</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>Página acima</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>Página à direita</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>Rolar para cima</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>Rolar à direita</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>Borda esquerda</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>Página abaixo</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>Página à esquerda</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>Borda direita</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>Voltar</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Arquivo</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Abrir</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>&amp;Abrir</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Salvar</translation>
        </message>
        <message>
            <source>Alias</source>
            <translation>Nome de exibição</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>Unidade</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>Arquivos</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>Mostrar </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>'%1' está protegido contra gravação.
Deseja excluí-lo mesmo assim?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>Deseja realmente excluir '%1'?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>Lista de locais e favoritos</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>&amp;Nome do arquivo:</translation>
        </message>
        <message>
            <source>Alt+Left</source>
            <translation>Alt+Esquerda</translation>
        </message>
        <message>
            <source>Alt+Up</source>
            <translation>Alt+Acima</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>Pasta de arquivos</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Excluir</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>Nova pasta</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>Pasta</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>Pasta superior</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>&amp;Nova pasta</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>Remover</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Meu computador</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>Procurar em:</translation>
        </message>
        <message>
            <source>Alt+Right</source>
            <translation>Alt+Direita</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>Cria uma nova pasta</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>Arquivo %1</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>Arquivos do tipo:</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>Localizar a pasta</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>Mostrar arquivos &amp;ocultos</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>Salvar como</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
Pasta não encontrada.
Verifique se foi indicado um nome correto para a pasta.</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>Barra lateral</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>Exibição em lista</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>Es&amp;colher</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>E&amp;xcluir</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>Todos os arquivos (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>Todos os arquivos (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>Pastas</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Renomear</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>Não foi possível excluir a pasta.</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>Pasta:</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>Desconhecido</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>%1 já existe.
Deseja substituí-la?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>Avançar</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>Avançar</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>Ir para a pasta superior</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>Locais recentes</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>Voltar</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>Alterar para o modo de exibição detalhada</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>Criar nova pasta</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>Atalho</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>Exibição detalhada</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
Arquivo não encontrado.
Verifique se foi indicado um nome correto para o arquivo.</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>Alterar para o modo de exibição em lista</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Recor&amp;tar</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Copiar</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Refazer</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Desfazer</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>C&amp;olar</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Excluir</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Selecionar tudo</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Recor&amp;tar</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Copiar</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Refazer</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Desfazer</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>Co&amp;lar</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Excluir</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Selecionar tudo</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>Copiar localização do &amp;link</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulário</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>Página</translation>
        </message>
        <message>
            <source>There are conflicts in some options. Please fix them.</source>
            <translation>Há conflitos em algumas opções. Corrija-os.</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Avançado</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nome</translation>
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
            <source>My Computer</source>
            <translation>Meu computador</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Computador</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>Nome de arquivo inválido</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
            <translation>&lt;b&gt;O nome "%1" não pode ser usado.&lt;/b&gt;&lt;p&gt;Tente usar outro nome, com menos caracteres ou pontuação.</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>Data de modificação</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>Verdadeiro</translation>
        </message>
        <message>
            <source>False</source>
            <translation>Falso</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>Abrir menu de contexto da caixa de seleção</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Advanced Option Conflicts</source>
            <translation>Conflitos da opção avançada</translation>
        </message>
        <message>
            <source>Job Options</source>
            <translation>Opções da tarefa</translation>
        </message>
        <message>
            <source>Page Setup Conflicts</source>
            <translation>Conflitos de configuração de página</translation>
        </message>
        <message>
            <source>There are conflicts in some advanced options. Do you want to fix them?</source>
            <translation>Há conflitos em algumas opções avançadas. Deseja corrigi-los?</translation>
        </message>
        <message>
            <source>There are conflicts in page setup options. Do you want to fix them?</source>
            <translation>Há conflitos nas opções de configuração da página. Deseja corrigi-los?</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>Propriedades da impressora</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>O que é isto?</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Show Details...</source>
            <translation>Mostrar detalhes...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>Ocultar detalhes...</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>RLE Start of right-to-left embedding</source>
            <translation>RLE Início de incorporação da direita para a esquerda</translation>
        </message>
        <message>
            <source>ZWSP Zero width space</source>
            <translation>ZWSP Espaço de tamanho nulo</translation>
        </message>
        <message>
            <source>LRI Left-to-right isolate</source>
            <translation>LRI Isolado da Esquerda para a Direita</translation>
        </message>
        <message>
            <source>Insert Unicode control character</source>
            <translation>Inserir caractere de controle Unicode</translation>
        </message>
        <message>
            <source>LRO Start of left-to-right override</source>
            <translation>LRO Início de substituição da esquerda para a direita</translation>
        </message>
        <message>
            <source>LRE Start of left-to-right embedding</source>
            <translation>LRE Início de incorporação da esquerda para a direita</translation>
        </message>
        <message>
            <source>RLI Right-to-left isolate</source>
            <translation>RLI Isolado da Direita para a Esquerda</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM Marca da direita para a esquerda</translation>
        </message>
        <message>
            <source>PDF Pop directional formatting</source>
            <translation>PDF Formatação direcional pop</translation>
        </message>
        <message>
            <source>ZWNJ Zero width non-joiner</source>
            <translation>ZWNJ Separação de tamanho nulo</translation>
        </message>
        <message>
            <source>RLO Start of right-to-left override</source>
            <translation>RLO Início de substituição da direita para a esquerda</translation>
        </message>
        <message>
            <source>PDI Pop directional isolate</source>
            <translation>PDI Isolado Direcional Pop</translation>
        </message>
        <message>
            <source>ZWJ Zero width joiner</source>
            <translation>ZWJ Inclusão de tamanho nulo</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM Marca da esquerda para a direita</translation>
        </message>
        <message>
            <source>FSI First strong isolate</source>
            <translation>FSI Isolado Forte Primeiro</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>&amp;Passo &amp;abaixo</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>Pa&amp;sso acima</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>&amp;Selecionar tudo</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>Deslocar à esquerda</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>Deslocar à direita</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>Fechar aba</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>É necessário o Qt %2 para o executável '%1', mas foi encontrado o Qt %3.</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Erro de incompatibilidade da biblioteca Qt</translation>
        </message>
    </context>
</TS>
