-- The rows delivered with the data file.

-- A fresh system asks for a login; with no users yet, anyone gets in (and is told how to add one).
INSERT INTO login_inicia (exigirlogin) VALUES ('1');

INSERT INTO fpagamento (pagamento) VALUES
    ('Dinheiro'),
    ('Pix'),
    ('Cartão de débito'),
    ('Cartão de crédito'),
    ('Boleto bancário'),
    ('Cheque'),
    ('Cheque pré-datado'),
    ('Transferência bancária'),
    ('TED'),
    ('DOC'),
    ('Depósito bancário'),
    ('Débito automático'),
    ('Crediário'),
    ('Vale-refeição');

-- Label layout in twips inside one label. The postal code lives in "tel": it is the column the
-- contact form shows under "CEP:".
INSERT INTO CamposEtiqueta ("Index", Campo, "Top", "Left", Width, Formato) VALUES
    (0, 'nome',     60,  100, 3600, ''),
    (1, 'endereco', 300, 100, 3600, ''),
    (2, 'bairro',   540, 100, 3600, ''),
    (3, 'cidade',   780, 100, 2600, ''),
    (4, 'tel',      780, 2750, 950, '');
