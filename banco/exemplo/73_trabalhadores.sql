-- Workers for the personal data and the admission.

-- 7301 Davi Quaresmeira: incomplete register at company 2: no category, country, issuer of the identity card or number of
-- the street, a kind of disability that the payroll doesn't know, telephones of punctuation only, shifts of 6 x 2
INSERT INTO EMPREGADOS (IDEMPREGADO, IDEMPRESA, COD_EMPRESA, COD_EMPREGADO, CODIGOESOCIAL, NOME, CPF, SEXO, DATA_NASCIMENTO, DATA_ADMISSAO, CTPS_NUMERO, CTPS_SERIE, CTPS_UF, NUMERO_RG, UF_RG, LOGRADOURO, BAIRRO, COD_MUN, UF, TIPOVINCULO, TIPOADMISSAO, TPCONTRATO, CONTRATO, COD_HORARIO, TIPO_DEFICIENCIA, DEFICIENCIAESOCIAL, GRAU_INSTR, RACACOR, ESTADOCIVILLEGAL) VALUES (7301, 2, 2, 7301, '002007301', 'Davi Quaresmeira', '731.112.223-65', 'M - Masculino', '09.09.1999', '01.03.2021', '73001', '00123', 'SP', '73.001.456-7', 'SP', 'Travessa das Quaresmeiras', 'Centro', '3509502', 'SP', 1, 1, 1, '7', '105', 9, 1, '07-Ensino médio completo', '10-Outra', '9-Outro');
INSERT INTO FP_EMPREGADOSCONTATO (IDEMPREGADO, TIPOCONTATO, CONTATO) VALUES (7301, 1, '(  )     -');
INSERT INTO FP_EMPREGADOSCONTATO (IDEMPREGADO, TIPOCONTATO, CONTATO) VALUES (7301, 2, ' - ');
INSERT INTO FP_EMPREGADOSCONTATO (IDEMPREGADO, TIPOCONTATO, CONTATO) VALUES (7301, 4, 'davi@quaresmeira.exemplo.br');
